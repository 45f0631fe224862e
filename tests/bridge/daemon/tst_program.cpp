// SPDX-License-Identifier: GPL-3.0-or-later
#include "localsocket.h"
#include "testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

// The program itself, from outside. It serves on loopback alone.
class TestProgram final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void helpTellsTheExitCodes();
    void versionIsOneLine();
    void newUidIsOneLine();
    void wrongUsageEndsWith2();
    void wrongConfigurationEndsWith3AndTellsTheLine();
    void missingConfigurationEndsWith3();
    void checkedConfigurationEndsWith0();
    void takenPortEndsWith4();
    void servedControlSocketEndsWith4();
    void damagedStateEndsWith5AndIsLeftAsItIs();
    void sharedStateEndsWith5();
    void terminationSavesAndEnds_data();
    void terminationSavesAndEnds();
    void statusAndQuit();
    void deathOnDemand();

private:
    void configure(const QByteArray& more = {});
    QString file(const char* name) const { return folder_->filePath(name); }
    int run(const QStringList& arguments);
    void serve(QProcess& program);
    quint16 port();
    QByteArray command(const QByteArray& line) const;

    std::unique_ptr<QTemporaryDir> folder_;
    QProcess program_;
    QByteArray output_;
    QByteArray errors_;
};

void TestProgram::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    configure();
}

void TestProgram::cleanup()
{
    if (program_.state() != QProcess::NotRunning) {
        program_.kill();
        program_.waitForFinished();
    }
}

void TestProgram::configure(const QByteArray& more)
{
    QFile config(file("config.yaml"));
    QVERIFY(config.open(QFile::WriteOnly));
    config.write("address: 127.0.0.1\nsearch: false\nstate: state.db\ncontrol: control\n" + more
        + "devices:\n"
          "  - uid: ABCDEFGHIJ0123456789\n"
          "    version: 1.5.0.IPC1\n"
          "    password: secret\n"
          "    channels:\n"
          "      - main: {url: \"test:\", width: 320, height: 240}\n");
}

// The exit code of a run that ends by itself.
int TestProgram::run(const QStringList& arguments)
{
    QProcess program;
    program.start(ORVA_BRIDGE_PROGRAM, arguments);
    if (!program.waitForFinished())
        return -1;
    output_ = program.readAllStandardOutput();
    errors_ = program.readAllStandardError();
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -2;
}

void TestProgram::serve(QProcess& program)
{
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(ORVA_BRIDGE_PROGRAM, {"--config", file("config.yaml")});
    QTRY_VERIFY_WITH_TIMEOUT(LocalSocket(file("control").toStdString()).isConnected(), 20000);
}

QByteArray TestProgram::command(const QByteArray& line) const
{
    const LocalSocket socket(file("control").toStdString());
    socket.write(line + '\n');
    return socket.readLine();
}

quint16 TestProgram::port()
{
    const auto status = QJsonDocument::fromJson(command("status")).object();
    return static_cast<quint16>(status["port"].toInt());
}

void TestProgram::helpTellsTheExitCodes()
{
    QCOMPARE(run({"--help"}), 0);
    for (const char* code : {"  0  ", "  2  ", "  3  ", "  4  ", "  5  "})
        QVERIFY(output_.contains(code));
}

void TestProgram::versionIsOneLine()
{
    QCOMPARE(run({"--version"}), 0);
    QVERIFY(QRegularExpression("^orva-bridge \\d+\\.\\d+\\.\\d+\n$").match(output_).hasMatch());
}

void TestProgram::newUidIsOneLine()
{
    QCOMPARE(run({"--new-uid"}), 0);
    QVERIFY(QRegularExpression("^[A-Z0-9]{20}\n$").match(output_).hasMatch());
}

void TestProgram::wrongUsageEndsWith2()
{
    QCOMPARE(run({}), 2);
    QCOMPARE(run({"--config"}), 2);
    QCOMPARE(run({"--colour", "red"}), 2);
    QVERIFY(!errors_.isEmpty());
    QVERIFY(output_.isEmpty());
}

