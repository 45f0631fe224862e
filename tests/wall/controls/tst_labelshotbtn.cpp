// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "testmain.h"
#include "wall/labelshotbtn.h"
#include "walltest.h"

#include <QTest>

// The key that asks for a snapshot of the selected channel.
class TestLabelShotBtn final : public QObject
{
    Q_OBJECT

private slots:
    void pressShowsAndReleaseAsks();
    void asksInTheModeOfTheWall();
    void withNothingSelectedOnlyThePictureChanges();
    void releaseElsewhereAsksToo();
    void anotherMouseButtonDoesNothing();
    void releaseWithoutAPressDoesNothing();
    void keyboardAsks();
    void channelIsTheOneSelectedAtTheRelease();
};

namespace {

struct ShotTest
{
    ShotTest()
        : device(wall.addDevice(2))
    {
    }
    Channel* channel(int number = 0) const { return device->channel(number); }
    bool showsPressed() const { return shows(key.key, QStringLiteral("screenShot-hover")); }
    bool showsIdle() const { return shows(key.key, QStringLiteral("screenShot")); }

    WallTest wall;
    Device* device;
    KeyWindow<LabelShotBtn> key;
};

} // namespace

void TestLabelShotBtn::pressShowsAndReleaseAsks()
{
    ShotTest t;
    QVERIFY(t.key.show());
    QVERIFY(t.showsIdle());
    Dev::instance()->selectChannel(t.channel());
    press(t.key.key);
    QVERIFY(t.showsPressed());
    QVERIFY(!t.channel()->mode(true).screenshot);
    release(t.key.key);
    QVERIFY(t.showsIdle());
    QVERIFY(t.channel()->mode(true).screenshot);
    QVERIFY(!t.channel(1)->mode(true).screenshot);
}

void TestLabelShotBtn::asksInTheModeOfTheWall()
{
    ShotTest t;
    QVERIFY(t.key.show());
    Dev::instance()->selectChannel(t.channel());
    click(t.key.key);
    QVERIFY(!t.channel()->mode(false).screenshot);
    t.channel()->mode(true).screenshot = false;
    t.wall.viewControl.changeMod(false);
    click(t.key.key);
    QVERIFY(t.channel()->mode(false).screenshot);
    QVERIFY(!t.channel()->mode(true).screenshot);
}

void TestLabelShotBtn::withNothingSelectedOnlyThePictureChanges()
{
    ShotTest t;
    QVERIFY(t.key.show());
    press(t.key.key);
    QVERIFY(t.showsPressed());
    release(t.key.key);
    QVERIFY(t.showsIdle());
    QVERIFY(!t.channel()->mode(true).screenshot);
}

void TestLabelShotBtn::releaseElsewhereAsksToo()
{
    ShotTest t;
    QVERIFY(t.key.show());
    Dev::instance()->selectChannel(t.channel());
    press(t.key.key);
    QTest::mouseRelease(t.key.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(t.showsIdle());
    QVERIFY(t.channel()->mode(true).screenshot);
}

void TestLabelShotBtn::anotherMouseButtonDoesNothing()
{
    ShotTest t;
    QVERIFY(t.key.show());
    Dev::instance()->selectChannel(t.channel());
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        press(t.key.key, button);
        QVERIFY(t.showsIdle());
        release(t.key.key, button);
        QVERIFY(!t.channel()->mode(true).screenshot);
    }
    press(t.key.key);
    release(t.key.key, Qt::RightButton);
    QVERIFY(t.showsPressed()); // the left button is still down
    release(t.key.key);
    QVERIFY(t.showsIdle());
}

void TestLabelShotBtn::releaseWithoutAPressDoesNothing()
{
    ShotTest t;
    QVERIFY(t.key.show());
    Dev::instance()->selectChannel(t.channel());
    QTest::mousePress(t.key.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    release(t.key.key);
    QVERIFY(!t.channel()->mode(true).screenshot);
}

void TestLabelShotBtn::keyboardAsks()
{
    ShotTest t;
    QVERIFY(t.key.show());
    Dev::instance()->selectChannel(t.channel());
    t.key.key->setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        type(t.key.key, key);
        QVERIFY(t.channel()->mode(true).screenshot);
        QVERIFY(t.showsIdle());
        t.channel()->mode(true).screenshot = false;
    }
    type(t.key.key, Qt::Key_Escape);
    QVERIFY(!t.channel()->mode(true).screenshot);
}

void TestLabelShotBtn::channelIsTheOneSelectedAtTheRelease()
{
    ShotTest t;
    QVERIFY(t.key.show());
    Dev::instance()->selectChannel(t.channel());
    press(t.key.key);
    Dev::instance()->selectChannel(t.channel(1));
    release(t.key.key);
    QVERIFY(!t.channel()->mode(true).screenshot);
    QVERIFY(t.channel(1)->mode(true).screenshot);
    Dev::instance()->removeDevice(t.device);
    QVERIFY(t.wall.settle());
    click(t.key.key); // nothing is selected any more
    QVERIFY(t.showsIdle());
}

ORVA_TEST(TestLabelShotBtn)
#include "tst_labelshotbtn.moc"
