// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

// The microphone of talk-back: one for all channels whose `speaking` is set. Singleton, main thread;
// lives to the end of the process. Failures are lines of the log: the link stays up without sound.
//
// It captures nothing yet, and says so. Virtual so that a test of the link can look on: the first
// object is the singleton.
class AudioSend : public QObject
{
    Q_OBJECT

public:
    static AudioSend* instance();

    AudioSend();
    ~AudioSend() override;
    Q_DISABLE_COPY_MOVE(AudioSend)

public slots:
    // May be called again while it runs, or does not. A stop for one channel ends it for all.
    virtual void start();
    virtual void stop();
};
