// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The bytes of the messages that a device sends on the control channel. Pure. Their type numbers
// stand in messages.h.

// A status word: 0 is success, but 1 in the answer about a time zone.
std::string statusAnswer(int status);
std::string recordModeAnswer(int channel, int mode);
// A list of recordings that has none and ends here.
std::string noRecordsAnswer(int channel);
std::string qualityAnswer(int channel, bool high);
std::string sensitivityAnswer(int channel, int percent);
std::string replayTimeAnswer(int status);
// As many networks as a message holds, 28; the rest is left out.
std::string wifiListAnswer(const std::vector<std::string>& names);
// Texts are cut to 31 bytes, so that each ends with a zero.
std::string wifiAnswer(const std::string& name, const std::string& password);
std::string ptzAnswer(int cruise);
// The text is cut to 63 bytes.
std::string versionAnswer(const std::string& version);
std::string rotateAnswer(int mode);
std::string smartModeAnswer(int mode);
