// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "store/location.h"
#include "testmain.h"
#include "wall/labelrecordbtn.h"
#include "walltest.h"

#include <QSignalSpy>
#include <QTest>

// The key that records the selected channel.
class TestLabelRecordBtn final : public QObject
{
    Q_OBJECT

private slots:
    void clickWithNothingSelectedDoesNothing();
    void pressRecordsAndAnotherOneStops();
    void recordsInTheModeOfTheWall();
    void anotherMouseButtonDoesNothing();
    void keyboardRecordsAndStops();
    void pictureFollowsTheRecordingOfTheSelectedChannelOnly();
    void pictureFollowsTheSelection();
    void pictureFollowsTheMode();
    void keyThatComesLateShowsTheRecordingThatRuns();
    void endOfASegmentShowsOnTheKey();
    void deviceThatLeavesWhileItRecordsLeavesTheKeyFree();
    void hintNamesWhatAPressDoes();
};

namespace {

struct RecordTest
{
    RecordTest()
        : device(wall.addDevice(2))
    {
    }
    Channel* channel(int number = 0) const { return device->channel(number); }
    static void select(Channel* channel)
    {
        Dev::instance()->selectDevice(channel != nullptr ? channel->device() : nullptr);
        Dev::instance()->selectChannel(channel);
    }
    bool showsRecording() const { return shows(key.key, QStringLiteral("screenCap-hover")); }
    bool showsIdle() const { return shows(key.key, QStringLiteral("screenCap")); }

    WallTest wall;
    Device* device;
    KeyWindow<LabelRecordBtn> key;
};

} // namespace

void TestLabelRecordBtn::clickWithNothingSelectedDoesNothing()
{
    RecordTest t;
    QVERIFY(t.key.show());
    QSignalSpy records(&t.wall.viewControl, &ViewControl::recordMsg);
    click(t.key.key);
    type(t.key.key, Qt::Key_Tab);
    type(t.key.key, Qt::Key_Space);
    QCOMPARE(records.count(), 0);
    QVERIFY(t.showsIdle());
    QVERIFY(!t.channel()->mode(true).record);
}

void TestLabelRecordBtn::pressRecordsAndAnotherOneStops()
{
    RecordTest t;
    QVERIFY(t.key.show());
    RecordTest::select(t.channel());
    QSignalSpy records(&t.wall.viewControl, &ViewControl::recordMsg);
    press(t.key.key);
    QVERIFY(t.channel()->mode(true).record); // it does not wait for the release
    QVERIFY(t.showsRecording());
    release(t.key.key);
    QCOMPARE(records.count(), 1);
    QVERIFY(t.showsRecording());
    QVERIFY(!t.channel(1)->mode(true).record);
    click(t.key.key);
    QVERIFY(!t.channel()->mode(true).record);
    QVERIFY(t.showsIdle());
    QCOMPARE(records.count(), 2);
}

void TestLabelRecordBtn::recordsInTheModeOfTheWall()
{
    RecordTest t;
    QVERIFY(t.key.show());
    t.wall.viewControl.changeMod(false);
    RecordTest::select(t.channel());
    click(t.key.key);
    QVERIFY(t.channel()->mode(false).record);
    QVERIFY(!t.channel()->mode(true).record);
    QVERIFY(t.showsRecording());
    t.channel()->setRecord(true, true); // the other mode's does not count
    click(t.key.key);
    QVERIFY(!t.channel()->mode(false).record);
    QVERIFY(t.channel()->mode(true).record);
    QVERIFY(t.showsIdle());
}

void TestLabelRecordBtn::anotherMouseButtonDoesNothing()
{
    RecordTest t;
    QVERIFY(t.key.show());
    RecordTest::select(t.channel());
    click(t.key.key, Qt::RightButton);
    click(t.key.key, Qt::MiddleButton);
    QVERIFY(!t.channel()->mode(true).record);
    QVERIFY(t.showsIdle());
}

