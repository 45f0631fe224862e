// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Little-endian numbers in a block of bytes. A reader goes on only while the bytes last: past the
// end it gives zeros and ok() is false from then on.
class ByteReader
{
public:
    explicit ByteReader(std::string_view bytes)
        : rest_(bytes)
    {
    }

    bool ok() const { return ok_; }
    std::string_view rest() const { return rest_; }

    std::string_view take(std::size_t count)
    {
        if (count > rest_.size()) {
            ok_ = false;
            rest_ = {};
            return {};
        }
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(number(4)); }
    std::uint64_t u64() { return number(8); }

private:
    std::uint64_t number(std::size_t size)
    {
        const std::string_view bytes = take(size);
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < bytes.size(); ++i)
            value |= std::uint64_t{static_cast<std::uint8_t>(bytes[i])} << (8 * i);
        return value;
    }

    std::string_view rest_;
    bool ok_ = true;
};

// Appends little-endian numbers to a text of bytes.
template <typename Number>
void putNumber(std::string& out, Number value)
{
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        out.push_back(static_cast<char>(static_cast<std::uint64_t>(value) >> (8 * i)));
}
