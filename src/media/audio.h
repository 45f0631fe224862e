// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ffmpegowners.h"

#include <QObject>

// The sound of a stream. Child of its Stream; main thread.
//
// It plays nothing yet: sound is received, counted and dropped here.
class Audio final : public QObject
{
    Q_OBJECT

public:
    explicit Audio(QObject* parent);

    void setRunning() { running_ = true; } // after a stop: frames are taken again
    void setVolume(int volume) { volume_ = volume; } // 0 to 150, percent
    int volume() const { return volume_; }

    // Takes one frame. It is dropped while stopped.
    void pushPacket(PacketPtr packet);
    void stop() { running_ = false; }

    int playedCount = 0; // frames since whoever counts has set it to 0

private:
    bool running_ = true;
    int volume_ = 100;
};
