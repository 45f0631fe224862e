// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

class Channel;
class Device;
class Stream;

// The manager of the streams: one Stream for each channel and mode that runs, and their counts,
// each second. Singleton, main thread; lives to the end of the process.
//
// removeStream is virtual so that a test of the link can look on: the first object is the singleton.
class Decode : public QObject
{
    Q_OBJECT

public:
    static Decode* instance();

    Decode();
    ~Decode() override; // waits for tasks of its streams
    Q_DISABLE_COPY_MOVE(Decode)

    // In the order of their first start. Stopped ones stay until they are removed.
    const QList<Stream*>& streams() const { return streams_; }

    // Ends the channel's stream of this mode, where it has one. No frame is taken after that.
    virtual void removeStream(Channel* channel, bool isLive);

    // 0 to 150, percent: of all streams that there are.
    void setVolume(int volume);
    int getVolume() const { return volume_; }

public slots:
    void stopAllStream();
    void stopStream(Stream* stream);
    // Start the channel's stream; one that runs is started again.
    void createLiveStream(Channel* channel);
    void createReplayStream(Channel* channel);
    // Tells and clears the counts.
    void reset();

signals:
    // The next frame of the channel goes to the decoder: its picture will replace the one that
    // stands in the YUV buffer. The frame waits for its slots: a tile may paint that picture first.
    void frameReceivedMsg(Channel* channel);
    // A new picture stands in the channel's YUV buffer.
    void decodeSuccess(Channel* channel, bool isLive, int width, int height, uint timestamp);
    // Of the second that has just ended.
    void decodeCountMsg(
        Channel* channel, int videoReceived, int audioReceived, int videoDecoded, int audioPlayed);
    // A live stream has brought no frame for six seconds: its device has dropped out, or its camera.
    // Then: it brings frames again.
    void streamSilentMsg(Channel* channel);
    void streamBackMsg(Channel* channel);
    void screenshotMsg(Channel* channel, bool isPlaceholder, const QString& path);
    void showImageFinishMsg(Channel* channel, uint timestamp);

private:
    void createStream(Channel* channel, bool isLive);
    void watch(Stream* stream);
    void removeDevice(const Device* device);
    void removeAt(int index);
    void destroyLeft();

    QList<Stream*> streams_;
    QList<Stream*> left_; // stopped and out of the list, perhaps with a task under way
    int volume_ = 100;
    QTimer countTimer_;
};
