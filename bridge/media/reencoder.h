// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "videoencoder.h"

#include <functional>
#include <optional>
#include <string>

// The size and rate that pictures are re-encoded to.
struct ReencodeTarget
{
    int width = 0; // 0: that of the picture, made even and at most 3840 x 2160
    int kilobitsPerSecond = 0; // 0: by size and rate
    int framesPerSecond = 25;
};

// What a picture of this size becomes: even, its shape kept. Nothing for a size that is no picture.
struct PictureSize
{
    int width;
    int height;
};
std::optional<PictureSize> reencodedSize(const ReencodeTarget& target, int width, int height);

// Decodes packets of any codec and encodes the pictures to H.264, the first as a key frame.
// Packets that cannot be decoded are left out. One thread at a time.
class Reencoder
{
public:
    using Take = std::function<void(const std::shared_ptr<const LinkFrame>&)>;

    // Null when there is no decoder; `error` tells why.
    static std::unique_ptr<Reencoder> open(
        const AVCodecParameters& coded, const ReencodeTarget& target, std::string& error);

    // `packet` null: gives what the decoder still holds, after which a new stream may begin.
    // `encode` false: decodes only, for pictures that are too late.
    void put(const AVPacket* packet, bool encode, bool key, const Take& take);

private:
    Reencoder(CodecPtr decoder, const ReencodeTarget& target);
    void encode(AVFrame& decoded, bool key, const Take& take);
    bool prepare(const AVFrame& decoded);

    const CodecPtr decoder_;
    const ReencodeTarget target_;
    const FramePtr decoded_;
    FramePtr scaled_;
    ScalerPtr scaler_;
    std::unique_ptr<VideoEncoder> encoder_;
};
