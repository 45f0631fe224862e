// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class Channel;

// Notes when frames and pictures of live streams pass two points of the client: the frame has been
// fetched from the link layer, and its picture stands in the channel's buffer. For pictures that
// carry a stamp. Main thread; made after Decode, and before the streams.
class PictureTimes final : public QObject
{
    Q_OBJECT

public:
    PictureTimes();

    // What was noted so far, a line each:
    //   fetched CHANNEL MARK TIME    the mark of frameMark()
    //   decoded CHANNEL STAMP TIME
    // Times are microseconds of the monotonic clock. False when the file cannot be written.
    bool write(const QString& path) const;

    bool eventFilter(QObject* stream, QEvent* event) override;

private:
    void watchStreams();
    void notePicture(Channel* channel, int width, int height);
    void note(const char* what, int channel, quint64 which);

    QByteArray lines_;
};
