// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clip.h"
#include "mediatest.h"
#include "watches.h"

#include <QByteArray>
#include <QSize>

#include <memory>
#include <optional>
#include <vector>

// What a decoder should make of one frame.
struct DecodedFrame
{
    int result = 0; // as in the events of Video
    QSize size;
    QByteArray picture; // as in the YUV buffer
};

// The same done by libavcodec alone, with the settings that the decoder has, one picture asked for
// for each frame, and each sample converted by itself.
std::vector<DecodedFrame> decodeByItself(const std::vector<ClipFrame>& frames);

// The last picture among them.
const DecodedFrame& lastPicture(const std::vector<DecodedFrame>& frames);

// A picture in the form of the YUV buffer, each sample read by itself.
QByteArray tightPicture(const AVFrame& frame);

// What stands in the channel's YUV buffer; empty where there is none.
QByteArray pictureIn(const ChannelMode& mode);
std::optional<std::uint32_t> stampIn(const ChannelMode& mode);

// A decoder by itself, which no stream feeds. Lives within one test function.
//
//     VideoTest t;
//     t.openFor(clip.front());
//     QVERIFY(t.show(clip));
//     QCOMPARE(t.picture(), lastPicture(decodeByItself(clip)).picture);
class VideoTest final
{
public:
    explicit VideoTest(bool isLive = true);
    ~VideoTest();
    Q_DISABLE_COPY_MOVE(VideoTest)

    ChannelMode& mode() const { return media.channel()->mode(isLive); }
    QByteArray picture() const { return pictureIn(mode()); }

    int openFor(const ClipFrame& frame) const;
    // The timestamp is the frame's place in its clip.
    void push(const ClipFrame& frame) const;
    void push(const std::vector<ClipFrame>& frames) const;
    // One after the other, each decoded before the next comes. False where a task hangs.
    [[nodiscard]] bool show(const std::vector<ClipFrame>& frames) const;
    [[nodiscard]] bool settle() const { return media.settle(); }

    const bool isLive;
    MediaTest media;
    ResultWatch results;
    std::unique_ptr<Video> video;
};

ClipSettings smallClip(quint16 codec = clipH264, int count = 12, int keyInterval = 12);
MyFrameInfo_t infoOf(const ClipFrame& frame);
PacketPtr packetOf(const QByteArray& bytes);
