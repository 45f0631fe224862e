// SPDX-License-Identifier: GPL-3.0-or-later
#include "channelwatch.h"

#include "device/linkframe.h"

#include <algorithm>

using Clock = std::chrono::steady_clock;

std::string hexOf(std::string_view bytes)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text.push_back(digits[value >> 4]);
        text.push_back(digits[value & 15]);
    }
    return text;
}

nlohmann::json ChannelTotals::json() const
{
    return {{"frames", frames}, {"missing", missing}, {"slowestFirstKeyMs", slowestFirstKeyMs},
        {"delayMs", percentiles(delaysMs)}, {"errors", errors.json()}};
}

ChannelWatch::ChannelWatch(ClientChannel channel, const ProbeOptions& options)
    : channel_(std::move(channel))
    , options_(options)
    , buffer_(LinkFrame::maxBytes)
    , pictures_(options.stamp)
{
}

void ChannelWatch::start()
{
    if (options_.highQuality)
        countResult(channel_.setQuality(*options_.highQuality));
    started_ = Clock::now();
    countResult(channel_.startVideo());
    if (options_.sound)
        countResult(channel_.startSound());
}

bool ChannelWatch::receive()
{
    const bool video = receiveVideo();
    const bool sound = options_.sound && receiveSound();
    const bool message = receiveMessage();
    return video || sound || message;
}

bool ChannelWatch::receiveVideo()
{
    char info[AV_FRAME_INFO_BYTES] = {};
    unsigned int number = 0;
    const int size = avRecvFrameData2(channel_.index(), buffer_.data(),
        static_cast<int>(buffer_.size()), nullptr, nullptr, info, sizeof info, nullptr, &number);
    if (size >= 0)
        countFrame(info, {buffer_.data(), static_cast<std::size_t>(size)}, number);
    else if (size != AV_NOTHING_READY)
        countResult(size);
    return size >= 0;
}

bool ChannelWatch::receiveSound()
{
    char info[AV_FRAME_INFO_BYTES] = {};
    unsigned int number = 0;
    const int size = avRecvAudioData(channel_.index(), buffer_.data(),
        static_cast<int>(buffer_.size()), info, sizeof info, &number);
    if (size >= 0)
        ++soundFrames_;
    else if (size != AV_NOTHING_READY)
        countResult(size);
    return size >= 0;
}

bool ChannelWatch::receiveMessage()
{
    unsigned int type = 0;
    const int size =
        avRecvIOCtrl(channel_.index(), &type, buffer_.data(), static_cast<int>(buffer_.size()), 0);
    if (size >= 0)
        ++messages_;
    else if (size != AV_NO_ANSWER)
        countResult(size);
    return size >= 0;
}

void ChannelWatch::countFrame(const char* info, std::string_view bytes, unsigned int number)
{
    const auto now = Clock::now();
    ++frames_;
    bytes_ += static_cast<long>(bytes.size());
    if (info[2] == 1) {
        ++keyFrames_;
        if (!firstKeyMs_)
            firstKeyMs_ = std::chrono::duration<double, std::milli>(now - started_).count();
    }
    if (lastNumber_) {
        const auto step = static_cast<int>(number - *lastNumber_);
        missing_ += step > 1 ? step - 1 : 0;
        outOfOrder_ += step < 1 ? 1 : 0;
    }
    lastNumber_ = number;
    if (options_.stamp != StampCheck::None)
        pictures_.take(static_cast<unsigned char>(info[0]), bytes, now);
}

void ChannelWatch::countResult(int result)
{
    if (result < 0)
        errors_.add(result);
}

nlohmann::json ChannelWatch::json() const
{
    nlohmann::json json = {{"channel", channel_.number()}, {"frames", frames_},
        {"keyFrames", keyFrames_}, {"bytes", bytes_}, {"missing", missing_},
        {"outOfOrder", outOfOrder_}, {"soundFrames", soundFrames_}, {"messages", messages_},
        {"firstKeyMs", nullptr}, {"errors", errors_.json()}};
    if (firstKeyMs_)
        json["firstKeyMs"] = *firstKeyMs_;
    if (options_.stamp != StampCheck::None)
        json["stamps"] = pictures_.json();
    if (options_.stamp == StampCheck::Time)
        json["delayMs"] = percentiles(pictures_.delaysMs());
    return json;
}

void ChannelWatch::addTo(ChannelTotals& totals) const
{
    totals.frames += frames_;
    totals.missing += missing_;
    totals.slowestFirstKeyMs = std::max(totals.slowestFirstKeyMs, firstKeyMs_.value_or(0));
    totals.errors.add(errors_);
    const auto& delays = pictures_.delaysMs();
    totals.delaysMs.insert(totals.delaysMs.end(), delays.begin(), delays.end());
}
