// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/stream.h"

#include "AVAPIs.h"
#include "media/audio.h"
#include "media/decode.h"
#include "media/video.h"
#include "model/events.h"
#include "store/deployment.h"

#include <array>
#include <chrono>
#include <cstring>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr int mostVideoBytes = 2304000; // of one compressed frame
constexpr int mostAudioBytes = 1024;
constexpr int firstNoPicture = 2; // frame flags from here on
constexpr int keyFrame = 1;
// What the decoder starts from; the stream tells it better.
constexpr int firstWidth = 352;
constexpr int firstHeight = 288;
constexpr int timeBaseDen = 4;

std::chrono::milliseconds pollPause()
{
    return Deployment::instance().decoder == Deployment::Decoder::LowDelay ? 5ms : 20ms;
}

// A copy with the zeros behind it that libavcodec's readers run into. `size` may be 0.
std::unique_ptr<char[]> padded(const char* bytes, int size)
{
    const auto count = static_cast<std::size_t>(size);
    std::unique_ptr<char[]> copy(new char[count + AV_INPUT_BUFFER_PADDING_SIZE]);
    std::memcpy(copy.get(), bytes, count);
    std::memset(copy.get() + count, 0, AV_INPUT_BUFFER_PADDING_SIZE);
    return copy;
}

// NOLINTNEXTLINE(readability-non-const-parameter): the form is libavutil's
void freeArray(void*, std::uint8_t* bytes)
{
    delete[] reinterpret_cast<char*>(bytes);
}

// A packet that owns `bytes`, as padded() makes them. Null where memory is short.
PacketPtr packetOf(std::unique_ptr<char[]> bytes, int size)
{
    PacketPtr packet(av_packet_alloc());
    if (!packet)
        return nullptr;
    auto* data = reinterpret_cast<std::uint8_t*>(bytes.get());
    const auto whole = static_cast<std::size_t>(size) + AV_INPUT_BUFFER_PADDING_SIZE;
    packet->buf = av_buffer_create(data, whole, freeArray, nullptr, 0);
    if (packet->buf == nullptr)
        return nullptr;
    packet->data = data;
    packet->size = size;
    static_cast<void>(bytes.release()); // the packet's now
    return packet;
}

bool isHandledSound(const MyFrameInfo_t& info)
{
    return info.codecId >= 136 && info.codecId <= 143;
}

} // namespace

Stream::Stream(Channel* channel, bool isLive, QObject* parent)
    : QObject(parent)
    , channel_(channel)
    , isLive_(isLive)
{
    if (channel_ != nullptr) {
        video_ = new Video(channel_, isLive_, this);
        audio_ = new Audio(this);
    }
    for (QTimer* timer : {&videoTimer_, &audioTimer_}) {
        timer->setSingleShot(true);
        timer->setInterval(pollPause());
    }
    connect(&videoTimer_, &QTimer::timeout, this, &Stream::getVideo);
    connect(&audioTimer_, &QTimer::timeout, this, &Stream::getAudio);
}

Stream::~Stream()
{
    stop();
    tasks_.waitForNone();
}

bool Stream::isIdle() const
{
    return !running_ && tasks_.isNone() && (video_ == nullptr || video_->isIdle());
}

int Stream::videoDecodedCount() const
{
    return video_ != nullptr ? video_->decodeCount : 0;
}

int Stream::audioPlayedCount() const
{
    return audio_ != nullptr ? audio_->playedCount : 0;
}

int Stream::volume() const
{
    return audio_ != nullptr ? audio_->volume() : 0;
}

void Stream::start()
{
    if (channel_ == nullptr)
        return;
    running_ = true;
    video_->setRunning();
    getVideo();
    audio_->setRunning();
    getAudio();
}

void Stream::stop()
{
    running_ = false;
    videoTimer_.stop();
    audioTimer_.stop();
    if (channel_ == nullptr)
        return;
    video_->stop();
    audio_->stop();
}

void Stream::setFrameRate(int rate)
{
    if (video_ != nullptr)
        video_->setFrameRate(rate);
}

void Stream::setVolume(int volume)
{
    if (audio_ != nullptr)
        audio_->setVolume(volume);
}

void Stream::resetDecodedCounts()
{
    if (channel_ == nullptr)
        return;
    video_->decodeCount = 0;
    audio_->playedCount = 0;
}