void TestLabelRecordBtn::keyboardRecordsAndStops()
{
    RecordTest t;
    QVERIFY(t.key.show());
    RecordTest::select(t.channel());
    t.key.key->setFocus(Qt::TabFocusReason);
    type(t.key.key, Qt::Key_Space);
    QVERIFY(t.channel()->mode(true).record);
    type(t.key.key, Qt::Key_Return);
    QVERIFY(!t.channel()->mode(true).record);
    type(t.key.key, Qt::Key_Escape);
    type(t.key.key, Qt::Key_R);
    QVERIFY(!t.channel()->mode(true).record);
}

void TestLabelRecordBtn::pictureFollowsTheRecordingOfTheSelectedChannelOnly()
{
    RecordTest t;
    RecordTest::select(t.channel());
    t.wall.viewControl.setRecord(t.channel(1), true);
    QVERIFY(t.showsIdle());
    t.wall.viewControl.setRecord(t.channel(), true);
    QVERIFY(t.showsRecording());
    t.wall.viewControl.setRecord(t.channel(1), false);
    QVERIFY(t.showsRecording());
    t.wall.viewControl.setRecord(t.channel(), false);
    QVERIFY(t.showsIdle());
    RecordTest::select(nullptr);
    t.wall.viewControl.setRecord(t.channel(), true);
    emit t.wall.viewControl.recordMsg(nullptr, true);
    QVERIFY(t.showsIdle());
}

void TestLabelRecordBtn::pictureFollowsTheSelection()
{
    RecordTest t;
    t.wall.viewControl.setRecord(t.channel(1), true);
    RecordTest::select(t.channel());
    QVERIFY(t.showsIdle());
    RecordTest::select(t.channel(1));
    QVERIFY(t.showsRecording());
    RecordTest::select(t.channel());
    QVERIFY(t.showsIdle());
    RecordTest::select(t.channel(1));
    RecordTest::select(nullptr);
    QVERIFY(t.showsIdle());
}

void TestLabelRecordBtn::pictureFollowsTheMode()
{
    RecordTest t;
    RecordTest::select(t.channel());
    t.wall.viewControl.setRecord(t.channel(), true);
    t.wall.viewControl.changeMod(false);
    QVERIFY(t.showsIdle());
    t.wall.viewControl.changeMod(true);
    QVERIFY(t.showsRecording());
}

void TestLabelRecordBtn::keyThatComesLateShowsTheRecordingThatRuns()
{
    RecordTest t;
    RecordTest::select(t.channel());
    t.wall.viewControl.setRecord(t.channel(), true);
    const LabelRecordBtn late;
    QVERIFY(shows(&late, QStringLiteral("screenCap-hover")));
}

void TestLabelRecordBtn::endOfASegmentShowsOnTheKey()
{
    RecordTest t;
    const int minutes = Location::instance()->getTimeLength();
    Location::instance()->setTimeLength(0);
    RecordTest::select(t.channel());
    t.wall.viewControl.setRecord(t.channel(), true);
    Location::instance()->setTimeLength(minutes);
    QVERIFY(t.showsRecording());
    QTRY_VERIFY(t.showsIdle());
    QVERIFY(!t.channel()->mode(true).record);
}

void TestLabelRecordBtn::deviceThatLeavesWhileItRecordsLeavesTheKeyFree()
{
    RecordTest t;
    QVERIFY(t.key.show());
    RecordTest::select(t.channel());
    click(t.key.key);
    QVERIFY(t.showsRecording());
    Dev::instance()->removeDevice(t.device);
    QVERIFY(t.wall.settle());
    QVERIFY(t.showsIdle());
    QSignalSpy records(&t.wall.viewControl, &ViewControl::recordMsg);
    click(t.key.key);
    QCOMPARE(records.count(), 0);
}

void TestLabelRecordBtn::hintNamesWhatAPressDoes()
{
    RecordTest t;
    RecordTest::select(t.channel());
    QCOMPARE(t.key.key->toolTip(), QString("Record"));
    t.wall.viewControl.setRecord(t.channel(), true);
    QCOMPARE(t.key.key->toolTip(), QString("Stop Recording"));
    QCOMPARE(t.key.key->accessibleName(), QString("Stop Recording"));
    RecordTest::select(nullptr);
    QCOMPARE(t.key.key->toolTip(), QString("Record"));
}

ORVA_TEST(TestLabelRecordBtn)
#include "tst_labelrecordbtn.moc"
