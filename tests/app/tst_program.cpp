// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The program itself, driven from outside as a user would: real keys and a real mouse.
class TestProgram final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void localLoginOpensTheFrameAndCloseEndsTheProgram();
    void typedLoginIsRemembered();
    void closingTheGateEndsTheProgram();
    void malformedDeploymentIsOneLineAndStarts();

private:
    void start();
    QString windowOf(const QSize& size) const;
    void click(const QPoint& at) const;

    std::unique_ptr<QTemporaryDir> home_;
    QProcess program_;
};

namespace {

const QSize gateSize(860, 540);
const QSize frameSize(1080, 720);

QByteArray output(const QString& command, const QStringList& arguments)
{
    QProcess process;
    process.start(command, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

} // namespace

void TestProgram::init()
{
    home_ = std::make_unique<QTemporaryDir>();
}

void TestProgram::cleanup()
{
    if (program_.state() == QProcess::NotRunning)
        return;
    program_.terminate();
    program_.waitForFinished();
}

void TestProgram::start()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", home_->path());
    environment.insert("XDG_CONFIG_DIRS", home_->filePath("system"));
    program_.setProcessEnvironment(environment);
    program_.start(QStringLiteral(ORVA_PROGRAM), QStringList());
    QVERIFY(program_.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(!windowOf(gateSize).isEmpty(), 20000);
}

// The id of the program's visible window of this size, or nothing.
QString TestProgram::windowOf(const QSize& size) const
{
    const QStringList search{
        "search", "--onlyvisible", "--pid", QString::number(program_.processId())};
    const QString wanted = QString("%1x%2").arg(size.width()).arg(size.height());
    for (const QByteArray& id : output("xdotool", search).split('\n')) {
        if (!id.isEmpty()
            && output("xdotool", {"getwindowgeometry", id}).contains(wanted.toLatin1()))
            return id;
    }
    return {};
}

// In the middle of the 1920 x 1080 screen, where the program puts its windows.
void TestProgram::click(const QPoint& at) const
{
    const QSize size = windowOf(frameSize).isEmpty() ? gateSize : frameSize;
    const QPoint corner((1920 - size.width()) / 2, (1080 - size.height()) / 2);
    output("xdotool",
        {"mousemove", QString::number(corner.x() + at.x()), QString::number(corner.y() + at.y()),
            "click", "1"});
}

void TestProgram::localLoginOpensTheFrameAndCloseEndsTheProgram()
{
    start();
    click(QPoint(610, 352));
    QTRY_VERIFY(!windowOf(frameSize).isEmpty());
    click(QPoint(1058, 24));
    QVERIFY(program_.waitForFinished());
    QCOMPARE(program_.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program_.exitCode(), 0);
    QVERIFY(!QFile::exists(home_->filePath("Quvane/ORVA.ini")));
}

void TestProgram::typedLoginIsRemembered()
{
    start();
    click(QPoint(640, 140));
    output("xdotool", {"type", "anna"});
    output("xdotool", {"key", "Tab"});
    output("xdotool", {"type", "secret"});
    output("xdotool", {"key", "KP_Enter"});
    QVERIFY(!QFile::exists(home_->filePath("Quvane/ORVA.ini")));
    output("xdotool", {"key", "Return"});
    QTRY_VERIFY(QFile::exists(home_->filePath("Quvane/ORVA.ini")));
}

void TestProgram::closingTheGateEndsTheProgram()
{
    start();
    click(QPoint(838, 22));
    QVERIFY(program_.waitForFinished());
    QCOMPARE(program_.exitCode(), 0);
}

void TestProgram::malformedDeploymentIsOneLineAndStarts()
{
    const QString folder = home_->filePath("system/Quvane/ORVA");
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/deployment.json");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"brand\": \"zero\"}");
    file.close();
    start();
    click(QPoint(838, 22));
    QVERIFY(program_.waitForFinished());
    const QByteArray errors = program_.readAllStandardError();
    const auto lines = QString::fromLocal8Bit(errors).split('\n').filter("deployment.json");
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().contains(file.fileName() + ": brand: expected the number 0"));
}

ORVA_TEST(TestProgram)
#include "tst_program.moc"
