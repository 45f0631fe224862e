// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "picture.h"
#include "testmain.h"
#include "wall/labelfullscreen.h"
#include "wall/widgetbtnlive.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

// The keys that change what the whole window shows: the mode switch, and full screen.
class TestModeSwitch final : public QObject
{
    Q_OBJECT

private slots:
    void leftPressTells();
    void otherButtonsDoNotTell();
    void spaceAndReturnTell();
    void pressDoesNotSelect();
    void selectedLookIsOfTheKeyAndOfItsFirstChild();
    void textIsReadAloud();
    void textCanBeAsLongAsALanguageNeeds();
    void clickGoesFullAndBack();
    void setterIsSilent();
    void mouseBrightensFullScreenAndFocusDoesNot();
    void fullScreenIgnoresOtherButtonsAndReleasesElsewhere();
    void keyboardGoesFull();
    void hintNamesWhatAClickDoes();
};

namespace {

struct Segment
{
    Segment()
    {
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.setStyleSheet(QStringLiteral("QWidget#ground{background:#12161D}"));
        window.setObjectName(QStringLiteral("ground"));
        window.setAttribute(Qt::WA_StyledBackground);
        window.resize(200, 60);
        key->setText(QStringLiteral("Live"));
        key->setPicture(QStringLiteral(":/main/images/btnImg/mode_live"));
        key->setGeometry(20, 12, 110, 34);
    }
    bool show()
    {
        window.show();
        window.activateWindow();
        const bool isActive = QTest::qWaitForWindowActive(&window);
        window.setFocus(); // not the key
        return isActive;
    }
    QLabel* label(int number) const
    {
        return key->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly).at(number);
    }

    QWidget window;
    WidgetBtnLive* key = new WidgetBtnLive(&window);
};

} // namespace

void TestModeSwitch::leftPressTells()
{
    Segment s;
    QVERIFY(s.show());
    QSignalSpy told(s.key, &WidgetBtnLive::clicked);
    press(s.key);
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.first().first().value<WidgetBtnLive*>(), s.key);
    release(s.key);
    QCOMPARE(told.count(), 1);
    click(s.label(0)); // what stands on it is it
    click(s.label(1));
    QCOMPARE(told.count(), 3);
}

void TestModeSwitch::otherButtonsDoNotTell()
{
    Segment s;
    QVERIFY(s.show());
    QSignalSpy told(s.key, &WidgetBtnLive::clicked);
    click(s.key, Qt::RightButton);
    click(s.key, Qt::MiddleButton);
    QCOMPARE(told.count(), 0);
}

void TestModeSwitch::spaceAndReturnTell()
{
    Segment s;
    QVERIFY(s.show());
    s.key->setFocus(Qt::TabFocusReason);
    QSignalSpy told(s.key, &WidgetBtnLive::clicked);
    type(s.key, Qt::Key_Space);
    type(s.key, Qt::Key_Return);
    QCOMPARE(told.count(), 2);
    type(s.key, Qt::Key_A);
    QCOMPARE(told.count(), 2);
}

void TestModeSwitch::pressDoesNotSelect()
{
    Segment s;
    QVERIFY(s.show());
    click(s.key);
    QVERIFY(!s.key->isSelected()); // whoever hears of it may refuse
}

void TestModeSwitch::selectedLookIsOfTheKeyAndOfItsFirstChild()
{
    Segment s;
    QVERIFY(s.show());
    moveTo(&s.window, QPoint(190, 5));
    QTRY_VERIFY(!s.key->underMouse());
    auto* text = qobject_cast<QLabel*>(s.key->children().first());
    QVERIFY(text != nullptr);
    QCOMPARE(text->text(), QString("Live"));
    const QRect plate = s.key->geometry();
    const QRect inner(plate.left() + 1, plate.top() + 6, 8, plate.height() - 12);
    const QColor ground("#12161D");
    QCOMPARE(differences(s.window.grab().toImage(), inner, ground.rgb()), QString());
    QCOMPARE(text->palette().color(QPalette::WindowText), QColor("#EEF2F7"));
    QVERIFY(shows(s.label(1), "mode_live"));

    s.key->setSelected(true);
    QVERIFY(s.key->isSelected());
    const QImage image = s.window.grab().toImage();
    QCOMPARE(differences(image, inner, QColor("#6495ED").rgb()), QString());
    QCOMPARE(QColor(image.pixel(plate.topLeft())), ground); // round corners
    QCOMPARE(text->palette().color(QPalette::WindowText), QColor("#0F1A2E"));
    QVERIFY(shows(s.label(1), "mode_live-on"));

    s.key->setSelected(false);
    QVERIFY(!s.key->isSelected());
    QCOMPARE(differences(s.window.grab().toImage(), inner, ground.rgb()), QString());
    QCOMPARE(text->palette().color(QPalette::WindowText), QColor("#EEF2F7"));
    QVERIFY(shows(s.label(1), "mode_live"));
}

