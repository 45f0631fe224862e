// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "testmain.h"
#include "wall/devmenuitem.h"

#include <QKeyEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

// A row of the menu on a device.
class TestDevMenuItem final : public QObject
{
    Q_OBJECT

private slots:
    void textIsShownPlainAndReadAloud();
    void markStandsBesideTheTextAndKeepsItsPlace();
    void mouseOverTheRowHighlightsIt();
    void clickIsTold();
    void pressAloneIsNotTold();
    void releaseOutsideIsNotTold();
    void anotherMouseButtonIsNotTold();
    void keyboardClicks();
    void keyThatIsHeldDownClicksOnce();
    void pressStaysInTheRow();
    void disabledRowDoesNothing();
};

namespace {

struct RowTest
{
    RowTest()
        : clicked(window.key, &DevMenuItem::clicked)
    {
        qRegisterMetaType<DevMenuItem*>("DevMenuItem*");
        row()->setText(QStringLiteral("Play"));
        row()->setGeometry(10, 30, 140, 28);
    }
    DevMenuItem* row() const { return window.key; }
    bool isHot() const { return row()->property("hot").toBool(); }
    void leave() { moveTo(&window.window, QPoint(5, 5)); }

    KeyWindow<DevMenuItem> window;
    QSignalSpy clicked;
};

} // namespace

void TestDevMenuItem::textIsShownPlainAndReadAloud()
{
    const RowTest t;
    for (const char* text : {"Play", "<b>Play</b>"}) {
        t.row()->setText(QLatin1String(text));
        QCOMPARE(t.row()->text(), QString(text));
        QCOMPARE(t.row()->accessibleName(), QString(text));
    }
    for (const QLabel* label : t.row()->findChildren<QLabel*>())
        QVERIFY(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
}

void TestDevMenuItem::markStandsBesideTheTextAndKeepsItsPlace()
{
    RowTest t;
    QVERIFY(t.window.show());
    const QList<QLabel*> labels = t.row()->findChildren<QLabel*>();
    const auto text = std::find_if(
        labels.begin(), labels.end(), [](const QLabel* label) { return !label->text().isEmpty(); });
    QVERIFY(text != labels.end());
    const QImage before = t.row()->grab().toImage();
    const QPoint place = (*text)->pos();
    QVERIFY(!t.row()->isMarked());
    t.row()->setMarked(true);
    QVERIFY(t.row()->isMarked());
    QVERIFY(t.row()->grab().toImage() != before);
    QCOMPARE((*text)->pos(), place);
    t.row()->setMarked(false);
    QVERIFY(!t.row()->isMarked());
    QCOMPARE(t.row()->grab().toImage(), before);
}

void TestDevMenuItem::mouseOverTheRowHighlightsIt()
{
    RowTest t;
    QVERIFY(t.window.show());
    t.leave();
    QTRY_VERIFY(!t.isHot());
    moveTo(t.row());
    QTRY_VERIFY(t.isHot());
    t.leave();
    QTRY_VERIFY(!t.isHot());
}

void TestDevMenuItem::clickIsTold()
{
    RowTest t;
    QVERIFY(t.window.show());
    click(t.row());
    QCOMPARE(t.clicked.count(), 1);
    QCOMPARE(t.clicked.first().first().value<DevMenuItem*>(), t.row());
}

void TestDevMenuItem::pressAloneIsNotTold()
{
    RowTest t;
    QVERIFY(t.window.show());
    press(t.row());
    QCOMPARE(t.clicked.count(), 0);
    release(t.row());
    QCOMPARE(t.clicked.count(), 1);
}

void TestDevMenuItem::releaseOutsideIsNotTold()
{
    RowTest t;
    QVERIFY(t.window.show());
    press(t.row());
    QTest::mouseRelease(t.window.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(t.clicked.count(), 0);
}

void TestDevMenuItem::anotherMouseButtonIsNotTold()
{
    RowTest t;
    QVERIFY(t.window.show());
    click(t.row(), Qt::RightButton);
    click(t.row(), Qt::MiddleButton);
    QCOMPARE(t.clicked.count(), 0);
}

void TestDevMenuItem::keyboardClicks()
{
    RowTest t;
    QVERIFY(t.window.show());
    type(t.row(), Qt::Key_Tab);
    QVERIFY(t.row()->hasFocus());
    type(t.row(), Qt::Key_Space);
    type(t.row(), Qt::Key_Return);
    QCOMPARE(t.clicked.count(), 2);
    type(t.row(), Qt::Key_P);
    QCOMPARE(t.clicked.count(), 2);
}

void TestDevMenuItem::keyThatIsHeldDownClicksOnce()
{
    RowTest t;
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(t.row(), &first);
    QCoreApplication::sendEvent(t.row(), &again);
    QCOMPARE(t.clicked.count(), 1);
}

void TestDevMenuItem::pressStaysInTheRow()
{
    RowTest t;
    QVERIFY(t.window.show());
    const EventCount presses(&t.window.window, QEvent::MouseButtonPress);
    click(t.row());
    click(t.row(), Qt::RightButton);
    QCOMPARE(presses.count, 0);
}

void TestDevMenuItem::disabledRowDoesNothing()
{
    RowTest t;
    QVERIFY(t.window.show());
    t.leave();
    t.row()->setEnabled(false);
    moveTo(t.row());
    QCoreApplication::processEvents();
    QVERIFY(!t.isHot());
    click(t.row());
    type(t.row(), Qt::Key_Space);
    QCOMPARE(t.clicked.count(), 0);
}

ORVA_TEST(TestDevMenuItem)
#include "tst_devmenuitem.moc"
