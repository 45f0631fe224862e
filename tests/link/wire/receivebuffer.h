// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/messagecodec.h"

#include <QByteArray>

#include <algorithm>
#include <vector>

// What the tests of the messages share: bytes as hexadecimal text, and the buffer that a message
// arrives in.

// Spaces are for the reader.
inline QByteArray fromHex(const char* text)
{
    return QByteArray::fromHex(text);
}

inline QByteArray zeros(int count)
{
    return QByteArray(count, '\0');
}

// A structure as the device gets it, in small letters and with a space between bytes.
template <class Body>
QByteArray hexOf(const Body& body)
{
    return bytesOf(body).toHex(' ');
}

// A received message with zeros behind it, in memory of its own, so that a sanitizer sees a read
// behind the end of the buffer.
class ReceiveBuffer final
{
public:
    explicit ReceiveBuffer(const QByteArray& message)
        : bytes_(ioctrlBufferBytes)
        , size_(std::min(message.size(), ioctrlBufferBytes))
    {
        std::copy_n(message.begin(), size_, bytes_.begin());
    }

    const char* data() const { return bytes_.data(); }
    int size() const { return size_; } // of the message

private:
    std::vector<char> bytes_;
    int size_;
};