void Stream::getVideo()
{
    if (channel_ == nullptr)
        return;
    const int avIndex = channel_->mode(isLive_).avIndex;
    runTask(channel_, [this, avIndex, hold = tasks_.hold()] { receiveVideo(avIndex); });
}

void Stream::getAudio()
{
    if (channel_ == nullptr)
        return;
    const int avIndex = channel_->mode(isLive_).avIndex;
    runTask(channel_, [this, avIndex, hold = tasks_.hold()] { receiveAudio(avIndex); });
}

// One fetch, on a thread of the pool.
void Stream::receiveVideo(int avIndex)
{
    const std::lock_guard lock(videoMutex_);
    if (!running_)
        return;
    int result = avIndex;
    std::unique_ptr<char[]> frame;
    MyFrameInfo_t info{};
    if (avIndex >= 0) {
        if (!videoBuffer_)
            videoBuffer_.reset(new char[mostVideoBytes]);
        int actualSize = 0;
        int expectedSize = 0;
        int actualInfoSize = 0;
        result = avRecvFrameData2(avIndex, videoBuffer_.get(), mostVideoBytes, &actualSize,
            &expectedSize, reinterpret_cast<char*>(&info), AV_FRAME_INFO_BYTES, &actualInfoSize,
            &info.frameNumber);
        if (result >= 0)
            frame = padded(videoBuffer_.get(), result);
    }
    postResult(this, new DecodeEvent_getVideo(result, std::move(frame), info));
}

void Stream::receiveAudio(int avIndex)
{
    const std::lock_guard lock(audioMutex_);
    if (!running_)
        return;
    int result = avIndex;
    std::unique_ptr<char[]> frame;
    MyFrameInfo_t info{};
    if (avIndex >= 0) {
        result = avCheckAudioBuf(avIndex);
        std::array<char, mostAudioBytes> buffer{};
        if (result != 0)
            result = avRecvAudioData(avIndex, buffer.data(), mostAudioBytes,
                reinterpret_cast<char*>(&info), AV_FRAME_INFO_BYTES, &info.frameNumber);
        if (result > 0)
            frame = padded(buffer.data(), result);
    }
    postResult(this, new DecodeEvent_getAudio(result, std::move(frame), info));
}

void Stream::takeVideo(int result, std::unique_ptr<char[]> frame, const MyFrameInfo_t& info)
{
    if (!running_)
        return;
    if (result < 0) {
        videoTimer_.start();
        return;
    }
    getVideo(); // while this frame is being dealt with
    ++videoCount;
    if (info.flags >= firstNoPicture)
        return;
    if (!video_->isDecoderTried())
        video_->openDecoder(info, firstWidth, firstHeight, timeBaseDen);
    PacketPtr packet = packetOf(std::move(frame), result);
    startRecordOnKeyFrame(info);
    if (!packet)
        return;
    emit Decode::instance()->frameReceivedMsg(channel_);
    video_->pushPacket(std::move(packet), info);
}

// A recording begins with a key frame; nothing else waits for one.
void Stream::startRecordOnKeyFrame(const MyFrameInfo_t& info)
{
    ChannelMode& mode = channel_->mode(isLive_);
    if (mode.record && info.flags == keyFrame && !mode.recordStarted)
        mode.recordStarted = true;
}

void Stream::takeAudio(int result, std::unique_ptr<char[]> frame, const MyFrameInfo_t& info)
{
    if (!running_)
        return;
    if (result < 1) {
        audioTimer_.start();
        return;
    }
    getAudio();
    ++audioCount;
    if (!isHandledSound(info))
        return;
    if (PacketPtr packet = packetOf(std::move(frame), result))
        audio_->pushPacket(std::move(packet));
}

bool Stream::event(QEvent* event)
{
    switch (static_cast<int>(event->type())) {
    case DecodeEvent_getVideo::number: {
        auto& got = eventCast<DecodeEvent_getVideo>(event);
        takeVideo(got.result, std::move(got.buffer), got.info);
        return true;
    }
    case DecodeEvent_getAudio::number: {
        auto& got = eventCast<DecodeEvent_getAudio>(event);
        takeAudio(got.result, std::move(got.buffer), got.info);
        return true;
    }
    default:
        return QObject::event(event);
    }
}
