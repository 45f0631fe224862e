// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "testmain.h"
#include "tiletest.h"
#include "wall/waitingcircle.h"

#include <QLabel>
#include <QMovie>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

// What stands over a tile's picture: frame, background, waiting circle and the mark of a recording.
class TestTileStates final : public QObject
{
    Q_OBJECT

private slots:
    void newTileIsEmpty();
    void stylesAreTheFixedOnes();
    void layoutsLeaveNoMarginButTheFrame();

    void boundTileWaits();
    void pictureEndsTheWaiting();
    void failureEndsTheWaiting();
    void startedStreamWaitsAnew();
    void waitingOfAnotherChannelChangesNothing();
    void circlePlaysTheAnimation();
    void circleStaysInTheMiddle();
    void tileWithoutChannelShowsTheBackground();
    void bindingTheSameChannelAgainWaits();

    void recordingOfTheModeShowsTheMark();
    void recordingOfAnotherChannelChangesNothing();
    void boundTileTakesTheRecordingOfItsChannel();
    void markIsAtTheTopRight();
    void markBlinksInElevenSteps();
    void markBlinksOnlyWhileRecording();

    void selectedChannelHasTheBlueFrame();
    void boundTileTakesTheSelection();
    void selectionOfNothingIsNotThatOfAnEmptyTile();
};

namespace {

const QString selectedFrame = QStringLiteral("border:2px solid #6495ED;background:rgba(0,0,0,0)");
const QString plainFrame = QStringLiteral("border:2px solid #ccc;background:rgba(0,0,0,0)");

QRect circleOf(const GlWidgetViewWindow* tile)
{
    const auto* circle = tile->findChild<WaitingCircle*>();
    return circle != nullptr ? circle->geometry() : QRect();
}

QString dotStyle(const QString& alpha)
{
    return "border:0;border-radius:6px;background-color:rgba(255,0,0," + alpha + ")";
}

QString textStyle(const QString& alpha)
{
    return "font-size:16px;font-weight:bold;color:rgba(255,0,0," + alpha + ")";
}

} // namespace

void TestTileStates::newTileIsEmpty()
{
    TileTest t;
    GlWidgetViewWindow tile(&t.window);
    const TileParts parts(&tile);
    QVERIFY(parts.background->isVisibleTo(&tile));
    QVERIFY(!parts.recordIndicator->isVisibleTo(&tile));
    QVERIFY(tile.findChildren<WaitingCircle*>().isEmpty());
    QVERIFY(!tile.isChannelBound());
    QVERIFY(tile.getChannel() == nullptr);
    QVERIFY(!tile.isMirror());
    tile.setMirror(true);
    QVERIFY(tile.isMirror());
}

void TestTileStates::stylesAreTheFixedOnes()
{
    const TileTest t;
    const TileParts parts = t.parts();
    QCOMPARE(parts.frame->styleSheet(), plainFrame);
    QCOMPARE(parts.background->styleSheet(),
        QStringLiteral(
            "border:0;border-image:url(\":/bgImage/images/bgImg/opengl_background.png\")"));
    QCOMPARE(parts.recordIndicator->styleSheet(), QStringLiteral("background:rgba(0,0,0,0)"));
    QCOMPARE(parts.recordDot->styleSheet(), dotStyle("1.0"));
    QCOMPARE(parts.recordText->styleSheet(), textStyle("1.0"));
    QCOMPARE(parts.recordText->text(), QStringLiteral("REC"));
    QCOMPARE(parts.recordDot->geometry(), QRect(QPoint(0, 5), QPoint(11, 16)));
    QCOMPARE(parts.recordText->geometry(), QRect(QPoint(14, 2), QPoint(73, 19)));
}

void TestTileStates::layoutsLeaveNoMarginButTheFrame()
{
    TileTest t;
    const TileParts parts = t.parts();
    QCOMPARE(t.tile()->layout()->contentsMargins(), QMargins());
    QCOMPARE(parts.frame->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    QVERIFY(t.show());
    QCOMPARE(parts.frame->geometry(), t.tile()->rect());
    QVERIFY(parts.frame->rect().contains(parts.background->geometry()));
}

void TestTileStates::boundTileWaits()
{
    TileTest t;
    QVERIFY(t.tile()->isChannelBound());
    QCOMPARE(t.tile()->getChannel(), t.channel());
    QVERIFY(t.isWaiting());
    QVERIFY(t.parts().background->isVisibleTo(t.tile()));
    t.tile()->setChannel(nullptr, t.channel());
    QVERIFY(!t.tile()->isChannelBound());
}

void TestTileStates::pictureEndsTheWaiting()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(64, 48), {128, 128, 128}));
    QVERIFY(t.tile()->findChildren<WaitingCircle*>().isEmpty());
    QVERIFY(!t.parts().background->isVisible());
    QVERIFY(t.parts().frame->isVisible());
}

