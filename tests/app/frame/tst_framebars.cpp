// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametest.h"
#include "hands.h"
#include "testmain.h"
#include "wall/pagebtn.h"
#include "wall/widgetbtnlive.h"

#include <QLayout>
#include <QSlider>

// Name bar, page label, control bar: what they show and what they set.
class TestFrameBars final : public QObject
{
    Q_OBJECT

private slots:
    void nameBarShowsTheSelectedDevice();
    void nameBarShowsTheUidOfADeviceWithoutAName();
    void nameBarUsesAllItsRoomFromTheStart();
    void nameBarForgetsADeviceThatLeaves();
    void namesArePlainTextAndDoNotWidenTheWindow_data();
    void namesArePlainTextAndDoNotWidenTheWindow();
    void pageLabelCountsFromOne();
    void pageLabelShowsZeroWhereNoChannelIsOpen();
    void pageLabelFollowsTheWall();
    void pageKeysTurnThePages();
    void volumeSliderStandsAtTheVolumeAndSetsIt();
    void speedLabelsFollowTheWall_data();
    void speedLabelsFollowTheWall();
    void speedOutsideTheTableShowsNothing();
    void disabledKeysAreGrey();
    void modeIsMarkedInTheHeader();
    void controlsOfPlaybackShowInPlaybackOnly();
    void playbackIsNotToBeHadYet();
    void textsFollowTheLanguage();
};

namespace {

// A device with one name, selected.
Device* select(FrameTest& t, const QString& name)
{
    Device* device = t.wall.addDevice(1);
    device->setNickName(name);
    Dev::instance()->selectDevice(device);
    return device;
}

} // namespace

void TestFrameBars::nameBarShowsTheSelectedDevice()
{
    FrameTest t;
    QVERIFY(t.open());
    QCOMPARE(t.label("label_devName")->text(), QString("[Unselected]"));
    select(t, "Gate camera");
    QCOMPARE(t.label("label_devName")->text(), QString("Gate camera"));
    Dev::instance()->selectDevice(nullptr);
    QCOMPARE(t.label("label_devName")->text(), QString("[Unselected]"));
}

void TestFrameBars::nameBarShowsTheUidOfADeviceWithoutAName()
{
    FrameTest t;
    QVERIFY(t.open());
    const Device* device = select(t, QString());
    QCOMPARE(t.label("label_devName")->text(), device->uid());
}

void TestFrameBars::nameBarUsesAllItsRoomFromTheStart()
{
    FrameTest t;
    const QString name = "The camera above the gate of the yard behind the old workshop";
    select(t, name);
    QVERIFY(t.open());
    QTRY_COMPARE(t.label("label_devName")->text(), name);
}

void TestFrameBars::nameBarForgetsADeviceThatLeaves()
{
    FrameTest t;
    QVERIFY(t.open());
    Device* device = select(t, "Gate camera");
    Dev::instance()->removeDevice(device);
    QCOMPARE(t.label("label_devName")->text(), QString("[Unselected]"));
}

void TestFrameBars::namesArePlainTextAndDoNotWidenTheWindow_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << "<h1 style='color:red'>A</h1><img src='x' width='4000'>";
    QTest::newRow("long word") << QString(10000, 'W');
    QTest::newRow("long text") << QString("many words ").repeated(1000);
    QTest::newRow("lines") << QString("line\n").repeated(100);
}

void TestFrameBars::namesArePlainTextAndDoNotWidenTheWindow()
{
    QFETCH(QString, name);
    FrameTest t;
    QVERIFY(t.open());
    const QSize bar = t.part("widget_nameBar")->size();
    select(t, name);
    const QLabel* label = t.label("label_devName");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    QCOMPARE(label->text().left(4), name.left(4));
    QVERIFY(t.wall.settle());
    t.frame()->layout()->activate();
    QCOMPARE(t.part("widget_nameBar")->size(), bar);
    QVERIFY(t.gate.window.minimumSizeHint().width() <= 1080);
    QVERIFY(t.gate.window.minimumSizeHint().height() <= 720);
    QCOMPARE(t.gate.window.size(), QSize(1080, 720));
    QVERIFY(
        t.label("label_total")->visibleRegion().boundingRect() == t.label("label_total")->rect());
}

