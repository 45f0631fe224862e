// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/video.h"

#include "media/decode.h"
#include "model/events.h"
#include "store/deployment.h"

#include <QDebug>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using namespace std::chrono_literals;

namespace {

// The numbers of the frame information.
constexpr int linkH264 = 78;
constexpr int linkH265 = 80;

enum OpenResult {
    Opened = 0,
    NoDecoder = -4,
    UnknownCodec = -5,
    NoContext = -7,
    NotOpened = -8,
};

AVCodecID codecOf(const MyFrameInfo_t& info)
{
    if (info.codecId == linkH264)
        return AV_CODEC_ID_H264;
    return info.codecId == linkH265 ? AV_CODEC_ID_HEVC : AV_CODEC_ID_NONE;
}

QString nameOf(Channel* channel)
{
    return QStringLiteral("channel %1 of %2")
        .arg(channel->number() + 1)
        .arg(channel->device()->uid());
}

void describe(AVCodecContext& codec, int width, int height, int timeBaseDen)
{
    codec.time_base = {1, timeBaseDen};
    codec.width = width;
    codec.height = height;
    codec.bit_rate = 0;
    codec.codec_type = AVMEDIA_TYPE_VIDEO;
    codec.log_level_offset = AV_LOG_TRACE; // a bad line would fill the log with damaged frames
    codec.thread_count = 4;
    codec.thread_type = FF_THREAD_FRAME;
    // Each of those threads keeps one picture back; the flag makes libavcodec do without them.
    if (Deployment::instance().decoder == Deployment::Decoder::LowDelay)
        codec.flags |= AV_CODEC_FLAG_LOW_DELAY;
}

} // namespace

Video::Video(Channel* channel, bool isLive, QObject* parent)
    : QObject(parent)
    , channel_(channel)
    , isLive_(isLive)
    , name_(nameOf(channel))
    , picture_(av_frame_alloc())
{
}

Video::~Video()
{
    stop();
    tasks_.waitForNone();
}

int Video::waitingFrames() const
{
    const std::lock_guard lock(waitingMutex_);
    return static_cast<int>(waiting_.size());
}

int Video::openDecoder(const MyFrameInfo_t& info, int width, int height, int timeBaseDen)
{
    decoderTried_ = true;
    const AVCodecID id = codecOf(info);
    if (id == AV_CODEC_ID_NONE)
        return UnknownCodec;
    const AVCodec* kind = avcodec_find_decoder(id);
    if (kind == nullptr)
        return NoDecoder;
    const std::lock_guard lock(decodeMutex_);
    codec_.reset(avcodec_alloc_context3(kind));
    if (!codec_ || !picture_) {
        codec_.reset();
        return NoContext;
    }
    describe(*codec_, width, height, timeBaseDen);
    av_opt_set(codec_->priv_data, "preset", "ultrafast", 0);
    // A context that did not open stays: every frame then fails in it, until the next stop.
    return avcodec_open2(codec_.get(), kind, nullptr) < 0 ? NotOpened : Opened;
}

void Video::pushPacket(PacketPtr packet, const MyFrameInfo_t& info)
{
    if (!running_)
        return;
    Frame frame{std::move(packet), info, Clock::now()};
    {
        const std::lock_guard lock(waitingMutex_);
        if (makeRoom(frame)) {
            waitingBytes_ += frame.size();
            waiting_.push_back(std::move(frame));
            if (!std::exchange(taskStarted_, true))
                startTask();
        }
    }
    if (leftOutFrames_ != toldLeftOut_)
        tellLeftOut();
}

// Whether the next frame may wait. Where the decoder is too far behind, what waits goes, up to the
// newest key frame. The caller holds waitingMutex_, as for the next three.
bool Video::makeRoom(const Frame& next)
{
    if (!awaitsKey_ || next.isKey()) {
        awaitsKey_ = false;
        if (fits(next))
            return true;
        leaveOutBefore(next.isKey() ? waiting_.end() : newestKey());
        if (fits(next) && (next.isKey() || !waiting_.empty()))
            return true;
        leaveOutBefore(waiting_.end());
        awaitsKey_ = true;
    }
    ++leftOutFrames_;
    return false;
}

bool Video::fits(const Frame& next) const
{
    return waiting_.empty()
        || (next.received - waiting_.front().received <= longestWait
            && waiting_.size() < mostWaitingFrames
            && waitingBytes_ + next.size() <= mostWaitingBytes);
}

// The end where there is none.
Video::Queue::iterator Video::newestKey()
{
    const auto key = std::find_if(
        waiting_.rbegin(), waiting_.rend(), [](const Frame& frame) { return frame.isKey(); });
    return key == waiting_.rend() ? waiting_.end() : std::prev(key.base());
}

