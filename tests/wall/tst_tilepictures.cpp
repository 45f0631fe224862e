// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "tiletest.h"

#include <QTest>

// Which pictures a tile takes, gives up and brings back.
class TestTilePictures final : public QObject
{
    Q_OBJECT

private slots:
    void tileWithoutPictureDrawsNothing();
    void pictureOfAnotherChannelChangesNothing();
    void pictureOfAStoppedStreamChangesNothing();
    void eachModeHasItsOwnPlayingFlag();
    void lastDecodedModeIsShown();
    void timestampIsThatOfTheLastPicture();
    void sizeThatNoBufferHoldsIsNotShown();

    void endOfTheStreamCleansTheScreen_data();
    void endOfTheStreamCleansTheScreen();
    void endOfAnotherStreamChangesNothing();
    void cleaningGoesThroughOnATileWithoutChannel();
    void cleanedTileShowsTheNextPicture();

    void rearrangedWallBringsTheLastPictureBack();
    void rearrangedWallBringsThePictureOfTheModeBack();
    void rearrangedWallHasNothingToBringBack();
    void picturesSizeComesBackWithIt();
    void nothingOfTheChannelBeforeIsShown();
};

namespace {

constexpr Yuv first{170, 90, 180};
constexpr Yuv second{90, 150, 60};
constexpr QRgb blank = 0xfffcfcfc; // before the first picture: 0.99 of white
constexpr QRgb cleaned = 0xff000000; // after it

Picture flat(Yuv colour)
{
    return Picture(QSize(320, 180), colour);
}

QString differencesFromFlat(const TileTest& t, Yuv colour, int number = 0)
{
    return differences(t.painted(number), t.inner(number), rgbOf(colour));
}

QString differencesFrom(const TileTest& t, QRgb colour)
{
    return differences(t.painted(), t.tile()->rect(), colour);
}

} // namespace

void TestTilePictures::tileWithoutPictureDrawsNothing()
{
    TileTest t;
    QVERIFY(t.show());
    QCOMPARE(differencesFrom(t, blank), QString());
    QVERIFY(t.isWaiting());
}

void TestTilePictures::pictureOfAnotherChannelChangesNothing()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.decode(flat(second), 1);
    QVERIFY(t.isWaiting());
    QCOMPARE(differencesFrom(t, blank), QString());

    t.decode(flat(first));
    t.decode(flat(second), 1);
    QCOMPARE(differencesFromFlat(t, first), QString());
    QCOMPARE(differencesFromFlat(t, second, 1), QString());
    emit t.decoder.decodeSuccess(nullptr, true, 320, 180, 1);
    QCOMPARE(differencesFromFlat(t, first), QString());
}

void TestTilePictures::pictureOfAStoppedStreamChangesNothing()
{
    TileTest t;
    QVERIFY(t.show());
    t.channel()->mode(true).playing = false;
    t.decode(flat(first));
    QVERIFY(t.isWaiting());
    QVERIFY(t.parts().background->isVisible());
    QCOMPARE(differencesFrom(t, blank), QString());
}

void TestTilePictures::eachModeHasItsOwnPlayingFlag()
{
    TileTest t;
    QVERIFY(t.show());
    t.channel()->mode(true).playing = false;
    t.channel()->mode(false).playing = true;
    t.decode(flat(first), 0, true);
    QVERIFY(t.isWaiting());
    t.decode(flat(second), 0, false); // though the wall is in live view
    QVERIFY(!t.isWaiting());
    QCOMPARE(differencesFromFlat(t, second), QString());
}

void TestTilePictures::lastDecodedModeIsShown()
{
    TileTest t;
    QVERIFY(t.show());
    t.channel()->mode(false).playing = true;
    t.decode(flat(first), 0, true);
    QCOMPARE(differencesFromFlat(t, first), QString());
    t.decode(flat(second), 0, false);
    QCOMPARE(differencesFromFlat(t, second), QString());
    t.decode(flat(first), 0, true);
    QCOMPARE(differencesFromFlat(t, first), QString());
}

void TestTilePictures::timestampIsThatOfTheLastPicture()
{
    TileTest t;
    t.store(flat(first));
    emit t.decoder.decodeSuccess(t.channel(), true, 320, 180, 4000000000U);
    QCOMPARE(t.tile()->timestamp(), 4000000000U);
    t.channel()->mode(true).playing = false;
    emit t.decoder.decodeSuccess(t.channel(), true, 320, 180, 7);
    QCOMPARE(t.tile()->timestamp(), 4000000000U);
}

void TestTilePictures::sizeThatNoBufferHoldsIsNotShown()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(flat(first));
    for (const QSize& size :
        {QSize(3842, 2160), QSize(65536, 65536), QSize(0, 180), QSize(320, -1)})
        emit t.decoder.decodeSuccess(t.channel(), true, size.width(), size.height(), 1);
    QCOMPARE(differencesFromFlat(t, first), QString());
}

