// SPDX-License-Identifier: GPL-3.0-or-later
#include "wav.h"

#include "wire/bytes.h"

namespace {

constexpr std::uint32_t sampleRate = 8000;
constexpr std::uint32_t sampleBytes = 2;
constexpr std::uint32_t maxSamples = 0x7fff0000;

std::string headerFor(std::uint32_t samples)
{
    const std::uint32_t dataBytes = samples * sampleBytes;
    std::string out = "RIFF";
    putNumber(out, std::uint32_t{36 + dataBytes});
    out += "WAVEfmt ";
    putNumber(out, std::uint32_t{16});
    putNumber(out, std::uint16_t{1}); // PCM
    putNumber(out, std::uint16_t{1}); // mono
    putNumber(out, sampleRate);
    putNumber(out, sampleRate * sampleBytes);
    putNumber(out, static_cast<std::uint16_t>(sampleBytes));
    putNumber(out, std::uint16_t{8 * sampleBytes});
    out += "data";
    putNumber(out, dataBytes);
    return out;
}

} // namespace

std::int16_t linearFromALaw(std::uint8_t code)
{
    const int bits = code ^ 0x55; // every second bit travels inverted
    const int exponent = (bits >> 4) & 7;
    const int mantissa = bits & 0x0f;
    const int low = mantissa * 16 + 8;
    const int magnitude = exponent == 0 ? low : (low + 256) << (exponent - 1);
    return static_cast<std::int16_t>((bits & 0x80) != 0 ? magnitude : -magnitude);
}

WavWriter::WavWriter(std::FILE* file)
    : file_(file)
{
}

std::unique_ptr<WavWriter> WavWriter::create(const std::string& path)
{
    std::FILE* const file = std::fopen(path.c_str(), "wbe");
    if (file == nullptr)
        return nullptr;
    std::unique_ptr<WavWriter> writer(new WavWriter(file));
    return writer->writeHeader() ? std::move(writer) : nullptr;
}

WavWriter::~WavWriter()
{
    writeHeader();
}

bool WavWriter::writeHeader()
{
    const std::string header = headerFor(samples_);
    samplesInHeader_ = samples_;
    return std::fseek(file_.get(), 0, SEEK_SET) == 0
        && std::fwrite(header.data(), 1, header.size(), file_.get()) == header.size()
        && std::fseek(file_.get(), 0, SEEK_END) == 0 && std::fflush(file_.get()) == 0;
}

bool WavWriter::append(std::string_view aLaw)
{
    if (aLaw.size() > maxSamples - samples_)
        return false;
    std::string pcm;
    for (const char code : aLaw)
        putNumber(pcm, linearFromALaw(static_cast<std::uint8_t>(code)));
    if (std::fwrite(pcm.data(), 1, pcm.size(), file_.get()) != pcm.size())
        return false;
    samples_ += static_cast<std::uint32_t>(aLaw.size());
    return samples_ - samplesInHeader_ < sampleRate || writeHeader();
}
