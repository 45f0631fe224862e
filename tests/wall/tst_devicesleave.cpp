// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "testmain.h"
#include "tiletest.h"

#include <QTest>

// A device leaves the registry while it is shown, and is destroyed: nothing of it is read after that.
class TestDevicesLeave final : public QObject
{
    Q_OBJECT

private slots:
    void tileIsEmptyAfterwards();
    void selectedAndRecordingTileIsEmptyAfterwards();
    void pictureThatWaitsIsNotPainted();
    void latePictureIsNotTaken();
    void anotherDevicesTileStays();
};

namespace {

const Picture picture(QSize(320, 180), {170, 90, 180});

// Everything that makes a tile look at its channel.
void disturb(TileTest& t)
{
    emit t.viewControl.windowNumberChangeMsg();
    emit t.viewControl.recordMsg(nullptr, true);
    emit Dev::instance()->selectChannelMsg(nullptr);
    t.tile()->cleanScreen(nullptr);
    t.tile()->resize(180, 110, 3, 3);
    QTest::mouseClick(t.tile(), Qt::RightButton);
    QTest::mouseDClick(t.tile(), Qt::LeftButton);
    t.tile()->repaint();
    QTest::qWait(100);
    t.tile()->grabFramebuffer();
}

bool isEmpty(const TileTest& t)
{
    return t.tile()->getChannel() == nullptr && !t.tile()->isChannelBound() && !t.isWaiting()
        && t.parts().background->isVisible() && !t.parts().recordIndicator->isVisible();
}

} // namespace

void TestDevicesLeave::tileIsEmptyAfterwards()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(picture);
    QTRY_COMPARE(differences(t.screen(0), t.visible(), rgbOf({170, 90, 180})), QString());
    t.removeDevice();
    QVERIFY(isEmpty(t));
    disturb(t);
    QVERIFY(isEmpty(t));
}

void TestDevicesLeave::selectedAndRecordingTileIsEmptyAfterwards()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(picture);
    Dev::instance()->selectDevice(t.device.get());
    Dev::instance()->selectChannel(t.channel());
    t.viewControl.setRecord(t.channel(), true);
    t.removeDevice();
    QVERIFY(isEmpty(t));
    QVERIFY(t.parts().frame->styleSheet().contains(QLatin1String("#ccc")));
    disturb(t);
}

void TestDevicesLeave::pictureThatWaitsIsNotPainted()
{
    TileTest t(2);
    QVERIFY(t.show());
    for (int i = 0; i < 3; ++i) {
        t.decode(picture, 0);
        t.decode(picture, 1);
    }
    t.removeDevice();
    disturb(t);
    QVERIFY(isEmpty(t));
}

void TestDevicesLeave::latePictureIsNotTaken()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(picture);
    Channel* gone = t.channel();
    t.removeDevice();
    emit t.decoder.decodeSuccess(gone, true, 320, 180, 1);
    emit t.io->waitingStreamMsg(gone);
    emit t.io->videoRequestStopSuccessMsg(gone);
    disturb(t);
    QVERIFY(isEmpty(t));
}

void TestDevicesLeave::anotherDevicesTileStays()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(picture);
    Device other;
    emit Dev::instance()->deleteDevMsg(&other);
    QCOMPARE(t.tile()->getChannel(), t.channel());
    QCOMPARE(differences(t.painted(), t.inner(), rgbOf({170, 90, 180})), QString());
}

ORVA_TEST(TestDevicesLeave)
#include "tst_devicesleave.moc"
