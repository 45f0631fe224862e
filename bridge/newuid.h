// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// 20 characters A-Z and 0-9 from the system's source of random bytes: one of 36^20, so that no two
// devices of the world have the same.
std::string newUid();