void TestProgram::wrongConfigurationEndsWith3AndTellsTheLine()
{
    configure("colour: red\nport: many\n");
    QCOMPARE(run({"--config", file("config.yaml")}), 3);
    QVERIFY(errors_.contains("config.yaml:5: unknown key \"colour\""));
    QVERIFY(errors_.contains("config.yaml:6: port: "));
    QCOMPARE(run({"--config", file("config.yaml"), "--check-config"}), 3);
    QVERIFY(!QFileInfo::exists(file("state.db")));
}

void TestProgram::missingConfigurationEndsWith3()
{
    QCOMPARE(run({"--config", file("none.yaml")}), 3);
    QCOMPARE(run({"--config", folder_->path()}), 3);
}

void TestProgram::checkedConfigurationEndsWith0()
{
    QCOMPARE(run({"--config", file("config.yaml"), "--check-config"}), 0);
    QVERIFY(!QFileInfo::exists(file("state.db")));
}

void TestProgram::takenPortEndsWith4()
{
    serve(program_);
    configure("port: " + QByteArray::number(port()) + '\n');
    // Another state file, so that the port is what is in the way.
    QVERIFY(QFile::rename(file("state.db"), file("first.db")));
    QCOMPARE(run({"--config", file("config.yaml")}), 4);
}

void TestProgram::servedControlSocketEndsWith4()
{
    serve(program_);
    QVERIFY(QFile::rename(file("state.db"), file("first.db")));
    QCOMPARE(run({"--config", file("config.yaml")}), 4);
    QVERIFY(command("status").startsWith('{'));
}

void TestProgram::damagedStateEndsWith5AndIsLeftAsItIs()
{
    QFile state(file("state.db"));
    QVERIFY(state.open(QFile::WriteOnly));
    state.write("this was a state file once");
    state.close();
    QCOMPARE(run({"--config", file("config.yaml")}), 5);
    QVERIFY(errors_.contains("state.db"));
    QCOMPARE(state.size(), qint64{26});
}

void TestProgram::sharedStateEndsWith5()
{
    serve(program_);
    QCOMPARE(run({"--config", file("config.yaml")}), 5);
    QVERIFY(errors_.contains("another bridge uses it"));
}

void TestProgram::terminationSavesAndEnds_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestProgram::terminationSavesAndEnds()
{
    QFETCH(int, signal);
    serve(program_);
    QCOMPARE(::kill(static_cast<pid_t>(program_.processId()), signal), 0);
    QVERIFY(program_.waitForFinished(2000));
    QCOMPARE(program_.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program_.exitCode(), 0);
    QVERIFY(program_.readAll().trimmed().endsWith("ended"));
    QVERIFY(!QFileInfo::exists(file("control")));
}

void TestProgram::statusAndQuit()
{
    serve(program_);
    QVERIFY(port() != 0);
    QVERIFY(!command("status").contains("secret"));
    QVERIFY(command("hello").startsWith("error: "));
    QVERIFY(command("fault ABCDEFGHIJ0123456789 explode").startsWith("error: "));
    QVERIFY(command("fault NOBODY drop 3").startsWith("error: "));
    QCOMPARE(command("fault ABCDEFGHIJ0123456789 drop 3"), QByteArray("ok\n"));
    QCOMPARE(command("quit"), QByteArray("ok\n"));
    QVERIFY(program_.waitForFinished(2000));
    QCOMPARE(program_.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program_.exitCode(), 0);
}

void TestProgram::deathOnDemand()
{
    serve(program_);
    QCOMPARE(command("fault ABCDEFGHIJ0123456789 die"), QByteArray());
    QVERIFY(program_.waitForFinished());
    QCOMPARE(program_.exitCode(), 70);
    // The next run takes the abandoned socket over.
    serve(program_);
    QVERIFY(command("status").startsWith('{'));
}

ORVA_TEST(TestProgram)
#include "tst_program.moc"