void TestTileStates::failureEndsTheWaiting()
{
    TileTest t;
    emit t.io->videoRequestFailMsg(t.channel(), -20009, QStringLiteral("text"));
    QVERIFY(t.tile()->findChildren<WaitingCircle*>().isEmpty());
    QVERIFY(!t.parts().background->isVisibleTo(t.tile()));
}

void TestTileStates::startedStreamWaitsAnew()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(64, 48), {128, 128, 128}));
    emit t.io->waitingStreamMsg(t.channel());
    QVERIFY(t.isWaiting());
    QVERIFY(t.parts().background->isVisible());
    const QPointer<WaitingCircle> before = t.tile()->findChild<WaitingCircle*>();
    emit t.io->waitingStreamMsg(t.channel());
    QVERIFY(before.isNull());
    QVERIFY(t.isWaiting());
}

void TestTileStates::waitingOfAnotherChannelChangesNothing()
{
    TileTest t(2);
    QVERIFY(t.show());
    emit t.io->videoRequestFailMsg(t.channel(1), -1, QString());
    QVERIFY(t.isWaiting());
    t.decode(Picture(QSize(64, 48), {128, 128, 128}));
    emit t.io->waitingStreamMsg(t.channel(1));
    QVERIFY(!t.isWaiting());
    QVERIFY(!t.parts().background->isVisible());
    t.tile()->setChannel(nullptr, nullptr);
    emit t.io->waitingStreamMsg(nullptr);
    QVERIFY(!t.isWaiting());
    emit t.io->videoRequestFailMsg(nullptr, -1, QString());
    QVERIFY(t.parts().background->isVisible());
}

void TestTileStates::circlePlaysTheAnimation()
{
    const TileTest t;
    const auto* circle = t.tile()->findChild<WaitingCircle*>();
    QMovie* movie = circle->movie();
    QCOMPARE(movie->fileName(), QStringLiteral(":/main/images/btnImg/Loading_icon.gif"));
    QCOMPARE(movie->state(), QMovie::Running);
    QCOMPARE(movie->scaledSize(), QSize(64, 64));
    QCOMPARE(circle->size(), QSize(64, 64));
    const int frame = movie->currentFrameNumber();
    QTRY_VERIFY(movie->currentFrameNumber() != frame);
}

void TestTileStates::circleStaysInTheMiddle()
{
    TileTest t;
    QCOMPARE(circleOf(t.tile()), QRect(68, 28, 64, 64));
    QVERIFY(t.show());
    QCOMPARE(circleOf(t.tile()), QRect(68, 28, 64, 64));
    t.tile()->resize(301, 201, 5, 7);
    QCOMPARE(circleOf(t.tile()), QRect(118, 68, 64, 64));
    t.tile()->QWidget::resize(164, 100);
    QCOMPARE(circleOf(t.tile()), QRect(50, 18, 64, 64));
    emit t.io->waitingStreamMsg(t.channel());
    QCOMPARE(circleOf(t.tile()), QRect(50, 18, 64, 64));
}

void TestTileStates::tileWithoutChannelShowsTheBackground()
{
    TileTest t;
    QVERIFY(t.show());
    t.channel()->setRecord(true, true);
    t.tile()->setChannel(t.device.get(), t.channel());
    t.decode(Picture(QSize(64, 48), {128, 128, 128}));
    t.tile()->setChannel(nullptr, nullptr);
    QVERIFY(t.tile()->getChannel() == nullptr);
    QVERIFY(!t.tile()->isChannelBound());
    QVERIFY(t.tile()->findChildren<WaitingCircle*>().isEmpty());
    QVERIFY(!t.parts().recordIndicator->isVisible());
    QVERIFY(t.parts().background->isVisible());
    const QString style = t.parts().recordText->styleSheet();
    QTest::qWait(300);
    QCOMPARE(t.parts().recordText->styleSheet(), style);
}

void TestTileStates::bindingTheSameChannelAgainWaits()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(64, 48), {128, 128, 128}));
    t.tile()->setChannel(t.device.get(), t.channel());
    QVERIFY(t.isWaiting());
    QVERIFY(t.parts().background->isVisible());
}

void TestTileStates::recordingOfTheModeShowsTheMark()
{
    TileTest t;
    QVERIFY(t.show());
    const QWidget* mark = t.parts().recordIndicator;
    t.viewControl.setRecord(t.channel(), true);
    QVERIFY(mark->isVisible());
    t.viewControl.isLive = false;
    emit t.viewControl.recordMsg(t.channel(), true);
    QVERIFY(!mark->isVisible()); // replay records nothing
    t.viewControl.isLive = true;
    emit t.viewControl.recordMsg(t.channel(), false);
    QVERIFY(mark->isVisible()); // the flag counts, not the word
    t.viewControl.setRecord(t.channel(), false);
    QVERIFY(!mark->isVisible());
}

