// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Channel;

// What the firmware of a device can do, by the version text that it sent. Any thread.

// The text of the version block; empty until the device has answered.
QString firmwareVersion(const Channel& channel);

// Whether a running replay can be moved to another time. True for no channel.
bool firmwareCanSeek(const Channel* channel);
// Whether a paused replay goes on by a start, and not by a second pause. True for no channel.
bool firmwareResumesByStart(const Channel* channel);
