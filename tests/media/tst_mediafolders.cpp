// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/videorecord.h"
#include "model/device.h"
#include "store/location.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

// Where recordings and snapshots lie, and which picture stands for a channel.
class TestMediaFolders final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void foldersAreOfTheSettingsAndTheDevice();
    void foldersAreReadOnce();
    void foldersAreNotMade();
    void brandNamesTheFolder_data();
    void brandNamesTheFolder();

    void channelWithoutAPictureHasNone();
    void nullHasNoPicture();
    void pictureBelongsToTheChannelOfItsName_data();
    void pictureBelongsToTheChannelOfItsName();
    void snapshotGoesBeforeThePlaceholder();
    void placeholderStandsInWhereNoSnapshotIsTheChannels();
    void lastPictureInTheListIsTaken();
    void pictureOfAnotherDeviceIsNotTaken();
    void onlyPicturesAreTaken_data();
    void onlyPicturesAreTaken();

private:
    QTemporaryDir folder_;
    QString snapshots() const { return picPath_ + QStringLiteral("/ORVA/UID1"); }
    QString placeholders() const { return snapshots() + QStringLiteral("/placeHolder"); }

    QString videoPath_;
    QString picPath_;
};

namespace {

// A device with twelve channels.
struct TwelveChannels
{
    TwelveChannels()
    {
        device.setUid(QStringLiteral("UID1"));
        device.setChannelCount(12);
    }
    // Of the channel with this name, which counts from 1.
    QString picture(int named) const { return record.placeholderPath(device.channel(named - 1)); }

    Device device;
    VideoRecord record;
};

// An empty file, with the folders on the way to it.
bool put(const QString& folder, const QString& name)
{
    QFile file(folder + QLatin1Char('/') + name);
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly);
}

} // namespace

void TestMediaFolders::init()
{
    static int number = 0;
    const QString base = folder_.filePath(QString::number(++number));
    videoPath_ = base + QStringLiteral("/videos");
    picPath_ = base + QStringLiteral("/pictures");
    Location::instance()->setVideoPath(videoPath_);
    Location::instance()->setPicPath(picPath_);
}

void TestMediaFolders::cleanup()
{
    Location::instance()->setVideoPath(QStringLiteral("default"));
    Location::instance()->setPicPath(QStringLiteral("default"));
}

void TestMediaFolders::foldersAreOfTheSettingsAndTheDevice()
{
    const TwelveChannels t;
    QCOMPARE(t.record.channelFolder(&t.device, true), videoPath_ + QStringLiteral("/ORVA/UID1"));
    QCOMPARE(t.record.channelFolder(&t.device, false), picPath_ + QStringLiteral("/ORVA/UID1"));
}

void TestMediaFolders::foldersAreReadOnce()
{
    const TwelveChannels t;
    Location::instance()->setPicPath(QStringLiteral("/elsewhere"));
    Location::instance()->setVideoPath(QStringLiteral("/elsewhere"));
    QCOMPARE(t.record.channelFolder(&t.device, false), picPath_ + QStringLiteral("/ORVA/UID1"));
    QCOMPARE(t.record.channelFolder(&t.device, true), videoPath_ + QStringLiteral("/ORVA/UID1"));
}

void TestMediaFolders::foldersAreNotMade()
{
    const TwelveChannels t;
    QVERIFY(t.picture(1).isEmpty());
    QVERIFY(!QDir(t.record.channelFolder(&t.device, true)).exists());
    QVERIFY(!QDir(picPath_).exists());
}

void TestMediaFolders::brandNamesTheFolder_data()
{
    QTest::addColumn<int>("brand");
    QTest::addColumn<QString>("name"); // after brand 149 was set
    QTest::newRow("0") << 0 << QStringLiteral("ORVA");
    QTest::newRow("149") << 149 << QStringLiteral("BRISEN HD");
    QTest::newRow("150") << 150 << QStringLiteral("Fenrad");
    QTest::newRow("151") << 151 << QStringLiteral("ORVA");
    QTest::newRow("unknown") << 152 << QStringLiteral("BRISEN HD");
    QTest::newRow("negative") << -1 << QStringLiteral("BRISEN HD");
}

void TestMediaFolders::brandNamesTheFolder()
{
    QFETCH(int, brand);
    QFETCH(QString, name);
    TwelveChannels t;
    t.record.setRootName(149);
    t.record.setRootName(brand);
    const QString folder = picPath_ + QLatin1Char('/') + name + QStringLiteral("/UID1");
    QCOMPARE(t.record.channelFolder(&t.device, false), folder);
    QVERIFY(put(folder, QStringLiteral("Preview_VID1_2024.jpg")));
    QCOMPARE(t.picture(1), folder + QStringLiteral("/Preview_VID1_2024.jpg"));
}

void TestMediaFolders::channelWithoutAPictureHasNone()
{
    const TwelveChannels t;
    QVERIFY(t.picture(1).isEmpty());
    QVERIFY(QDir().mkpath(placeholders())); // and empty
    QVERIFY(t.picture(1).isEmpty());
    QVERIFY(put(placeholders(), QStringLiteral("Preview_VID2_2024.jpg")));
    QVERIFY(t.picture(1).isEmpty());
}

void TestMediaFolders::nullHasNoPicture()
{
    QVERIFY(put(snapshots(), QStringLiteral("Preview_VID0_2024.jpg")));
    QVERIFY(VideoRecord().placeholderPath(nullptr).isEmpty());
}

