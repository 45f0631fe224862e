// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <algorithm>
#include <cstring>

// Copies of what a caller passes, for the record: null for a null pointer, and never more than
// `limit` bytes, so that a wrong size or a text without an end reads no further than that.

inline QByteArray bytesArgument(const void* data, int size, int limit)
{
    if (!data || size < 1)
        return {};
    return {static_cast<const char*>(data), std::min(size, limit)};
}

inline QByteArray textArgument(const char* text)
{
    constexpr std::size_t limit = 256;
    return text ? QByteArray(text, static_cast<int>(strnlen(text, limit))) : QByteArray();
}
