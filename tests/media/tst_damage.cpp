// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ffmpegowners.h"
#include "stderrcapture.h"
#include "testmain.h"
#include "videotest.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <map>

// Streams that do not arrive as they were sent: the picture comes back at the next key frame.
class TestDamage final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void thousandDamagedGroups_data();
    void thousandDamagedGroups();
    void lostFrames_data();
    void lostFrames();
    void missingKeyFrameAtTheStart_data();
    void missingKeyFrameAtTheStart();
    void framesInTheWrongOrder_data();
    void framesInTheWrongOrder();
    void noise_data();
    void noise();
    void damageIsNotLogged();
};

namespace {

void addCodecs()
{
    QTest::addColumn<quint16>("codec");
    QTest::newRow("H.264") << clipH264;
    QTest::newRow("H.265") << clipH265;
}

int placeIn(const QByteArray& bytes, QRandomGenerator& random)
{
    return bytes.isEmpty() ? 0 : random.bounded(bytes.size());
}

QByteArray noiseOf(int size, QRandomGenerator& random)
{
    QByteArray bytes(size, '\0');
    std::generate(
        bytes.begin(), bytes.end(), [&] { return static_cast<char>(random.bounded(256)); });
    return bytes;
}

QByteArray withFlippedBits(QByteArray bytes, QRandomGenerator& random)
{
    const int flips = 1 + random.bounded(8);
    for (int i = 0; i < flips && !bytes.isEmpty(); ++i) {
        const int at = placeIn(bytes, random);
        bytes[at] = static_cast<char>(bytes.at(at) ^ 1 << random.bounded(8));
    }
    return bytes;
}

QByteArray damaged(const QByteArray& bytes, QRandomGenerator& random)
{
    const int at = placeIn(bytes, random);
    const int length = 1 + random.bounded(32);
    switch (random.bounded(6)) {
    case 0:
        return bytes.left(at);
    case 1:
        return QByteArray(bytes).replace(at, length, noiseOf(length, random));
    case 2:
        return QByteArray(bytes).replace(at, length, QByteArray(length, '\0'));
    case 3:
        return QByteArray(bytes).insert(at, bytes.mid(placeIn(bytes, random), length));
    case 4: // among the parameters and the heads
        return withFlippedBits(bytes.left(64), random) + bytes.mid(64);
    default:
        return withFlippedBits(bytes, random);
    }
}

// A group of pictures as it was sent, and what each looks like, by its stamp.
struct CleanGroup
{
    explicit CleanGroup(quint16 codec, int count = 24)
    {
        ClipSettings settings = smallClip(codec, count, count);
        settings.firstStamp = 1000;
        frames = makeClip(settings);
        auto twice = frames; // brings them all out
        twice.insert(twice.end(), frames.begin(), frames.end());
        for (const DecodedFrame& decoded : decodeByItself(twice)) {
            if (decoded.result == 0 && pictures.size() < frames.size())
                pictures.emplace(
                    1000 + static_cast<std::uint32_t>(pictures.size()), decoded.picture);
        }
    }

    // Its pictures stand there as they were sent.
    bool isShownBy(const VideoTest& t) const
    {
        const auto stamp = stampIn(t.mode());
        const auto picture = stamp ? pictures.find(*stamp) : pictures.end();
        return picture != pictures.end() && picture->second == t.picture();
    }

    std::vector<ClipFrame> frames;
    std::map<std::uint32_t, QByteArray> pictures;
};

} // namespace

void TestDamage::initTestCase()
{
    av_log_set_level(AV_LOG_QUIET);
}

void TestDamage::cleanupTestCase()
{
    av_log_set_level(AV_LOG_INFO);
}

void TestDamage::thousandDamagedGroups_data()
{
    addCodecs();
}

