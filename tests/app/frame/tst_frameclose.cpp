// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametest.h"
#include "hands.h"
#include "testmain.h"

#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

// How the program ends: every way disconnects the devices, then tells of the end, then leaves at once.
// Each is played by a process of its own, which is this program again.
class TestFrameClose final : public QObject
{
    Q_OBJECT

private slots:
    void programEndsInItsOrder_data();
    void programEndsInItsOrder();
};

namespace {

constexpr char marker[] = "ORVA_TEST_ENDING"; // in the environment of the other process

void tell(const QByteArray& line)
{
    std::fputs((line + '\n').constData(), stdout);
    std::fflush(stdout);
}

// By the window manager, which asks the active window.
void askToClose(QWidget* window)
{
    QVERIFY(QTest::qWaitForWindowActive(window));
    QCOMPARE(QProcess::execute("xdotool", {"key", "alt+F4"}), 0);
}

void endBy(const QString& way, FrameTest& t)
{
    if (way == "key")
        click(t.part("label_icon_close"));
    else if (way == "window manager")
        askToClose(&t.gate.window);
    else if (way == "close")
        t.gate.window.close();
    if (way != "full screen")
        return;
    click(t.part("label_icon_fullGl"));
    askToClose(t.center());
}

// Does not come back where the program ends as it should.
void endTheFrame(const QString& way)
{
    FrameTest t;
    const QList<Device*> devices{t.wall.addDevice(2), t.wall.addDevice(1)};
    t.wall.addDevice(1, false); // which is not connected
    QVERIFY(t.open());
    for (Device* device : devices)
        QVERIFY(t.wall.open(device, device->channelCount()));
    QObject::connect(&t.wall.viewControl, &ViewControl::quitMsg, &t.gate.window, [&] {
        int connected = 0;
        for (const Device* device : Dev::instance()->devices())
            connected += device->sid >= 0 ? 1 : 0;
        tell("quit, connected: " + QByteArray::number(connected));
    });
    QObject::connect(t.frame(), &QObject::destroyed, [] { tell("destroyed"); });
    std::atexit([] { tell("exit"); });
    endBy(way, t);
    QTest::qWait(3000); // it goes on
}

} // namespace

void TestFrameClose::programEndsInItsOrder_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("key") << "key";
    QTest::newRow("window manager") << "window manager";
    QTest::newRow("asked by the program") << "close";
    QTest::newRow("full screen") << "full screen";
}

void TestFrameClose::programEndsInItsOrder()
{
    QFETCH(QString, way);
    if (qEnvironmentVariableIsSet(marker)) {
        endTheFrame(way);
        return;
    }
    const QTemporaryDir scratch; // no destructor takes away what the other one leaves
    QProcess other;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(marker, "1");
    environment.insert("TMPDIR", scratch.path());
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(),
        {"TestFrameClose", QString("programEndsInItsOrder:%1").arg(QTest::currentDataTag())});
    QVERIFY(other.waitForFinished());
    const QByteArray output = other.readAllStandardOutput();
    QStringList told;
    for (const QByteArray& line : output.split('\n')) {
        if (line.startsWith("quit") || line == "exit" || line == "destroyed")
            told << QString::fromLatin1(line);
    }
    QVERIFY2(told == QStringList({"quit, connected: 0", "exit"}), output.constData());
    QCOMPARE(other.exitStatus(), QProcess::NormalExit);
    QCOMPARE(other.exitCode(), 0);
}

ORVA_TEST(TestFrameClose)
#include "tst_frameclose.moc"
