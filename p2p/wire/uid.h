// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/limits.h"

#include <algorithm>
#include <string_view>

inline bool isUid(std::string_view text)
{
    return text.size() == uidBytes && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    });
}
