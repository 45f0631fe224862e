// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <vector>

// Short sequences as a device sends them, encoded in memory from pictures drawn here: for tests of
// what receives and decodes, and for measuring it.

constexpr quint16 clipH264 = 78; // the codec numbers of the frame information
constexpr quint16 clipH265 = 80;

enum class ClipProfile { // H.264 of 8-bit 4:2:0 only; the encoder picks all others by the form
    Baseline,
    Main,
    High,
};

enum class ClipForm { // of the samples
    Yuv420,
    Yuv420Of10Bits,
    Yuv422,
    Yuv444,
    Grey, // libavcodec's H.264 decoder gives it neutral colour planes
};

struct ClipColour // 8 bits each; brightness 16 to 235
{
    std::uint8_t y;
    std::uint8_t u;
    std::uint8_t v;
};

struct ClipSettings
{
    quint16 codec = clipH264;
    int width = 320; // H.265 needs 32 by 32 at least; 4:2:0 needs both even, 4:2:2 the width
    int height = 240;
    int count = 25; // pictures
    int framesPerSecond = 25;
    int kilobitsPerSecond = 500; // the mean that the encoder aims at
    int keyInterval = 25; // frames; key frames come at no other place
    ClipProfile profile = ClipProfile::High;
    int bFrames = 0; // between two others; not in the baseline
    bool interlaced = false; // H.264 from main up: coded as fields, the upper first
    ClipForm form = ClipForm::Yuv420;
    bool stamped = true; // 96 by 64 is the least that is read back in any coding
    std::uint32_t firstStamp = 0; // of the first picture; the next ones count up, 24 bits
    // The one colour of each picture, by its index, except for the stamp. Empty: a scene with much
    // detail, in which some things move and which has the noise of a camera.
    std::function<ClipColour(int index)> flat;
};

// One access unit in Annex B form; parameter sets stand before each key frame.
struct ClipFrame
{
    QByteArray bytes;
    quint16 codec;
    bool isKey;
    int index; // of its picture, from 0, in the order of showing; the stamp is firstStamp more
};

// In the order of decoding, one for each picture. The same settings give the same bytes, on machines
// of one kind. Blocks: a small clip takes some 10 ms, 50 pictures of 3840x2160 some seconds; memory
// is needed for the frames and a few dozen pictures. Ends the program with a message where the
// encoder refuses: the settings are wrong then. Any thread.
std::vector<ClipFrame> makeClip(const ClipSettings& settings);
