// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/taskcount.h"
#include "model/frameinfo.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>
#include <mutex>

class Audio;
class Channel;
class FrameResult;
class Video;

// One running picture and its sound: fetches compressed frames of a channel, live or replay, and
// feeds its Video and Audio. Child of Decode; main thread.
//
// Each fetch is a task on the pool whose result comes back as an event, which starts the next: at
// once after a frame, after a pause where there was none. The AV index is read afresh each time, so
// that a stream lives through a reconnect. Any failure of a fetch only leads to the pause.
class Stream final : public QObject
{
    Q_OBJECT

public:
    // `channel` is borrowed, and not touched after stop(); with null nothing is ever fetched.
    Stream(Channel* channel, bool isLive, QObject* parent);
    ~Stream() override;
    Q_DISABLE_COPY_MOVE(Stream)

    Channel* channel() const { return channel_; }
    bool isLive() const { return isLive_; }
    bool isRunning() const { return running_; }
    // Stopped, and no task of it is under way: it may be destroyed.
    bool isIdle() const;
    const Video* video() const { return video_; } // null without a channel
    int videoDecodedCount() const;
    int audioPlayedCount() const;
    int volume() const;

    // A second start of a running stream does no harm.
    void start();
    // Waits for the picture that is being decoded.
    void stop();
    // Passed on to Video and Audio.
    void setFrameRate(int rate);
    void setVolume(int volume);
    void resetDecodedCounts();

    bool event(QEvent* event) override;

    // Frames received since whoever counts has set them to 0.
    int videoCount = 0;
    int audioCount = 0;
    int silentSeconds = 0; // without a picture, up to now; as that count

public slots:
    void getVideo();
    void getAudio();

signals:
    void decodeSuccessMsg(Channel* channel, bool isLive, int width, int height, uint timestamp);
    void showImageFinishMsg(Channel* channel, uint timestamp);

private:
    void receiveVideo(int avIndex);
    void receiveAudio(int avIndex);
    void takeVideo(int result, std::unique_ptr<char[]> frame, const MyFrameInfo_t& info);
    void takeAudio(int result, std::unique_ptr<char[]> frame, const MyFrameInfo_t& info);
    void startRecordOnKeyFrame(const MyFrameInfo_t& info);

    // Set once.
    Channel* const channel_;
    const bool isLive_;
    Video* video_ = nullptr;
    Audio* audio_ = nullptr;

    QTimer videoTimer_; // main thread only
    QTimer audioTimer_;

    // Written by the main thread, looked at by tasks: a stale look costs one more round.
    std::atomic<bool> running_{true};

    // Held across one call of the layer, and for the buffer that it fills. The buffer is as large
    // as a frame may be; frames leave it at their own size.
    std::mutex videoMutex_;
    std::unique_ptr<char[]> videoBuffer_;
    std::mutex audioMutex_;

    TaskCount tasks_;
};
