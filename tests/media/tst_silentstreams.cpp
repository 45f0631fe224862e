// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediatest.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>

// Live streams that bring nothing any more, by the counts of each second.
class TestSilentStreams final : public QObject
{
    Q_OBJECT

private slots:
    void silentLiveStreamIsToldOnceAfterSixSeconds();
    void streamThatBringsFramesIsNotTold();
    void shortSilencesAreNotTold();
    void streamThatComesBackIsToldOnce();
    void streamThatFallsSilentAgainIsToldAgain();
    void soundAloneIsNoPicture();
    void replayIsNeverTold();
    void stoppedStreamIsNotTold();
    void removedStreamIsNotTold();
    void secondStartBeginsToCountAnew();
    void streamThatStartsAnewAfterASilenceIsNotToldAsBack();
    void eachStreamIsSilentByItself();
    void listenerMayEndTheStream();
    void deviceMayLeaveWhileItsStreamIsTold();
};

namespace {

constexpr int patience = 6; // seconds
const LinkFrameInfo noPicture{78, 2, 0};

// What is told of streams. The seconds are over when the test says so.
class Silence final
{
public:
    explicit Silence(const MediaTest& t)
        : silent(t.decode.get(), &Decode::streamSilentMsg)
        , back(t.decode.get(), &Decode::streamBackMsg)
        , t_(t)
    {
    }

    void pass(int seconds) const
    {
        for (int i = 0; i < seconds; ++i)
            t_.decode->reset();
    }
    // A second in which a frame comes.
    [[nodiscard]] bool passWithFrame(int number = 0) const
    {
        t_.link.queueVideo(t_.avIndex(true, number), "frame", noPicture);
        t_.stream(true, number)->getVideo();
        const bool isSettled = t_.settle() && t_.stream(true, number)->videoCount == 1;
        pass(1);
        return isSettled;
    }
    static QList<Channel*> channelsOf(const QSignalSpy& spy)
    {
        QList<Channel*> channels;
        for (const QList<QVariant>& arguments : spy)
            channels.append(arguments.first().value<Channel*>());
        return channels;
    }

    QSignalSpy silent;
    QSignalSpy back;

private:
    const MediaTest& t_;
};

} // namespace

void TestSilentStreams::silentLiveStreamIsToldOnceAfterSixSeconds()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(patience - 1);
    QCOMPARE(silence.silent.count(), 0);
    silence.pass(1);
    QCOMPARE(Silence::channelsOf(silence.silent), QList<Channel*>({t.channel()}));
    silence.pass(5 * patience);
    QCOMPARE(silence.silent.count(), 1);
    QCOMPARE(silence.back.count(), 0);
    QVERIFY(t.stream()->isRunning());
}

void TestSilentStreams::streamThatBringsFramesIsNotTold()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    for (int i = 0; i < 2 * patience; ++i)
        QVERIFY(silence.passWithFrame());
    QCOMPARE(silence.silent.count(), 0);
    QCOMPARE(silence.back.count(), 0);
}

void TestSilentStreams::shortSilencesAreNotTold()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    for (int i = 0; i < 3; ++i) {
        silence.pass(patience - 1);
        QVERIFY(silence.passWithFrame());
    }
    QCOMPARE(silence.silent.count(), 0);
    QCOMPARE(silence.back.count(), 0);
}

void TestSilentStreams::streamThatComesBackIsToldOnce()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(2 * patience);
    QVERIFY(silence.passWithFrame());
    QCOMPARE(Silence::channelsOf(silence.back), QList<Channel*>({t.channel()}));
    QVERIFY(silence.passWithFrame());
    QVERIFY(silence.passWithFrame());
    QCOMPARE(silence.back.count(), 1);
    QCOMPARE(silence.silent.count(), 1);
}

void TestSilentStreams::streamThatFallsSilentAgainIsToldAgain()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(patience);
    QVERIFY(silence.passWithFrame());
    silence.pass(patience - 1);
    QCOMPARE(silence.silent.count(), 1);
    silence.pass(1);
    QCOMPARE(silence.silent.count(), 2);
    QVERIFY(silence.passWithFrame());
    QCOMPARE(silence.back.count(), 2);
}