void TestModeSwitch::textIsReadAloud()
{
    Segment s;
    QCOMPARE(s.key->accessibleName(), QString("Live"));
    s.key->setText(QStringLiteral("Playback"));
    QCOMPARE(s.key->accessibleName(), QString("Playback"));
    QCOMPARE(s.key->text(), QString("Playback"));
}

void TestModeSwitch::textCanBeAsLongAsALanguageNeeds()
{
    Segment s;
    QVERIFY(s.show());
    const int before = s.key->sizeHint().width();
    s.key->setText(QStringLiteral("Fernwiedergabe"));
    QVERIFY(s.key->sizeHint().width() > before);
    s.key->adjustSize();
    QVERIFY(s.label(0)->width() >= s.label(0)->sizeHint().width());
    s.key->setText(QStringLiteral("<b>A</b>"));
    QCOMPARE(s.label(0)->textFormat(), Qt::PlainText);
}

void TestModeSwitch::clickGoesFullAndBack()
{
    KeyWindow<LabelFullScreen> t;
    QVERIFY(t.show());
    QList<bool> told;
    QObject::connect(t.key, &LabelFullScreen::clickMsg, t.key, [&](bool isFull) {
        told.append(isFull);
        QCOMPARE(t.key->isFull(), isFull);
    });
    QVERIFY(shows(t.key, "full") || shows(t.key, "full-hover"));
    click(t.key);
    QVERIFY(shows(t.key, "full_exit") || shows(t.key, "full_exit-hover"));
    click(t.key);
    QVERIFY(shows(t.key, "full") || shows(t.key, "full-hover"));
    QCOMPARE(told, (QList<bool>{true, false}));
}

void TestModeSwitch::setterIsSilent()
{
    LabelFullScreen key;
    QSignalSpy told(&key, &LabelFullScreen::clickMsg);
    key.setFull(true);
    QVERIFY(key.isFull());
    QVERIFY(shows(&key, "full_exit"));
    key.setFull(false);
    QVERIFY(!key.isFull());
    QVERIFY(shows(&key, "full"));
    QCOMPARE(told.count(), 0);
}

void TestModeSwitch::mouseBrightensFullScreenAndFocusDoesNot()
{
    KeyWindow<LabelFullScreen> t;
    QVERIFY(t.show());
    moveTo(&t.window, QPoint(5, 5));
    QTRY_VERIFY(shows(t.key, "full"));
    moveTo(t.key);
    QTRY_VERIFY(shows(t.key, "full-hover"));
    t.key->setFull(true);
    QVERIFY(shows(t.key, "full_exit-hover"));
    moveTo(&t.window, QPoint(5, 5));
    QTRY_VERIFY(shows(t.key, "full_exit"));
    t.key->setFocus(Qt::TabFocusReason); // which has a border
    QTRY_VERIFY(t.key->hasFocus());
    QVERIFY(shows(t.key, "full_exit"));
}

void TestModeSwitch::fullScreenIgnoresOtherButtonsAndReleasesElsewhere()
{
    KeyWindow<LabelFullScreen> t;
    QVERIFY(t.show());
    QSignalSpy told(t.key, &LabelFullScreen::clickMsg);
    click(t.key, Qt::RightButton);
    click(t.key, Qt::MiddleButton);
    press(t.key);
    QTest::mouseRelease(t.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(told.count(), 0);
    QVERIFY(!t.key->isFull());
}

void TestModeSwitch::keyboardGoesFull()
{
    KeyWindow<LabelFullScreen> t;
    QVERIFY(t.show());
    t.key->setFocus(Qt::TabFocusReason);
    QSignalSpy told(t.key, &LabelFullScreen::clickMsg);
    type(t.key, Qt::Key_Return);
    QVERIFY(t.key->isFull());
    type(t.key, Qt::Key_Escape); // whoever stands around it takes that
    QVERIFY(t.key->isFull());
    type(t.key, Qt::Key_Space);
    QVERIFY(!t.key->isFull());
    QCOMPARE(told.count(), 2);
}

void TestModeSwitch::hintNamesWhatAClickDoes()
{
    LabelFullScreen key;
    QCOMPARE(key.toolTip(), QString("Full Screen"));
    key.setFull(true);
    QCOMPARE(key.toolTip(), QString("Exit Full Screen"));
    QCOMPARE(key.accessibleName(), QString("Exit Full Screen"));
}

ORVA_TEST(TestModeSwitch)
#include "tst_modeswitch.moc"