void TestFrameBars::pageLabelCountsFromOne()
{
    FrameTest t;
    QVERIFY(t.open());
    emit t.wall.viewControl.createPageMsg(0, 1);
    QCOMPARE(t.label("label_page")->text(), QString("1"));
    QCOMPARE(t.label("label_total")->text(), QString("1"));
    emit t.wall.viewControl.createPageMsg(63, 64);
    QCOMPARE(t.label("label_page")->text(), QString("64"));
    QCOMPARE(t.label("label_total")->text(), QString("64"));
}

void TestFrameBars::pageLabelShowsZeroWhereNoChannelIsOpen()
{
    FrameTest t;
    QVERIFY(t.open());
    QCOMPARE(t.label("label_page")->text(), QString("0"));
    emit t.wall.viewControl.createPageMsg(2, 3);
    emit t.wall.viewControl.createPageMsg(-1, 0);
    QCOMPARE(t.label("label_page")->text(), QString("0"));
    QCOMPARE(t.label("label_total")->text(), QString("0"));
}

void TestFrameBars::pageLabelFollowsTheWall()
{
    FrameTest t;
    QVERIFY(t.open());
    Device* device = t.wall.addDevice(5);
    QVERIFY(t.wall.open(device, 5));
    QCOMPARE(t.label("label_page")->text(), QString("1"));
    QCOMPARE(t.label("label_total")->text(), QString("2"));
    for (int i = 0; i < 5; ++i)
        t.wall.viewControl.closeChannel(device->channel(i));
    QVERIFY(t.wall.settle());
    QCOMPARE(t.label("label_page")->text(), QString("0"));
    QCOMPARE(t.label("label_total")->text(), QString("0"));
}

void TestFrameBars::pageKeysTurnThePages()
{
    FrameTest t;
    QVERIFY(t.open());
    Device* device = t.wall.addDevice(5);
    QVERIFY(t.wall.open(device, 5));
    const auto keys = t.viewBox()->findChildren<PageBtn*>();
    QCOMPARE(keys.size(), 2);
    PageBtn* left = keys.first()->x() < keys.last()->x() ? keys.first() : keys.last();
    PageBtn* right = left == keys.first() ? keys.last() : keys.first();
    QCOMPARE(left->x(), 0);
    QCOMPARE(right->geometry().right(), t.viewBox()->rect().right());
    click(left); // there is none before the first
    QCOMPARE(t.label("label_page")->text(), QString("1"));
    click(right);
    QCOMPARE(t.label("label_page")->text(), QString("2"));
    QCOMPARE(t.wall.shown(1).first(), device->channel(4));
    click(right);
    QCOMPARE(t.label("label_page")->text(), QString("2"));
    click(left);
    QCOMPARE(t.label("label_page")->text(), QString("1"));
}

void TestFrameBars::volumeSliderStandsAtTheVolumeAndSetsIt()
{
    FrameTest t;
    t.wall.decode.setVolume(37);
    QVERIFY(t.open());
    auto* slider = t.part<QSlider>("horizontalSlider_volume");
    QCOMPARE(slider->value(), 37);
    for (int volume : {0, slider->maximum(), 1}) {
        slider->setValue(volume);
        QCOMPARE(t.wall.decode.getVolume(), volume);
    }
    QCOMPARE(slider->minimum(), 0);
    QVERIFY(slider->maximum() >= 100);
}

void TestFrameBars::speedLabelsFollowTheWall_data()
{
    QTest::addColumn<int>("speed");
    QTest::addColumn<QString>("text");
    const QStringList texts{
        "1/32", "1/16", "1/8", "1/4", "1/2", "x1", "x2", "x4", "x8", "x16", "x32"};
    for (int speed = 0; speed < texts.size(); ++speed)
        QTest::newRow(qPrintable(texts.at(speed))) << speed << texts.at(speed);
}

