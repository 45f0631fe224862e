// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlsocket.h"
#include "localsocket.h"
#include "testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <list>
#include <memory>

class TestControlSocket final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void eachLineIsAnswered();
    void lineMayComeInPieces();
    void severalClientsAreServed();
    void tooManyClientsAreTurnedAway();
    void lineWithoutEndCostsTheClient();
    void socketIsForItsOwnerOnly();
    void pathGoesWithTheObject();
    void abandonedPathIsTakenOver();
    void servedPathIsLeftAlone();
    void fileInPlaceOfTheSocketIsLeftAlone();

private:
    std::unique_ptr<ControlSocket> start();

    std::unique_ptr<QTemporaryDir> folder_;
    std::string path_;
};

void TestControlSocket::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    path_ = folder_->filePath("control").toStdString();
}

std::unique_ptr<ControlSocket> TestControlSocket::start()
{
    std::string error;
    return ControlSocket::start(
        path_, [](const std::string& line) { return "<" + line + ">"; }, error);
}

void TestControlSocket::eachLineIsAnswered()
{
    const auto socket = start();
    QVERIFY(socket);
    const LocalSocket client(path_);
    client.write("one\ntwo\n\n");
    QCOMPARE(client.readLine(), QByteArray("<one>\n"));
    QCOMPARE(client.readLine(), QByteArray("<two>\n"));
    QCOMPARE(client.readLine(), QByteArray("<>\n"));
}

void TestControlSocket::lineMayComeInPieces()
{
    const auto socket = start();
    const LocalSocket client(path_);
    client.write("on");
    client.write("e\n");
    QCOMPARE(client.readLine(), QByteArray("<one>\n"));
}

void TestControlSocket::severalClientsAreServed()
{
    const auto socket = start();
    const LocalSocket silent(path_);
    {
        const LocalSocket gone(path_);
        gone.write("half a line");
    }
    const LocalSocket client(path_);
    client.write("one\n");
    QCOMPARE(client.readLine(), QByteArray("<one>\n"));
}

void TestControlSocket::tooManyClientsAreTurnedAway()
{
    const auto socket = start();
    std::list<LocalSocket> clients;
    for (int i = 0; i < 8; ++i) {
        clients.emplace_back(path_);
        clients.back().write("in\n");
        QCOMPARE(clients.back().readLine(), QByteArray("<in>\n"));
    }
    const LocalSocket late(path_);
    late.write("in\n");
    QCOMPARE(late.readLine(), QByteArray());
}

void TestControlSocket::lineWithoutEndCostsTheClient()
{
    const auto socket = start();
    const LocalSocket client(path_);
    client.write(QByteArray(5000, 'x'));
    QCOMPARE(client.readLine(), QByteArray());
    const LocalSocket other(path_);
    other.write("one\n");
    QCOMPARE(other.readLine(), QByteArray("<one>\n"));
}

void TestControlSocket::socketIsForItsOwnerOnly()
{
    const auto socket = start();
    const auto permissions = QFile::permissions(QString::fromStdString(path_));
    QVERIFY(!(permissions
        & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
}

void TestControlSocket::pathGoesWithTheObject()
{
    start().reset();
    QVERIFY(!QFileInfo::exists(QString::fromStdString(path_)));
}

void TestControlSocket::abandonedPathIsTakenOver()
{
    // A bound socket whose owner went without removing it.
    const int abandoned = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path_.copy(address.sun_path, sizeof address.sun_path - 1);
    QCOMPARE(::bind(abandoned, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(abandoned);
    const auto socket = start();
    QVERIFY(socket);
    QVERIFY(LocalSocket(path_).isConnected());
}

void TestControlSocket::servedPathIsLeftAlone()
{
    const auto first = start();
    QVERIFY(!start());
    const LocalSocket client(path_);
    client.write("one\n");
    QCOMPARE(client.readLine(), QByteArray("<one>\n"));
}

void TestControlSocket::fileInPlaceOfTheSocketIsLeftAlone()
{
    QFile file(QString::fromStdString(path_));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("precious");
    file.close();
    QVERIFY(!start());
    QCOMPARE(file.size(), qint64{8});
}

ORVA_TEST(TestControlSocket)
#include "tst_controlsocket.moc"
