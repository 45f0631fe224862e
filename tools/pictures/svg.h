// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "manifest.h"

#include <memory>

class QSvgRenderer;

// Loads an SVG in the colours of a face. Throws Problem when it is missing, when Qt reports
// anything at all about it, when it would need a font, and when the face and the drawing do not
// fit: a colour is given that it does not use, or it uses one that is not given.
std::unique_ptr<QSvgRenderer> loadSvg(const QString& path, const Face& face, const QString& entry);
