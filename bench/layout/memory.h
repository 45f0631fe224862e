// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

#include <optional>

class Subject;

// Resident memory of this process, KiB.
double residentKib();

// In a process of its own, with nothing left over from tiles before: what it holds once so many tiles
// have shown a picture each. Nothing where that process fails.
std::optional<double> memoryOf(bool isOurs, int tiles, QSize size);
