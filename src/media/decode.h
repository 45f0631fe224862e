// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class Channel;

// The manager of the streams. Singleton, main thread; lives to the end of the process.
//
// It makes no streams yet; it is where the device link tells that one ends. Virtual so that a test
// of the link can look on: the first object is the singleton.
class Decode : public QObject
{
    Q_OBJECT

public:
    static Decode* instance();

    Decode();
    ~Decode() override;
    Q_DISABLE_COPY_MOVE(Decode)

    // Ends the channel's stream of this mode, where it has one. No frame is taken after that.
    virtual void removeStream(Channel* channel, bool isLive);
};
