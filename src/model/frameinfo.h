// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

// What travels with a compressed frame: the 16 bytes that the device sends, little endian, as
// avRecvFrameData2 and avRecvAudioData write them, then the library's frame number.
struct MyFrameInfo_t
{
    std::uint16_t codecId; // video: 78 H.264, 80 H.265; sound: 136 to 143
    std::uint8_t flags; // video: 0 predicted frame, 1 key frame, from 2 on no picture
    std::uint8_t cameraIndex;
    std::uint8_t onlineCount;
    std::uint8_t reserved[3];
    std::uint32_t reserved2;
    std::uint32_t timestamp; // replay: seconds since 1970
    std::uint32_t frameNumber; // counts up by one per frame sent
    std::uint32_t unused[2];
};

static_assert(sizeof(MyFrameInfo_t) == 28);
static_assert(offsetof(MyFrameInfo_t, flags) == 2);
static_assert(offsetof(MyFrameInfo_t, timestamp) == 12);
static_assert(offsetof(MyFrameInfo_t, frameNumber) == 16);
