// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "testmain.h"
#include "wall/widgetbtn.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

Q_DECLARE_METATYPE(Qt::MouseButton)

// The video area in a window, with something on it that leaves the mouse and the keys to it.
class TestWidgetBtn final : public QObject
{
    Q_OBJECT

private slots:
    void releaseIsTold_data();
    void releaseIsTold();
    void pressAloneIsNotTold();
    void releaseGoesOnToTheWindow();
    void releaseOnAChildIsTold();
    void escapeIsToldAndGoesOnToTheWindow();
    void anotherKeyIsNotToldAndGoesOnToTheWindow();
};

namespace {

struct Area
{
    Area()
        : area(new WidgetBtn(&window))
        , child(new QWidget(area))
    {
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.resize(200, 120);
        area->setGeometry(20, 10, 160, 100);
        area->setFocusPolicy(Qt::StrongFocus);
        child->setGeometry(100, 60, 40, 30);
    }
    bool show()
    {
        window.show();
        return QTest::qWaitForWindowActive(&window);
    }

    QWidget window;
    WidgetBtn* area;
    QWidget* child;
};

} // namespace

void TestWidgetBtn::releaseIsTold_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestWidgetBtn::releaseIsTold()
{
    QFETCH(Qt::MouseButton, button);
    Area a;
    QVERIFY(a.show());
    int told = 0;
    QObject::connect(a.area, &WidgetBtn::clicked, a.area, [&](QMouseEvent* event) {
        ++told;
        QCOMPARE(event->button(), button);
        QCOMPARE(event->pos(), QPoint(30, 40));
        QCOMPARE(event->type(), QEvent::MouseButtonRelease);
    });
    click(a.area, QPoint(30, 40), button);
    QCOMPARE(told, 1);
}

void TestWidgetBtn::pressAloneIsNotTold()
{
    Area a;
    QVERIFY(a.show());
    QSignalSpy told(a.area, &WidgetBtn::clicked);
    press(a.area);
    QCOMPARE(told.count(), 0);
    release(a.area);
    QCOMPARE(told.count(), 1);
}

void TestWidgetBtn::releaseGoesOnToTheWindow()
{
    Area a;
    QVERIFY(a.show());
    const EventCount releases(&a.window, QEvent::MouseButtonRelease);
    click(a.area);
    QCOMPARE(releases.count, 1);
}

void TestWidgetBtn::releaseOnAChildIsTold()
{
    Area a;
    QVERIFY(a.show());
    QPoint at;
    QObject::connect(
        a.area, &WidgetBtn::clicked, a.area, [&at](QMouseEvent* event) { at = event->pos(); });
    click(a.child, QPoint(5, 6));
    QCOMPARE(at, QPoint(105, 66)); // of the area
}

void TestWidgetBtn::escapeIsToldAndGoesOnToTheWindow()
{
    Area a;
    QVERIFY(a.show());
    a.area->setFocus();
    QSignalSpy told(a.area, &WidgetBtn::pressEscMsg);
    const EventCount keys(&a.window, QEvent::KeyPress);
    type(a.area, Qt::Key_Escape);
    QCOMPARE(told.count(), 1);
    QCOMPARE(keys.count, 1);
}

void TestWidgetBtn::anotherKeyIsNotToldAndGoesOnToTheWindow()
{
    Area a;
    QVERIFY(a.show());
    a.area->setFocus();
    QSignalSpy told(a.area, &WidgetBtn::pressEscMsg);
    QSignalSpy clicked(a.area, &WidgetBtn::clicked);
    const EventCount keys(&a.window, QEvent::KeyPress);
    int typed = 0;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_E, Qt::Key_Backspace}) {
        type(a.area, key);
        QCOMPARE(keys.count, ++typed);
    }
    QCOMPARE(told.count(), 0);
    QCOMPARE(clicked.count(), 0);
}

ORVA_TEST(TestWidgetBtn)
#include "tst_widgetbtn.moc"
