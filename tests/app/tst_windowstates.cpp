// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dragarea.h"
#include "app/labelsystembtn.h"
#include "app/mainwindow.h"
#include "gate.h"
#include "testmain.h"

#include <QProcess>
#include <QSignalSpy>
#include <QWindow>

// The states of the frameless window, with a real window manager.
class TestWindowStates final : public QObject
{
    Q_OBJECT

private slots:
    void init() { clearSettings(); }

    void gateIgnoresNormalScreen();
    void draggingMovesTheWindow();
    void maximisedWindowDoesNotMove();
    void maximiseKeyTogglesTheFrame();
    void minimisedFrameComesBackAsItWas();
    void maximisedFrameComesBackMaximised();
    void secondMinimiseAfterRestoreWorks();
};

namespace {

bool isMinimised(const WindowLogin& window)
{
    QProcess xprop;
    xprop.start("xprop", {"-id", QString::number(window.winId()), "WM_STATE"});
    return xprop.waitForFinished() && xprop.readAllStandardOutput().contains("Iconic");
}

// Until the window manager has minimised the window and Qt has taken notice.
void waitMinimised(const WindowLogin& window)
{
    QTRY_VERIFY(isMinimised(window));
    QTRY_VERIFY(!window.windowHandle()->isExposed());
}

// As a click in the task bar would.
void activate(const WindowLogin& window)
{
    QCOMPARE(QProcess::execute("xdotool", {"windowactivate", QString::number(window.winId())}), 0);
}

void openFrame(Gate& gate)
{
    gate.press("widget_localLogin");
    QVERIFY(QTest::qWaitForWindowExposed(&gate.window));
}

} // namespace

void TestWindowStates::gateIgnoresNormalScreen()
{
    const Gate gate;
    const QRect before = gate.window.geometry();
    emit SystemInfo::instance()->normalScreenMsg();
    QCOMPARE(gate.window.windowState(), Qt::WindowNoState);
    QCOMPARE(gate.window.geometry(), before);
}

void TestWindowStates::draggingMovesTheWindow()
{
    const Gate gate;
    const QPoint before = gate.window.pos();
    auto* title = gate.part<DragArea>("widget_title");
    emit title->moveMsg(QPoint(30, -20));
    QTRY_COMPARE(gate.window.pos(), before + QPoint(30, -20));

    QSignalSpy moves(title, &DragArea::moveMsg);
    QTest::mousePress(title, Qt::LeftButton, {}, QPoint(50, 10));
    const QPoint to = title->mapToGlobal(QPoint(62, 17));
    QMouseEvent move(QEvent::MouseMove, title->mapFromGlobal(to), to, Qt::NoButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(title, &move);
    QCOMPARE(moves.size(), 1);
    QCOMPARE(moves.first().first().toPoint(), QPoint(12, 7));
    QTest::mouseRelease(title, Qt::LeftButton);
    QTRY_COMPARE(gate.window.pos(), before + QPoint(42, -13));
}

void TestWindowStates::maximisedWindowDoesNotMove()
{
    Gate gate;
    openFrame(gate);
    emit SystemInfo::instance()->fullScreenMsg();
    QTRY_COMPARE(gate.window.geometry(), QRect(0, 0, 1920, 1080));
    const QPoint before = gate.window.pos();
    emit gate.window.mainWindow()->moveMsg(QPoint(30, 30));
    QCoreApplication::processEvents();
    QCOMPARE(gate.window.pos(), before);
    emit SystemInfo::instance()->normalScreenMsg();
    QTRY_COMPARE(gate.window.size(), QSize(1080, 720));
}

void TestWindowStates::maximiseKeyTogglesTheFrame()
{
    Gate gate;
    openFrame(gate);
    auto* key = gate.part<LabelSystemBtn>("label_icon_fullscreen");
    QTest::mouseClick(key, Qt::LeftButton);
    QTRY_COMPARE(gate.window.size(), QSize(1920, 1080));
    QCOMPARE(gate.window.windowState(), Qt::WindowMaximized);
    QTest::mouseClick(key, Qt::LeftButton);
    QTRY_COMPARE(gate.window.size(), QSize(1080, 720));
    QCOMPARE(gate.window.windowState(), Qt::WindowNoState);
}

void TestWindowStates::minimisedFrameComesBackAsItWas()
{
    Gate gate;
    openFrame(gate);
    QTest::mouseClick(gate.part("label_icon_minimize"), Qt::LeftButton);
    waitMinimised(gate.window);
    activate(gate.window);
    QTRY_VERIFY(!isMinimised(gate.window));
    QTRY_COMPARE(gate.window.windowState(), Qt::WindowNoState);
    QCOMPARE(gate.window.size(), QSize(1080, 720));
}

void TestWindowStates::maximisedFrameComesBackMaximised()
{
    Gate gate;
    openFrame(gate);
    emit SystemInfo::instance()->fullScreenMsg();
    QTRY_COMPARE(gate.window.size(), QSize(1920, 1080));
    emit SystemInfo::instance()->minimizeMsg();
    waitMinimised(gate.window);
    activate(gate.window);
    QTRY_VERIFY(!isMinimised(gate.window));
    QTRY_COMPARE(gate.window.windowState(), Qt::WindowMaximized);
    QTRY_COMPARE(gate.window.size(), QSize(1920, 1080));
}

void TestWindowStates::secondMinimiseAfterRestoreWorks()
{
    Gate gate;
    openFrame(gate);
    for (int round = 0; round < 2; ++round) {
        emit SystemInfo::instance()->minimizeMsg();
        waitMinimised(gate.window);
        activate(gate.window);
        QTRY_VERIFY(!isMinimised(gate.window));
        QTRY_VERIFY(gate.window.windowHandle()->isExposed());
    }
}

ORVA_TEST(TestWindowStates)
#include "tst_windowstates.moc"
