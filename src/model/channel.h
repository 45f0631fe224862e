// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channelsavetimeout.h"
#include "model/relaxed.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QSize>

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>

class Device;
class GlWidgetViewWindow;

// The half of a channel that exists twice, once for live view and once for replay.
struct ChannelMode
{
    ChannelMode() = default;
    ~ChannelMode() { delete[] yuvBuffer.load(); }
    Q_DISABLE_COPY_MOVE(ChannelMode)

    // Shared with worker threads without a lock.
    Relaxed<int> avIndex{-1}; // AV channel of the library, negative when not started
    Relaxed<bool> highQuality{false}; // as the device last reported it; live only
    Relaxed<bool> waiting{false}; // a stream was asked for and no picture came yet
    Relaxed<bool> open{false}; // the user wants the channel on the wall in this mode
    Relaxed<bool> playing{false}; // the device has accepted the stream request
    Relaxed<bool> screenshot{false}; // take a snapshot of the next frame
    Relaxed<bool> record{false}; // written through Channel::setRecord
    Relaxed<bool> recordStarted{false}; // recording has seen its first key frame
    Relaxed<bool> audioOn{false};

    // Written once, by the first decode task (release), read by the tile (acquire); the pixels
    // have no lock, and torn pictures are accepted. Made with new[], freed with the channel.
    std::atomic<std::uint8_t*> yuvBuffer{nullptr};
    Relaxed<QSize> pictureSize{QSize(0, 0)}; // of the picture in it, pixels; fits the buffer

    // Recorder and decoder tasks only, under the locks of the stream.
    int recordCodec = 0;
    int recordAudioOpen = 0;
    int recordAudioStream = 0;
    QString recordFile; // empty when none is open
    QByteArray pcmBuffer; // sound held back for the recorder

    // Main thread only.
    std::unique_ptr<ChannelSaveTimeout> recordTimer; // exists only while recording
};

// One video input of a device, and all that belongs to it: a plain record, owned by its Device,
// passed around as a pointer. Built and destroyed on the main thread. `isLive` selects the half:
// true is live view, false is remote playback.
//
// Fields without a mark are the main thread's. A task copies the texts and times that it needs
// when it is started; the Relaxed ones it may read and write at any time. A pointer that goes
// into a task or an event goes as a ChannelHold, which keeps the device alive.
class Channel
{
public:
    // The first 64 bytes of the version message.
    using VersionBlock = std::array<char, 64>;

    // `number` is the index within the device, from 0, and the channel number in every
    // IO-control message.
    Channel(Device* device, int number);
    ~Channel();
    Q_DISABLE_COPY_MOVE(Channel)

    Device* device() const { return device_; }
    int number() const { return number_; }
    ChannelMode& mode(bool isLive) { return isLive ? live_ : replay_; }
    const ChannelMode& mode(bool isLive) const { return isLive ? live_ : replay_; }

    // Switches recording and forgets the key frame of the recording before. Any thread.
    void setRecord(bool on, bool isLive);

    // The single time-out of the channel's commands, 20 seconds: a second command restarts it.
    ChannelSaveTimeout* ioTimer() { return &ioTimer_; }
    void startIoTimer();
    void stopIoTimer();

    // The segment timer of a recording, single shot; a running one is replaced.
    void setRecordTimer(int ms, bool isLive);
    void removeRecordTimer(bool isLive);

    // Keeps the first 64 bytes of `message`, which must have as many. The block is replaced
    // whole, never written to: a task that holds the old one may go on reading it.
    void setVersion(const void* message);
    // Null until the device has answered. Any thread.
    std::shared_ptr<const VersionBlock> version() const;

    // The replay time list of `videoTimeDate`; an entry is seconds since local midnight, length
    // in seconds, start in seconds since the epoch, event type.
    void addVideoTime(const QList<int>& block) { videoTimes_.append(block); }
    void clearVideoTimes() { videoTimes_.clear(); }
    const QList<QList<int>>& videoTimes() const { return videoTimes_; }

    // Removes `count` bytes, at most all, from the front of the held-back sound; called by the
    // one task that holds the stream's lock.
    void consumePcm(int count, bool isLive);
    int pcmCount(bool isLive) const { return mode(isLive).pcmBuffer.size(); }

    GlWidgetViewWindow* tile = nullptr; // the tile that shows the channel; ViewControl writes it
    QDateTime replayTime; // base of all replay offsets
    QDate videoTimeDate;
    bool videoTimeLoaded = false; // a list has come at some time; never cleared
    int ptzState = 0; // first word of the PTZ state message
    bool connectingChannel = false; // a connect of the live AV channel is under way
    Relaxed<int> replayOffset{0}; // seconds to seek after the start
    Relaxed<bool> replayPending{false}; // a time list was asked for and is not used up
    Relaxed<bool> replayPaused{false}; // by the user, not by a change of mode

    // Talk-back.
    Relaxed<bool> speaking{false};
    Relaxed<int> talkIndex{-1}; // AV server index
    Relaxed<int> speechChannel{-1}; // given to the device; 31 once talk-back was requested
    int talkPacket = 0;
    std::shared_ptr<void> talkBuffers; // the sender's working buffers, of its own type

private:
    Device* const device_;
    const int number_;
    ChannelSaveTimeout ioTimer_;
    std::shared_ptr<const VersionBlock> version_; // atomic access only
    QList<QList<int>> videoTimes_;
    ChannelMode live_;
    ChannelMode replay_;
};

Q_DECLARE_METATYPE(Channel*)
