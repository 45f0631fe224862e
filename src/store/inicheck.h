// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

// Whether `bytes` are an INI file in QSettings' dialect from end to end: sections, key=value lines
// and comments, no binary. QSettings itself reports damage only to the first object that reads the
// file, and to later ones hands out its cache, so a writer that must not lose anything cannot ask
// it. A comment line is intact, though QSettings drops it when it writes; the mark is ';', while a
// line with '#' and no '=' is damage to QSettings, and so here. Pure, any thread.
bool isIntactIni(const QByteArray& bytes);
