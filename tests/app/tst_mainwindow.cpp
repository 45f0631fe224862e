// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debugrecord.h"
#include "app/labelsystembtn.h"
#include "app/mainwindow.h"
#include "gate.h"
#include "testmain.h"

class TestMainWindow final : public QObject
{
    Q_OBJECT

private slots:
    void init() { clearSettings(); }

    void headerShowsVersionAndUser();
    void brandSetsTitleAndLogo_data();
    void brandSetsTitleAndLogo();
    void debugRecordOpensAndCloses();
    void closedDebugRecordGoesOnCollecting();
    void debugPanelStaysInsideASmallFrame();
    void escapeClosesTheDebugRecord();
    void fullscreenKeyNamesWhatItDoes();
};

void TestMainWindow::headerShowsVersionAndUser()
{
    const Gate gate;
    gate.press("widget_localLogin");
    const auto* frame = gate.window.mainWindow();
    QCOMPARE(frame->findChild<QLabel*>("label_version")->text(), QString("v1.7.2.320"));
    QCOMPARE(frame->findChild<QLabel*>("label_userName")->text(), QString("Admin"));
}

void TestMainWindow::brandSetsTitleAndLogo_data()
{
    QTest::addColumn<int>("brand");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QSize>("logo");
    QTest::newRow("0") << 0 << "KELO Network Video Monitor" << QSize(88, 28);
    QTest::newRow("149") << 149 << "BRISEN HD Video Monitor" << QSize(150, 60);
    QTest::newRow("150") << 150 << "Fenrad Network Video Monitor" << QSize(124, 30);
    QTest::newRow("151") << 151 << "Network Video Monitor" << QSize(28, 28);
}

void TestMainWindow::brandSetsTitleAndLogo()
{
    QFETCH(int, brand);
    QFETCH(QString, title);
    QFETCH(QSize, logo);
    Gate gate;
    gate.window.setBrand(brand);
    gate.press("widget_localLogin");
    const auto* frame = gate.window.mainWindow();
    QCOMPARE(frame->windowTitle(), title);
    QCOMPARE(gate.window.windowTitle(), title);
    QCOMPARE(frame->findChild<QLabel*>("label_logo")->size(), logo);
    QVERIFY(!frame->findChild<QLabel*>("label_logo")->pixmap(Qt::ReturnByValue).isNull());
}

void TestMainWindow::debugRecordOpensAndCloses()
{
    const Gate gate;
    gate.press("widget_localLogin");
    const auto* panel = gate.part("widget_debugPanel");
    QVERIFY(!panel->isVisible());
    QVERIFY(gate.window.findChild<DebugRecord*>() == nullptr);
    gate.press("label_debugRecord_btn");
    QVERIFY(panel->isVisible());
    QTest::mouseClick(gate.part("label_debugClose"), Qt::LeftButton);
    QVERIFY(!panel->isVisible());
    QVERIFY(gate.window.findChild<DebugRecord*>() != nullptr);
}

void TestMainWindow::closedDebugRecordGoesOnCollecting()
{
    const Gate gate;
    gate.press("widget_localLogin");
    gate.press("label_debugRecord_btn");
    gate.press("label_debugRecord_btn");
    const auto* record = gate.window.findChild<DebugRecord*>();
    emit SystemInfo::instance()->debugMsg(QtInfoMsg, "while closed");
    QVERIFY(record->lines().last().endsWith("]while closed"));
}

void TestMainWindow::debugPanelStaysInsideASmallFrame()
{
    Gate gate;
    gate.press("widget_localLogin");
    gate.press("label_debugRecord_btn");
    const auto* stage = gate.part("widget_stage");
    const auto* panel = gate.part("widget_debugPanel");
    // Again until it holds: the window manager may still be placing the new frame, which becomes as
    // small as it can. The panel wants to be 800 wide.
    QTRY_VERIFY((gate.window.resize(640, 400), stage->width() < 800 && stage->height() < 584));
    QTRY_VERIFY(stage->rect().contains(panel->geometry()));
}

void TestMainWindow::escapeClosesTheDebugRecord()
{
    const Gate gate;
    gate.press("widget_localLogin");
    QTRY_VERIFY(gate.window.isActiveWindow());
    gate.press("label_debugRecord_btn");
    auto* record = gate.window.findChild<DebugRecord*>();
    QTRY_VERIFY(record->focusProxy()->hasFocus());
    QTest::keyClick(record->focusProxy(), Qt::Key_Escape);
    QTRY_VERIFY(!gate.part("widget_debugPanel")->isVisible());
}

void TestMainWindow::fullscreenKeyNamesWhatItDoes()
{
    const Gate gate;
    gate.press("widget_localLogin");
    auto* key = gate.part<LabelSystemBtn>("label_icon_fullscreen");
    QCOMPARE(key->toolTip(), QString("Maximize"));
    QTest::mouseClick(key, Qt::LeftButton);
    QCOMPARE(key->toolTip(), QString("Restore"));
    QTest::mouseClick(key, Qt::LeftButton);
    QCOMPARE(key->accessibleName(), QString("Maximize"));
}

ORVA_TEST(TestMainWindow)
#include "tst_mainwindow.moc"
