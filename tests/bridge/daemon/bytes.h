// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <initializer_list>
#include <string>

// Words of 32 bits, little endian.
inline std::string words(std::initializer_list<quint32> values)
{
    std::string bytes;
    for (const quint32 value : values)
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(value >> shift);
    return bytes;
}

inline QByteArray wordBytes(std::initializer_list<quint32> values)
{
    return QByteArray::fromStdString(words(values));
}

// A text in a zero-filled field.
inline std::string field(std::string text, std::size_t size)
{
    text.resize(size, '\0');
    return text;
}
