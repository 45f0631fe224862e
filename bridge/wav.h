// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

// One sample of A-law sound (G.711) as 16-bit PCM.
std::int16_t linearFromALaw(std::uint8_t code);

// Writes A-law sound, 8000 Hz mono, to a WAV file of 16-bit PCM. The sizes in the file's header are
// brought up to date once per second of sound, so that a file left behind by a killed program can
// be played. Not for use from two threads at once.
class WavWriter
{
public:
    // Makes the file, or empties it. Null when that fails.
    static std::unique_ptr<WavWriter> create(const std::string& path);

    WavWriter(const WavWriter&) = delete;
    WavWriter& operator=(const WavWriter&) = delete;
    ~WavWriter();

    // False when the disk takes no more, or the file has reached the 4 GiB that its form allows.
    bool append(std::string_view aLaw);

private:
    struct Close
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    explicit WavWriter(std::FILE* file);
    bool writeHeader();

    const std::unique_ptr<std::FILE, Close> file_;
    std::uint32_t samples_ = 0;
    std::uint32_t samplesInHeader_ = 0;
};
