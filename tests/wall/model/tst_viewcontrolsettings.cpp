// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"
#include "testmain.h"
#include "wallwatch.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

// What the wall begins with, its plain values, and what it tells of them.
class TestViewControlSettings final : public QObject
{
    Q_OBJECT

private slots:
    void layoutsAndScaleComeFromTheSettings();
    void unknownStoredLayoutGivesFourTiles_data();
    void unknownStoredLayoutGivesFourTiles();
    void wallBeginsInLiveViewAtMidnight();
    void wallIsTheOneInstance();
    void secondWallListensToNobody();
    void wallThatGoesTakesItsTilesAlong();

    void scaleIsToldOnlyWhereItChanges();
    void fullScreenIsToldEachTime();
    void speedsAreToldOnlyWhereTheyChange();
    void dateIsToldEachTime();
    void timeAndDateMakeThePoint();
    void deletionOfNoDeviceIsNotAsked();

    void signalsAreThose_data();
    void signalsAreThose();
};

namespace {

void store(int windowNum, int replayWindowNum, int scale = 0)
{
    Location::instance()->setWindowNum(windowNum);
    Location::instance()->setReplayWindowNum(replayWindowNum);
    Location::instance()->setScale(scale);
}

} // namespace

void TestViewControlSettings::layoutsAndScaleComeFromTheSettings()
{
    store(11, 3, 2);
    ViewControl wall;
    QCOMPARE(wall.getWindowMod(true), WINDOW_MOD_64);
    QCOMPARE(wall.getWindowMod(false), WINDOW_MOD_6);
    QCOMPARE(wall.getScale(), 2);
    QCOMPARE(wall.getTileCount(), 64);
    wall.changeMod(false);
    QCOMPARE(wall.getTileCount(), 6);
    store(1, 1);
}

void TestViewControlSettings::unknownStoredLayoutGivesFourTiles_data()
{
    QTest::addColumn<int>("stored");
    for (const int stored :
        {-1, 12, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", stored) << stored;
}

void TestViewControlSettings::unknownStoredLayoutGivesFourTiles()
{
    QFETCH(int, stored);
    store(stored, 7);
    {
        const ViewControl wall;
        QCOMPARE(wall.getWindowMod(true), WINDOW_MOD_4);
        QCOMPARE(wall.getWindowMod(false), WINDOW_MOD_16);
        QCOMPARE(wall.getTileCount(), 4);
        QCOMPARE(wall.getPageCount(), 0);
    }
    store(7, stored);
    {
        ViewControl wall;
        QCOMPARE(wall.getWindowMod(true), WINDOW_MOD_16);
        QCOMPARE(wall.getWindowMod(false), WINDOW_MOD_4);
        wall.changeMod(false);
        QCOMPARE(wall.getTileCount(), 4);
        QCOMPARE(Location::instance()->getReplayWindowNum(), 1);
    }
    store(1, 1);
}

void TestViewControlSettings::wallBeginsInLiveViewAtMidnight()
{
    const QDate before = QDate::currentDate();
    const ViewControl wall;
    QVERIFY(wall.getIsLive());
    QCOMPARE(wall.getPage(), 0);
    QVERIFY(!wall.getFull());
    QCOMPARE(wall.getSpeed(false), PLAY_SPEED_X1);
    QCOMPARE(wall.getSpeed(true), PLAY_SPEED_X1);
    QVERIFY(wall.getDate() == before || wall.getDate() == QDate::currentDate());
    QCOMPARE(wall.getDateTime(), QDateTime(wall.getDate(), QTime(0, 0, 0, 0)));
    QCOMPARE(wall.getVideoTimeCount(), 0);
}

void TestViewControlSettings::wallIsTheOneInstance()
{
    auto wall = std::make_unique<ViewControl>();
    QCOMPARE(ViewControl::instance(), wall.get());
    {
        const ViewControl second;
        QCOMPARE(ViewControl::instance(), wall.get());
    }
    QCOMPARE(ViewControl::instance(), wall.get());
    wall.reset();
    const std::unique_ptr<ViewControl> built(ViewControl::instance());
    QVERIFY(built != nullptr);
    QCOMPARE(ViewControl::instance(), built.get());
}

void TestViewControlSettings::secondWallListensToNobody()
{
    WallTest t;
    Device* device = t.addDevice(2);
    const ViewControl second;
    QSignalSpy label(&second, &ViewControl::createPageMsg);
    QVERIFY(t.open(device, 2));
    Dev::instance()->selectChannel(device->channel(0));
    t.viewControl.closeChannel(device->channel(0));
    QVERIFY(t.settle());
    emit t.io->stopReplaySuccessMsg(device->channel(0));
    QCOMPARE(label.count(), 0);
    QCOMPARE(second.getTileCount(), 0);

    // One that listened would take these channels for its own.
    QCOMPARE(onTiles(t), QStringLiteral("- 0.1 - -"));
    QCOMPARE(ViewControl::instance(), &t.viewControl);
}

void TestViewControlSettings::wallThatGoesTakesItsTilesAlong()
{
    QWidget screen;
    {
        ViewControl wall;
        wall.createWindows(&screen);
        QCOMPARE(screen.findChildren<GlWidgetViewWindow*>().size(), 4);
    }
    QVERIFY(screen.findChildren<GlWidgetViewWindow*>().isEmpty());
}

void TestViewControlSettings::scaleIsToldOnlyWhereItChanges()
{
    WallTest t;
    QSignalSpy spy(&t.viewControl, &ViewControl::scaleChangeMsg);
    t.viewControl.setScale(0);
    QCOMPARE(spy.count(), 0);
    t.viewControl.setScale(2);
    QCOMPARE(t.viewControl.getScale(), 2);
    t.viewControl.setScale(2);
    QCOMPARE(spy.count(), 1);
    t.viewControl.setScale(-7);
    QCOMPARE(t.viewControl.getScale(), -7);
    QCOMPARE(spy.count(), 2);
}

void TestViewControlSettings::fullScreenIsToldEachTime()
{
    WallTest t;
    QSignalSpy spy(&t.viewControl, &ViewControl::fullGLMsg);
    t.viewControl.setFull(true);
    QVERIFY(t.viewControl.getFull());
    t.viewControl.setFull(true);
    t.viewControl.setFull(false);
    QVERIFY(!t.viewControl.getFull());
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(1).first().toBool(), true);
    QCOMPARE(spy.at(2).first().toBool(), false);
}

void TestViewControlSettings::speedsAreToldOnlyWhereTheyChange()
{
    qRegisterMetaType<PLAY_SPEED>("PLAY_SPEED");
    WallTest t;
    QSignalSpy forward(&t.viewControl, &ViewControl::speedChangeMsg);
    QSignalSpy backward(&t.viewControl, &ViewControl::speedBackChangeMsg);
    t.viewControl.setSpeed(PLAY_SPEED_X1, false);
    t.viewControl.setSpeed(PLAY_SPEED_X1, true);
    QCOMPARE(forward.count() + backward.count(), 0);
    t.viewControl.setSpeed(PLAY_SPEED_X4, false);
    QCOMPARE(t.viewControl.getSpeed(false), PLAY_SPEED_X4);
    QCOMPARE(t.viewControl.getSpeed(true), PLAY_SPEED_X1);
    QCOMPARE(forward.count(), 1);
    QCOMPARE(backward.count(), 0);
    QCOMPARE(forward.first().first().value<PLAY_SPEED>(), PLAY_SPEED_X4);
    t.viewControl.setSpeed(PLAY_SPEED_1_32, true);
    QCOMPARE(t.viewControl.getSpeed(true), PLAY_SPEED_1_32);
    QCOMPARE(t.viewControl.getSpeed(false), PLAY_SPEED_X4);
    t.viewControl.setSpeed(PLAY_SPEED_1_32, true);
    QCOMPARE(forward.count(), 1);
    QCOMPARE(backward.count(), 1);
    QCOMPARE(backward.first().first().value<PLAY_SPEED>(), PLAY_SPEED_1_32);
}

void TestViewControlSettings::dateIsToldEachTime()
{
    WallTest t;
    QSignalSpy spy(&t.viewControl, &ViewControl::dateChangeMsg);
    const QDate day(2024, 2, 29);
    t.viewControl.setDate(day);
    QCOMPARE(t.viewControl.getDate(), day);
    t.viewControl.setDate(day);
    QCOMPARE(spy.count(), 2);
    t.viewControl.setDate(QDate()); // which is no date
    QCOMPARE(spy.count(), 3);
    QVERIFY(!t.viewControl.getDate().isValid());
}

void TestViewControlSettings::timeAndDateMakeThePoint()
{
    WallTest t;
    t.viewControl.setDate(QDate(2024, 3, 9));
    QSignalSpy spy(&t.viewControl, &ViewControl::dateChangeMsg);
    t.viewControl.setTime(QTime(7, 5, 2));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(t.viewControl.getDateTime(), QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2)));
    QCOMPARE(t.viewControl.getDateTime().timeSpec(), Qt::LocalTime);
}

