// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediatest.h"

#include "cloud/dev.h"
#include "freshlayer.h"
#include "model/channelhold.h"

#include <QCoreApplication>
#include <QThreadPool>

bool settleTasks(Channel* channel)
{
    Deliveries deliveries;
    do {
        deliveries.count = 0;
        constexpr int patienceMs = 20000;
        if (!QThreadPool::globalInstance()->waitForDone(patienceMs))
            return false;
        // The thread sanitizer does not see that tasks have ended, but that they let their channel go.
        const ChannelHold afterTheTasks(channel);
        QCoreApplication::sendPostedEvents();
    } while (deliveries.count > 0);
    return true;
}

MediaTest::MediaTest(int channelCount)
    : link(freshLink())
    , io(IoConnect::instance())
    , decode(std::make_unique<Decode>())
    , device(new Device)
{
    QObject::disconnect(io.get(), nullptr, &viewControl, nullptr); // no wall opens and closes here
    qRegisterMetaType<Channel*>("Channel*");
    device->setUid(QStringLiteral("ABCDEFGHIJ0123456789"));
    device->setChannelCount(channelCount);
    if (!settle())
        qFatal("the layer does not come up");
    link.openChannel(link.openSession());
    device->sid = link.openSession();
    for (int i = 0; i < channelCount; ++i) {
        channel(i)->mode(true).avIndex = link.openChannel(device->sid, 2 * i);
        channel(i)->mode(false).avIndex = link.openChannel(device->sid, 2 * i + 1);
    }
    QObject::connect(decode.get(), &Decode::decodeSuccess, decode.get(),
        [this](Channel* channel, bool isLive, int width, int height, uint timestamp) {
            shown.push_back({channel, isLive, width, height, timestamp});
        });
    QObject::connect(decode.get(), &Decode::decodeCountMsg, decode.get(),
        [this](Channel* channel, int videoReceived, int audioReceived, int videoDecoded,
            int audioPlayed) {
            counted.push_back({channel, videoReceived, audioReceived, videoDecoded, audioPlayed});
        });
}

MediaTest::~MediaTest()
{
    link.reset();
    if (decode)
        decode->stopAllStream();
    if (!settleTasks(nullptr))
        qFatal("a task does not end");
    decode.reset();
    io.reset();
    QThreadPool::globalInstance()->waitForDone(); // the layer goes down by a task
    link.reset();
    device.reset();
    QCoreApplication::sendPostedEvents();
}

Stream* MediaTest::stream(bool isLive, int number) const
{
    for (Stream* stream : decode->streams()) {
        if (stream->channel() == channel(number) && stream->isLive() == isLive)
            return stream;
    }
    return nullptr;
}

Stream* MediaTest::start(bool isLive, int number) const
{
    if (isLive)
        emit io->videoRequestSuccessMsg(channel(number));
    else
        emit io->startReplaySuccessMsg(channel(number));
    return stream(isLive, number);
}

void MediaTest::queueVideo(const QByteArray& frame, const LinkFrameInfo& info, bool isLive) const
{
    link.queueVideo(avIndex(isLive), frame, info);
}

void MediaTest::queueSound(const QByteArray& frame, quint16 codec, bool isLive) const
{
    link.queueSound(avIndex(isLive), frame, {codec, 0, 0});
}

bool MediaTest::settle() const
{
    return settleTasks(device ? channel() : nullptr);
}

bool MediaTest::fetch(bool isLive) const
{
    stream(isLive)->getVideo();
    return settle();
}

void MediaTest::removeDevice()
{
    emit Dev::instance()->deleteDevMsg(device.get());
    device.reset();
}