void TestSilentStreams::soundAloneIsNoPicture()
{
    const MediaTest t;
    Stream* stream = t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    for (int i = 0; i < patience; ++i) {
        stream->audioCount = 25;
        silence.pass(1);
    }
    QCOMPARE(silence.silent.count(), 1);
}

void TestSilentStreams::replayIsNeverTold()
{
    const MediaTest t;
    t.start(false);
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(3 * patience);
    t.queueVideo("frame", noPicture, false);
    QVERIFY(t.fetch(false));
    QCOMPARE(t.stream(false)->videoCount, 1);
    silence.pass(3 * patience);
    QCOMPARE(silence.silent.count(), 0);
    QCOMPARE(silence.back.count(), 0);
}

void TestSilentStreams::stoppedStreamIsNotTold()
{
    const MediaTest t;
    Stream* stream = t.start();
    QVERIFY(t.settle());
    t.decode->stopStream(stream);
    const Silence silence(t);
    silence.pass(3 * patience);
    QCOMPARE(t.decode->streams().size(), 1);
    QCOMPARE(silence.silent.count(), 0);
}

void TestSilentStreams::removedStreamIsNotTold()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(patience - 1);
    t.decode->removeStream(t.channel(), true);
    silence.pass(patience);
    QCOMPARE(silence.silent.count(), 0);
}

void TestSilentStreams::secondStartBeginsToCountAnew()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(patience - 1);
    t.start();
    QVERIFY(t.settle());
    silence.pass(patience - 1);
    QCOMPARE(silence.silent.count(), 0);
    silence.pass(1);
    QCOMPARE(silence.silent.count(), 1);
}

// Its start is told already, and whoever hears of that shows it as running.
void TestSilentStreams::streamThatStartsAnewAfterASilenceIsNotToldAsBack()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(patience);
    t.start();
    QVERIFY(t.settle());
    QVERIFY(silence.passWithFrame());
    QCOMPARE(silence.silent.count(), 1);
    QCOMPARE(silence.back.count(), 0);
}

void TestSilentStreams::eachStreamIsSilentByItself()
{
    const MediaTest t(2);
    t.start(true, 0);
    QVERIFY(t.settle());
    const Silence silence(t);
    silence.pass(2);
    t.start(true, 1);
    QVERIFY(t.settle());
    silence.pass(patience - 2);
    QCOMPARE(Silence::channelsOf(silence.silent), QList<Channel*>({t.channel(0)}));
    QVERIFY(silence.passWithFrame(0));
    QCOMPARE(Silence::channelsOf(silence.back), QList<Channel*>({t.channel(0)}));
    silence.pass(1);
    QCOMPARE(Silence::channelsOf(silence.silent), QList<Channel*>({t.channel(0), t.channel(1)}));
    QCOMPARE(silence.back.count(), 1);
}

void TestSilentStreams::listenerMayEndTheStream()
{
    const MediaTest t(2);
    t.start(true, 0);
    t.start(true, 1);
    QVERIFY(t.settle());
    const Silence silence(t);
    connect(t.decode.get(), &Decode::streamSilentMsg, t.decode.get(),
        [&t] { t.decode->stopAllStream(); });
    silence.pass(2 * patience);
    QCOMPARE(Silence::channelsOf(silence.silent), QList<Channel*>({t.channel(0)}));
    QVERIFY(t.decode->streams().isEmpty());
}

void TestSilentStreams::deviceMayLeaveWhileItsStreamIsTold()
{
    MediaTest t;
    t.start();
    QVERIFY(t.settle());
    const Silence silence(t);
    connect(t.decode.get(), &Decode::streamSilentMsg, t.decode.get(), [&t] { t.removeDevice(); });
    silence.pass(2 * patience);
    QCOMPARE(silence.silent.count(), 1);
    QVERIFY(t.decode->streams().isEmpty());
}

ORVA_TEST(TestSilentStreams)
#include "tst_silentstreams.moc"