void TestViewControlSettings::deletionOfNoDeviceIsNotAsked()
{
    WallTest t;
    Device* device = t.addDevice(1);
    QSignalSpy spy(&t.viewControl, &ViewControl::openDelAlertMsg);
    t.viewControl.openDelAlert(nullptr);
    QCOMPARE(spy.count(), 0);
    t.viewControl.openDelAlert(device);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().value<Device*>(), device);
}

void TestViewControlSettings::signalsAreThose_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char* signature : {"changeModMsg(bool)", "dateChangeMsg()", "closeMenuMsg()",
             "quitMsg()", "recordMsg(Channel*,bool)", "resizeMsg()", "windowNumberChangeMsg()",
             "openedSubWindowMenuMsg(Device*,Channel*,QMouseEvent*)", "openDevManageMsg(Device*)",
             "enteredRow(int)", "clickedRow(int)", "leaveTable()", "speedChangeMsg(PLAY_SPEED)",
             "speedBackChangeMsg(PLAY_SPEED)", "fullGLMsg(bool)", "openDelAlertMsg(Device*)",
             "closeDelAlertMsg()", "glErrorMsg(int,QString)", "createPageMsg(int,int)",
             "scaleChangeMsg()", "closeSpeedListMsg(bool)"})
        QTest::newRow(signature) << QByteArray(signature);
}

void TestViewControlSettings::signalsAreThose()
{
    QFETCH(QByteArray, signature);
    const QMetaObject& meta = ViewControl::staticMetaObject;
    const int index = meta.indexOfSignal(signature.constData());
    QVERIFY(index >= 0);
    int signalCount = 0;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signalCount += meta.method(i).methodType() == QMetaMethod::Signal ? 1 : 0;
    QCOMPARE(signalCount, 21);
}

ORVA_TEST(TestViewControlSettings)
#include "tst_viewcontrolsettings.moc"