void Video::leaveOutBefore(const Queue::iterator& end)
{
    for (auto frame = waiting_.begin(); frame != end; ++frame) {
        waitingBytes_ -= frame->size();
        ++leftOutFrames_;
    }
    waiting_.erase(waiting_.begin(), end);
}

// At most once a minute: a machine that is too slow is so all the time.
void Video::tellLeftOut()
{
    constexpr std::chrono::milliseconds pause = 1min;
    if (lastTold_.isValid() && !lastTold_.hasExpired(pause.count()))
        return;
    qWarning("decoding of %s is too slow: %d frames left out", qPrintable(name_),
        leftOutFrames_ - toldLeftOut_);
    toldLeftOut_ = leftOutFrames_;
    lastTold_.start();
}

// Main thread or the task before; the caller holds waitingMutex_.
void Video::startTask()
{
    runTask(channel_, [this, hold = tasks_.hold()] { decodeNext(); });
}

void Video::decodeNext()
{
    {
        const std::lock_guard lock(decodeMutex_);
        if (const Frame frame = takeFirst(); frame.packet && codec_)
            decode(frame);
    }
    const std::lock_guard lock(waitingMutex_);
    taskStarted_ = !waiting_.empty();
    if (taskStarted_)
        startTask();
}

// Without a packet when a stop has emptied the queue.
Video::Frame Video::takeFirst()
{
    const std::lock_guard lock(waitingMutex_);
    if (waiting_.empty())
        return {};
    Frame first = std::move(waiting_.front());
    waiting_.pop_front();
    waitingBytes_ -= first.size();
    return first;
}

// One frame, the decode mutex held.
void Video::decode(const Frame& frame)
{
    const Result result = decodePicture(frame.packet.get());
    const bool shown = result == Decoded;
    postResult(this,
        new VideoEvent_decoede(channel_, isLive_, result, shown ? picture_->width : 0,
            shown ? picture_->height : 0, frame.info.timestamp));
    av_frame_unref(picture_.get());
}

Video::Result Video::decodePicture(AVPacket* packet)
{
    if (avcodec_send_packet(codec_.get(), packet) < 0)
        return NotTaken;
    const int result = avcodec_receive_frame(codec_.get(), picture_.get());
    if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
        return NeedsMore;
    return result < 0 ? NotDecoded : showPicture();
}

Video::Result Video::showPicture()
{
    ChannelMode& mode = channel_->mode(isLive_);
    std::uint8_t* buffer = mode.yuvBuffer.load(std::memory_order_acquire);
    if (buffer == nullptr) {
        buffer = new std::uint8_t[yuvBufferBytes];
        mode.yuvBuffer.store(buffer, std::memory_order_release);
    }
    const PictureCopy copy = copyPicture(*picture_, buffer);
    if (copy != PictureCopy::Done) {
        tellUnshown(copy);
        return NotShown;
    }
    mode.pictureSize = QSize(picture_->width, picture_->height);
    return Decoded;
}

void Video::tellUnshown(PictureCopy reason)
{
    if (unshownPictures_ == 0) {
        const char* format = av_get_pix_fmt_name(static_cast<AVPixelFormat>(picture_->format));
        qWarning("pictures of %s, %d x %d, %s, are not shown: %s", qPrintable(name_),
            picture_->width, picture_->height, format != nullptr ? format : "unknown format",
            reason == PictureCopy::TooLarge ? "too large" : "not of brightness and colour");
    }
    unshownPictures_ = unshownPictures_ + 1;
}

void Video::decoded(int result, int width, int height, unsigned timestamp)
{
    if (!running_ || result < 0)
        return;
    ++decodeCount;
    emit Decode::instance()->decodeSuccess(channel_, isLive_, width, height, timestamp);
}

void Video::stop()
{
    const std::lock_guard lock(decodeMutex_);
    running_ = false;
    decoderTried_ = false;
    awaitsKey_ = false;
    codec_.reset();
    const std::lock_guard waitingLock(waitingMutex_);
    waiting_.clear();
    waitingBytes_ = 0;
}

bool Video::event(QEvent* event)
{
    switch (static_cast<int>(event->type())) {
    case VideoEvent_decoede::number: {
        const auto& result = eventCast<VideoEvent_decoede>(event);
        decoded(result.result, result.width, result.height, result.timestamp);
        return true;
    }
    case VideoEvent_screenShot::number: {
        const auto& shot = eventCast<VideoEvent_screenShot>(event);
        emit Decode::instance()->screenshotMsg(shot.channel, shot.isPlaceholder, shot.path);
        return true;
    }
    default:
        return QObject::event(event);
    }
}