void TestFrameBars::speedLabelsFollowTheWall()
{
    QFETCH(int, speed);
    QFETCH(QString, text);
    FrameTest t;
    QVERIFY(t.open());
    QCOMPARE(t.label("label_ffSpeed")->text(), QString("x1"));
    QCOMPARE(t.label("label_fbSpeed")->text(), QString("x1"));
    const QString other = speed == PLAY_SPEED_X1 ? "x2" : "x1";
    t.wall.viewControl.setSpeed(speed == PLAY_SPEED_X1 ? PLAY_SPEED_X2 : PLAY_SPEED_X1, true);
    t.wall.viewControl.setSpeed(static_cast<PLAY_SPEED>(speed), false);
    QCOMPARE(t.label("label_ffSpeed")->text(), text);
    QCOMPARE(t.label("label_fbSpeed")->text(), other);
    t.wall.viewControl.setSpeed(static_cast<PLAY_SPEED>(speed), true);
    QCOMPARE(t.label("label_fbSpeed")->text(), text);
}

void TestFrameBars::speedOutsideTheTableShowsNothing()
{
    FrameTest t;
    QVERIFY(t.open());
    for (int speed : {11, 15}) {
        t.label("label_ffSpeed")->setText("x");
        t.label("label_fbSpeed")->setText("x");
        emit t.wall.viewControl.speedChangeMsg(static_cast<PLAY_SPEED>(speed));
        emit t.wall.viewControl.speedBackChangeMsg(static_cast<PLAY_SPEED>(speed));
        QCOMPARE(t.label("label_ffSpeed")->text(), QString());
        QCOMPARE(t.label("label_fbSpeed")->text(), QString());
    }
}

void TestFrameBars::disabledKeysAreGrey()
{
    constexpr QRgb grey = 0xFF566376;
    FrameTest t;
    QVERIFY(t.open());
    for (const char* name : {"label_icon_photo", "label_icon_video"}) {
        QVERIFY(!t.part(name)->isEnabled());
        const QImage seen = t.part(name)->grab().toImage();
        int points = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                points += seen.pixel(x, y) == grey ? 1 : 0;
        }
        QVERIFY2(points > 20, name);
    }
}

void TestFrameBars::modeIsMarkedInTheHeader()
{
    FrameTest t;
    QVERIFY(t.open());
    const auto* live = t.part<WidgetBtnLive>("widget_btn_life");
    const auto* playback = t.part<WidgetBtnLive>("widget_btn_playback");
    QVERIFY(live->isSelected() && !playback->isSelected());
    t.wall.viewControl.changeMod(false);
    QVERIFY(!live->isSelected() && playback->isSelected());
    t.wall.viewControl.changeMod(true);
    QVERIFY(live->isSelected() && !playback->isSelected());
}

void TestFrameBars::controlsOfPlaybackShowInPlaybackOnly()
{
    FrameTest t;
    QVERIFY(t.open());
    const auto parts = {"widget_progressBar", "label_dateBtn", "label_icon_pause", "label_icon_fb",
        "label_icon_ff", "widget_icon_fbBox", "widget_icon_ffBox"};
    const int height = t.viewBox()->height();
    for (const bool isLive : {true, false, true}) {
        t.wall.viewControl.changeMod(isLive);
        for (const char* name : parts)
            QVERIFY2(t.part(name)->isVisible() != isLive, name);
        QTRY_COMPARE(t.viewBox()->height(), isLive ? height : height - 80);
    }
}

void TestFrameBars::playbackIsNotToBeHadYet()
{
    FrameTest t;
    QVERIFY(t.open());
    click(t.part("widget_btn_playback"));
    QVERIFY(t.wall.viewControl.getIsLive());
    for (const char* name : {"widget_btn_playback", "label_controlPanel_btn"}) {
        QVERIFY(!t.part(name)->isEnabled());
        QVERIFY(!t.part(name)->toolTip().isEmpty());
    }
}

void TestFrameBars::textsFollowTheLanguage()
{
    FrameTest t;
    QVERIFY(t.open());
    select(t, "Gate camera");
    const Brackets brackets;
    QTRY_COMPARE(t.label("label_title_devList")->text(), QString("[Device List]"));
    QCOMPARE(t.label("label_pageText")->text(), QString("[Page:]"));
    QCOMPARE(t.label("label_devName")->text(), QString("Gate camera"));
    Dev::instance()->selectDevice(nullptr);
    QCOMPARE(t.label("label_devName")->text(), QString("[[Unselected]]"));
}

ORVA_TEST(TestFrameBars)
#include "tst_framebars.moc"
