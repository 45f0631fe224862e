// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

class Channel;

// A timer that tells whose time has run out. Owned by its channel; main thread.
class ChannelSaveTimeout final : public QTimer
{
    Q_OBJECT

public:
    explicit ChannelSaveTimeout(Channel* channel = nullptr);

    void setChannel(Channel* channel) { channel_ = channel; }
    // Starts, or starts again, also from a slot of timeout(Channel*).
    void start(int ms);

signals:
    // Emitted before QTimer's own timeout(). A slot may restart the timer or destroy it.
    void timeout(Channel* channel);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    Channel* channel_;
    bool restarted_ = false; // since the running timeout(Channel*) began
};