void TestMediaFolders::pictureBelongsToTheChannelOfItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("channel"); // counted from 1; 0: none
    QTest::newRow("live") << QStringLiteral("Preview_VID3_2024119_7512.jpg") << 3;
    QTest::newRow("replay") << QStringLiteral("Playback_VID3_2024119_7512.jpg") << 3;
    QTest::newRow("PNG") << QStringLiteral("Preview_VID1_2024119_7512.png") << 1;
    QTest::newRow("two digits") << QStringLiteral("Preview_VID10_2024119_7512.jpg") << 10;
    QTest::newRow("two digits more") << QStringLiteral("Preview_VID12_2024119_7512.jpg") << 12;
    QTest::newRow("any three letters") << QStringLiteral("x_abc4_.jpg") << 4;
    QTest::newRow("a leading zero") << QStringLiteral("x_VID04_.jpg") << 4;
    QTest::newRow("no number") << QStringLiteral("Preview_VID_2024.jpg") << 0;
    QTest::newRow("a number with letters") << QStringLiteral("Preview_VID1a_2024.jpg") << 0;
    QTest::newRow("channel 0") << QStringLiteral("Preview_VID0_2024.jpg") << 0;
    QTest::newRow("negative") << QStringLiteral("Preview_VID-1_2024.jpg") << 0;
    QTest::newRow("suffix in the second section") << QStringLiteral("Preview_VID1.jpg") << 0;
    QTest::newRow("no section") << QStringLiteral("VID1.jpg") << 0;
    QTest::newRow("number too far right") << QStringLiteral("a_b_VID1_2024.jpg") << 0;
}

void TestMediaFolders::pictureBelongsToTheChannelOfItsName()
{
    QFETCH(QString, name);
    QFETCH(int, channel);
    for (const QString& folder : {snapshots(), placeholders()}) {
        QVERIFY(put(folder, name));
        const TwelveChannels t;
        for (int named = 1; named <= 12; ++named)
            QCOMPARE(
                t.picture(named), named == channel ? folder + QLatin1Char('/') + name : QString());
        QVERIFY(QFile::remove(folder + QLatin1Char('/') + name));
    }
}

void TestMediaFolders::snapshotGoesBeforeThePlaceholder()
{
    QVERIFY(put(placeholders(), QStringLiteral("Preview_VID1_9.jpg")));
    const TwelveChannels t;
    QCOMPARE(t.picture(1), placeholders() + QStringLiteral("/Preview_VID1_9.jpg"));
    QVERIFY(put(snapshots(), QStringLiteral("Playback_VID1_1.jpg")));
    QCOMPARE(t.picture(1), snapshots() + QStringLiteral("/Playback_VID1_1.jpg"));
}

void TestMediaFolders::placeholderStandsInWhereNoSnapshotIsTheChannels()
{
    QVERIFY(put(snapshots(), QStringLiteral("Preview_VID2_1.jpg")));
    QVERIFY(put(placeholders(), QStringLiteral("Preview_VID1_1.jpg")));
    const TwelveChannels t;
    QCOMPARE(t.picture(1), placeholders() + QStringLiteral("/Preview_VID1_1.jpg"));
    QCOMPARE(t.picture(2), snapshots() + QStringLiteral("/Preview_VID2_1.jpg"));
}

void TestMediaFolders::lastPictureInTheListIsTaken()
{
    for (const char* name : {"Preview_VID1_2.jpg", "Playback_VID1_9.jpg", "Preview_VID1_10.png",
             "Preview_VID2_99.jpg", "Preview_VID11_99.jpg"})
        QVERIFY(put(snapshots(), QString::fromLatin1(name)));
    const TwelveChannels t;
    // In the order of the names, which is not that of the times.
    QCOMPARE(t.picture(1), snapshots() + QStringLiteral("/Preview_VID1_2.jpg"));
    QCOMPARE(t.picture(11), snapshots() + QStringLiteral("/Preview_VID11_99.jpg"));
}

void TestMediaFolders::pictureOfAnotherDeviceIsNotTaken()
{
    QVERIFY(put(picPath_ + QStringLiteral("/ORVA/UID2"), QStringLiteral("Preview_VID1_2.jpg")));
    QVERIFY(put(picPath_ + QStringLiteral("/ORVA"), QStringLiteral("Preview_VID1_2.jpg")));
    QVERIFY(put(videoPath_ + QStringLiteral("/ORVA/UID1"), QStringLiteral("Preview_VID1_2.jpg")));
    const TwelveChannels t;
    QVERIFY(t.picture(1).isEmpty());
}

void TestMediaFolders::onlyPicturesAreTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("recording") << QStringLiteral("Preview_VID1_2024.mp4");
    QTest::newRow("other picture") << QStringLiteral("Preview_VID1_2024.jpeg");
    QTest::newRow("no suffix") << QStringLiteral("Preview_VID1_2024");
    QTest::newRow("folder") << QStringLiteral("Preview_VID1_2024.jpg/");
}

void TestMediaFolders::onlyPicturesAreTaken()
{
    QFETCH(QString, name);
    if (name.endsWith(QLatin1Char('/')))
        QVERIFY(QDir().mkpath(snapshots() + QLatin1Char('/') + name));
    else
        QVERIFY(put(snapshots(), name));
    const TwelveChannels t;
    QVERIFY(t.picture(1).isEmpty());
}

ORVA_TEST(TestMediaFolders)
#include "tst_mediafolders.moc"
