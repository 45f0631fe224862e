// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ffmpegowners.h"
#include "media/taskcount.h"
#include "media/yuvpicture.h"
#include "model/frameinfo.h"
#include "model/relaxed.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <chrono>
#include <cstddef>
#include <deque>
#include <mutex>

class Channel;

// The decoder of a stream: compressed frames in, pictures into the channel's YUV buffer, and the
// signal decodeSuccess of `Decode` for each. Child of its Stream; main thread.
//
// Each frame is one task on the pool, which holds the decode mutex. Tasks start one after the other,
// so frames are decoded in the order of arrival and no thread of the pool waits for another. What
// waits is bounded: past that, frames are left out up to a key frame, and counted.
//
// Failures are silent: a frame that cannot be decoded gives no signal, and the next ones are tried.
// A picture that cannot be shown is counted and told once in the log.
class Video final : public QObject
{
    Q_OBJECT

public:
    // `channel` is borrowed, and not touched after stop().
    Video(Channel* channel, bool isLive, QObject* parent);
    ~Video() override;
    Q_DISABLE_COPY_MOVE(Video)

    bool isDecoderTried() const { return decoderTried_; }
    bool isIdle() const { return tasks_.isNone(); } // no task is under way
    int frameRate() const { return frameRate_; } // frames received in the last whole second
    int waitingFrames() const; // received and not yet taken by the decoder
    // Since construction.
    int leftOutFrames() const { return leftOutFrames_; } // because decoding was too slow
    int unshownPictures() const { return unshownPictures_; } // too large, or of a strange format

    void setRunning() { running_ = true; } // after a stop: frames are taken again
    void setFrameRate(int rate) { frameRate_ = rate; }

    // Opens the decoder that the frame names; what follows is decoded by it until stop(). Width and
    // height are the first guess, the time base is 1/timeBaseDen. 0, or -4 no decoder, -5 unknown
    // codec, -7 no memory, -8 the decoder does not open: then frames go unseen until the next stop.
    int openDecoder(const MyFrameInfo_t& info, int width, int height, int timeBaseDen);

    // Takes one frame. It is dropped while stopped.
    void pushPacket(PacketPtr packet, const MyFrameInfo_t& info);

    // Waits for the picture that is being decoded. Frames that wait are dropped.
    void stop();

    bool event(QEvent* event) override;

    int decodeCount = 0; // pictures since whoever counts has set it to 0

    // How much may wait. A frame that has waited for so long shows that the decoder does not keep up.
    // What comes at once, as at the start, is at most what the link layer holds: 256 frames, 8 MiB.
    static constexpr std::chrono::seconds longestWait{2};
    static constexpr std::size_t mostWaitingFrames = 300;
    static constexpr std::size_t mostWaitingBytes = std::size_t{8} * 1024 * 1024;

private:
    using Clock = std::chrono::steady_clock;

    struct Frame
    {
        PacketPtr packet;
        MyFrameInfo_t info;
        Clock::time_point received;
        bool isKey() const { return info.flags == 1; }
        std::size_t size() const { return static_cast<std::size_t>(packet->size); }
    };

    enum Result {
        Decoded = 0,
        NeedsMore = -2,
        NotShown = -6,
        NotTaken = -9,
        NotDecoded = -10,
    };

    using Queue = std::deque<Frame>;

    bool makeRoom(const Frame& next);
    bool fits(const Frame& next) const;
    Queue::iterator newestKey();
    void leaveOutBefore(const Queue::iterator& end);
    void tellLeftOut();
    void startTask();
    void decodeNext();
    Frame takeFirst();
    void decode(const Frame& frame);
    Result decodePicture(AVPacket* packet);
    Result showPicture();
    void tellUnshown(PictureCopy reason);
    void decoded(int result, int width, int height, unsigned timestamp);

    // Set once.
    Channel* const channel_;
    const bool isLive_;
    const QString name_; // of the channel, for the log

    // Main thread only.
    bool running_ = true;
    bool decoderTried_ = false;
    bool awaitsKey_ = false; // frames were left out, the next ones build on them
    int frameRate_ = 20;
    int leftOutFrames_ = 0;
    QElapsedTimer lastTold_; // of frames left out
    int toldLeftOut_ = 0;

    // Guarded by waitingMutex_, which is held for moments only.
    mutable std::mutex waitingMutex_;
    Queue waiting_;
    std::size_t waitingBytes_ = 0;
    bool taskStarted_ = false; // one is on its way, and starts the next

    // Guarded by decodeMutex_, which a task holds while it decodes.
    std::mutex decodeMutex_;
    CodecPtr codec_;
    FramePtr picture_;

    Relaxed<int> unshownPictures_{0}; // written under decodeMutex_

    TaskCount tasks_;
};