void TestTileStates::recordingOfAnotherChannelChangesNothing()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.channel()->setRecord(true, true);
    emit t.viewControl.recordMsg(t.channel(1), true);
    QVERIFY(!t.parts(0).recordIndicator->isVisible());
    emit t.viewControl.recordMsg(nullptr, true);
    QVERIFY(!t.parts(0).recordIndicator->isVisible());
    emit t.viewControl.recordMsg(t.channel(0), true);
    QVERIFY(t.parts(0).recordIndicator->isVisible());
    QVERIFY(!t.parts(1).recordIndicator->isVisible());
}

void TestTileStates::boundTileTakesTheRecordingOfItsChannel()
{
    TileTest t;
    t.device->setChannelCount(2);
    QVERIFY(t.show());
    t.channel(1)->setRecord(true, true);
    t.tile()->setChannel(t.device.get(), t.channel(1));
    QVERIFY(t.parts().recordIndicator->isVisible());
    t.tile()->setChannel(t.device.get(), t.channel(0));
    QVERIFY(!t.parts().recordIndicator->isVisible());
}

void TestTileStates::markIsAtTheTopRight()
{
    TileTest t;
    const QWidget* mark = t.parts().recordIndicator;
    QCOMPARE(mark->geometry(), QRect(QPoint(140, 3), QPoint(199, 22)));
    t.tile()->resize(301, 201, 5, 7);
    QCOMPARE(t.tile()->geometry(), QRect(5, 7, 301, 201));
    QCOMPARE(mark->geometry(), QRect(QPoint(241, 3), QPoint(300, 22)));
}

void TestTileStates::markBlinksInElevenSteps()
{
    TileTest t;
    const TileParts parts = t.parts();
    for (int round = 0; round < 2; ++round) {
        for (const char* alpha :
            {"0.9", "0.8", "0.7", "0.6", "0.5", "0.4", "0.3", "0.2", "0.1", "0", "1"}) {
            t.tile()->changeRecordText();
            QCOMPARE(parts.recordText->styleSheet(), textStyle(alpha));
            QCOMPARE(parts.recordDot->styleSheet(), dotStyle(alpha));
        }
    }
}

void TestTileStates::markBlinksOnlyWhileRecording()
{
    TileTest t;
    const QLabel* text = t.parts().recordText;
    QTest::qWait(300);
    QCOMPARE(text->styleSheet(), textStyle("1.0"));
    QElapsedTimer sinceStart;
    sinceStart.start();
    t.viewControl.setRecord(t.channel(), true);
    QTRY_COMPARE(text->styleSheet(), textStyle("0.9"));
    QVERIFY(sinceStart.elapsed() >= 150); // a step takes 200, to within a timer's 5 %
    QTRY_COMPARE(text->styleSheet(), textStyle("0.7"));
    t.viewControl.setRecord(t.channel(), false);
    const QString last = text->styleSheet();
    QTest::qWait(300);
    QCOMPARE(text->styleSheet(), last);
}

void TestTileStates::selectedChannelHasTheBlueFrame()
{
    TileTest t(2);
    QVERIFY(t.show());
    Dev::instance()->selectChannel(t.channel(0));
    QCOMPARE(t.parts(0).frame->styleSheet(), selectedFrame);
    QCOMPARE(t.parts(1).frame->styleSheet(), plainFrame);
    const Yuv grey{128, 128, 128};
    t.decode(Picture(QSize(64, 48), grey), 0);
    t.decode(Picture(QSize(64, 48), grey), 1);
    const QRgb frames[] = {qRgb(0x64, 0x95, 0xed), qRgb(0xcc, 0xcc, 0xcc)};
    for (int i = 0; i < 2; ++i) {
        QTRY_COMPARE(
            differences(t.screen(i), t.tile(i)->rect(),
                [&](QPoint at) { return t.visible(i).contains(at) ? rgbOf(grey) : frames[i]; }),
            QString());
    }
    Dev::instance()->selectChannel(t.channel(1));
    QCOMPARE(t.parts(0).frame->styleSheet(), plainFrame);
    QCOMPARE(t.parts(1).frame->styleSheet(), selectedFrame);
    Dev::instance()->selectChannel(nullptr);
    QCOMPARE(t.parts(1).frame->styleSheet(), plainFrame);
}

void TestTileStates::boundTileTakesTheSelection()
{
    TileTest t;
    t.device->setChannelCount(2);
    Dev::instance()->selectChannel(t.channel(1));
    QCOMPARE(t.parts().frame->styleSheet(), plainFrame);
    t.tile()->setChannel(t.device.get(), t.channel(1));
    QCOMPARE(t.parts().frame->styleSheet(), selectedFrame);
    t.tile()->setChannel(t.device.get(), t.channel(0));
    QCOMPARE(t.parts().frame->styleSheet(), plainFrame);
}

void TestTileStates::selectionOfNothingIsNotThatOfAnEmptyTile()
{
    TileTest t;
    t.tile()->setChannel(nullptr, nullptr);
    t.tile()->showSelectedChannel(nullptr);
    QCOMPARE(t.parts().frame->styleSheet(), plainFrame);
}

ORVA_TEST(TestTileStates)
#include "tst_tilestates.moc"