void TestDamage::thousandDamagedGroups()
{
    QFETCH(quint16, codec);
    const LogWatch silence; // of sizes that damage has made up
    const VideoTest t;
    const auto sent = makeClip(smallClip(codec, 6, 6));
    const CleanGroup clean(codec);
    t.openFor(sent.front());
    for (quint32 round = 0; round < 1000; ++round) {
        QRandomGenerator random(codec * 10000 + round);
        const auto first = random.bounded(static_cast<int>(sent.size()));
        for (int i = 0; i < static_cast<int>(sent.size()); ++i) {
            ClipFrame frame = sent.at(static_cast<std::size_t>(i));
            if (i == first || random.bounded(3) == 0)
                frame.bytes = damaged(frame.bytes, random);
            t.push(frame);
        }
        t.push(clean.frames);
        QVERIFY(t.settle());
        QVERIFY2(clean.isShownBy(t), qPrintable(QStringLiteral("round %1").arg(round)));
    }
    QCOMPARE(t.video->leftOutFrames(), 0);
}

void TestDamage::lostFrames_data()
{
    addCodecs();
}

void TestDamage::lostFrames()
{
    QFETCH(quint16, codec);
    const auto sent = makeClip(smallClip(codec, 10, 10));
    const CleanGroup clean(codec);
    for (quint32 lost = 1; lost < 1U << 10; lost += 31) {
        const VideoTest t;
        t.openFor(sent.front());
        for (std::size_t i = 0; i < sent.size(); ++i) {
            if ((lost >> i & 1) == 0)
                t.push(sent.at(i));
        }
        t.push(clean.frames);
        QVERIFY(t.settle());
        QVERIFY2(clean.isShownBy(t), qPrintable(QString::number(lost, 2)));
    }
}

void TestDamage::missingKeyFrameAtTheStart_data()
{
    addCodecs();
}

void TestDamage::missingKeyFrameAtTheStart()
{
    QFETCH(quint16, codec);
    const VideoTest t;
    auto sent = makeClip(smallClip(codec, 10, 10));
    sent.erase(sent.begin());
    const CleanGroup clean(codec);
    QCOMPARE(t.openFor(sent.front()), 0);
    QVERIFY(t.show(sent));
    QCOMPARE(t.results.pictures.size(), sent.size()); // all were tried
    QVERIFY(t.media.shown.empty());
    QVERIFY(t.show(clean.frames));
    QVERIFY(clean.isShownBy(t));
}

void TestDamage::framesInTheWrongOrder_data()
{
    addCodecs();
}

void TestDamage::framesInTheWrongOrder()
{
    QFETCH(quint16, codec);
    auto sent = makeClip(smallClip(codec, 12, 6));
    const CleanGroup clean(codec);
    for (quint32 round = 0; round < 20; ++round) {
        QRandomGenerator random(round);
        std::shuffle(sent.begin(), sent.end(), random);
        const VideoTest t;
        t.openFor(sent.front());
        t.push(sent);
        t.push(clean.frames);
        QVERIFY(t.settle());
        QVERIFY(clean.isShownBy(t));
    }
}

void TestDamage::noise_data()
{
    addCodecs();
}

void TestDamage::noise()
{
    QFETCH(quint16, codec);
    const VideoTest t;
    const CleanGroup clean(codec);
    QRandomGenerator random(codec);
    t.openFor(clean.frames.front());
    for (const int size : {1, 2, 3, 4, 5, 16, 100, 1024, 70000, 2304000}) {
        const QByteArray bytes = noiseOf(size, random);
        const QByteArray startCode = QByteArray::fromHex("00000001");
        QVERIFY(t.show({{bytes, codec, true, 0}, {startCode + bytes, codec, false, 0},
            {QByteArray(size, '\0'), codec, false, 0},
            {QByteArray(size, '\xFF'), codec, true, 0}}));
    }
    QVERIFY(t.media.shown.empty());
    QVERIFY(t.show(clean.frames));
    QVERIFY(clean.isShownBy(t));
}

void TestDamage::damageIsNotLogged()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip(clipH264, 10, 10));
    t.openFor(clip.front());
    av_log_set_level(AV_LOG_INFO); // what a program has that says nothing about it
    StderrCapture capture;
    const LogWatch log;
    QRandomGenerator random(5);
    for (const ClipFrame& frame : clip)
        QVERIFY(t.show({{damaged(frame.bytes, random), frame.codec, frame.isKey, 0}}));
    const QByteArray text = capture.text();
    av_log_set_level(AV_LOG_QUIET);
    QCOMPARE(LogWatch::lines(), QStringList());
    QCOMPARE(text, QByteArray());
}

ORVA_TEST(TestDamage)

#include "tst_damage.moc"