void TestTilePictures::endOfTheStreamCleansTheScreen_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live view") << true;
    QTest::newRow("replay") << false;
}

void TestTilePictures::endOfTheStreamCleansTheScreen()
{
    QFETCH(bool, isLive);
    TileTest t;
    QVERIFY(t.show());
    t.decode(flat(first));
    QTRY_COMPARE(differences(t.screen(0), t.visible(), rgbOf(first)), QString());
    if (isLive)
        emit t.io->videoRequestStopSuccessMsg(t.channel());
    else
        emit t.io->stopReplaySuccessMsg(t.channel());
    QTRY_COMPARE(differences(t.screen(0), t.visible(), cleaned), QString());
    QCOMPARE(differencesFrom(t, cleaned), QString());
}

void TestTilePictures::endOfAnotherStreamChangesNothing()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.decode(flat(first));
    emit t.io->videoRequestStopSuccessMsg(t.channel(1));
    emit t.io->stopReplaySuccessMsg(t.channel(1));
    emit t.io->stopReplaySuccessMsg(nullptr);
    QCOMPARE(differencesFromFlat(t, first), QString());
}

void TestTilePictures::cleaningGoesThroughOnATileWithoutChannel()
{
    TileTest t;
    QVERIFY(t.show());
    t.tile()->setChannel(nullptr, nullptr);
    QCOMPARE(differencesFrom(t, blank), QString());
    PaintCount paints(t.tile());
    emit t.io->videoRequestStopSuccessMsg(t.channel());
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(differencesFrom(t, blank), QString());
}

void TestTilePictures::cleanedTileShowsTheNextPicture()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(flat(first));
    QCOMPARE(differencesFromFlat(t, first), QString());
    t.tile()->cleanScreen(t.channel());
    QCOMPARE(differencesFrom(t, cleaned), QString());
    t.decode(flat(second));
    QCOMPARE(differencesFromFlat(t, second), QString());
}

void TestTilePictures::rearrangedWallBringsTheLastPictureBack()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(flat(first));
    QTRY_COMPARE(differences(t.screen(0), t.visible(), rgbOf(first)), QString());
    t.tile()->cleanScreen(t.channel());
    QTRY_COMPARE(differences(t.screen(0), t.visible(), cleaned), QString());
    emit t.viewControl.windowNumberChangeMsg();
    QTRY_COMPARE(differences(t.screen(0), t.visible(), rgbOf(first)), QString());
}

void TestTilePictures::rearrangedWallBringsThePictureOfTheModeBack()
{
    TileTest t;
    QVERIFY(t.show());
    t.store(flat(first), 0, true);
    t.store(Picture(QSize(64, 48), second), 0, false);
    emit t.viewControl.windowNumberChangeMsg();
    QCOMPARE(differencesFromFlat(t, first), QString());
    t.viewControl.isLive = false;
    emit t.viewControl.windowNumberChangeMsg();
    QCOMPARE(differencesFromFlat(t, second), QString());
}

void TestTilePictures::rearrangedWallHasNothingToBringBack()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.tile(1)->setChannel(nullptr, nullptr);
    emit t.viewControl.windowNumberChangeMsg();
    QCOMPARE(differencesFrom(t, blank), QString());

    t.decode(flat(first));
    t.viewControl.isLive = false; // without a buffer: the live picture stays
    emit t.viewControl.windowNumberChangeMsg();
    QCOMPARE(differencesFromFlat(t, first), QString());
}

void TestTilePictures::picturesSizeComesBackWithIt()
{
    TileTest t(1, QSize(322, 182));
    t.device->setChannelCount(2);
    QVERIFY(t.show());
    t.channel(1)->mode(true).playing = true;
    const Picture wide = Picture::slopes(QSize(854, 480));
    t.decode(wide, 0);
    t.tile()->setChannel(t.device.get(), t.channel(1));
    const Picture small = Picture::slopes(QSize(120, 200));
    t.decode(small, 1);
    QCOMPARE(differences(t.painted(), t.inner(), small), QString());

    t.tile()->setChannel(t.device.get(), t.channel(0));
    emit t.viewControl.windowNumberChangeMsg();
    QCOMPARE(differences(t.painted(), t.inner(), wide), QString());
}

void TestTilePictures::nothingOfTheChannelBeforeIsShown()
{
    TileTest t;
    t.device->setChannelCount(2);
    QVERIFY(t.show());
    t.decode(flat(first));
    QCOMPARE(differencesFromFlat(t, first), QString());
    t.tile()->setChannel(t.device.get(), t.channel(1));
    QCOMPARE(differencesFrom(t, cleaned), QString());
    t.decode(flat(second), 0); // of the one before, late
    QCOMPARE(differencesFrom(t, cleaned), QString());
    t.tile()->hideWaiting(t.channel(1));
    QTRY_COMPARE(differences(t.screen(0), t.visible(), cleaned), QString());
}

ORVA_TEST(TestTilePictures)
#include "tst_tilepictures.moc"
