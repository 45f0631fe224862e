// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <cstdint>
#include <string>

// What every clip is: 1280x720, H.264 of 2 Mb/s without pictures that refer to later ones, a key
// picture about every 2 s, the scene of a camera with its noise. Stamps count the pictures, in clip
// k from k times clipFrames on.
constexpr int clipFramesPerSecond = 25;
constexpr std::uint32_t clipFrames = 500;

// Writes `count` of them into `folder`, as MP4. Empty: `error` tells why. Some seconds for each.
QStringList writeClips(const QString& folder, int count, std::string& error);
