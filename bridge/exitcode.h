// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the program ends with.
enum class ExitCode : int {
    Ok = 0,
    Usage = 2,
    BadConfiguration = 3,
    CannotBind = 4,
    StateUnusable = 5,
};
