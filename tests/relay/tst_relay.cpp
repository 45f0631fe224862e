// SPDX-License-Identifier: GPL-3.0-or-later
#include "relay.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>
#include <arpa/inet.h>
#include <cstring>
#include <memory>
#include <sys/socket.h>
#include <tuple>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

// A UDP socket on the loopback.
class Endpoint
{
public:
    Endpoint()
        : fd_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in own = at(0);
        std::ignore = ::bind(fd_, reinterpret_cast<sockaddr*>(&own), sizeof own);
        const timeval patience{5, 0};
        ::setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        const int buffer = 4 * 1024 * 1024;
        ::setsockopt(fd_, SOL_SOCKET, SO_RCVBUF, &buffer, sizeof buffer);
    }
    Endpoint(const Endpoint&) = delete;
    Endpoint& operator=(const Endpoint&) = delete;
    ~Endpoint() { ::close(fd_); }

    static sockaddr_in at(std::uint16_t port)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(port);
        return address;
    }

    std::uint16_t port() const
    {
        sockaddr_in own{};
        socklen_t size = sizeof own;
        ::getsockname(fd_, reinterpret_cast<sockaddr*>(&own), &size);
        return ntohs(own.sin_port);
    }

    void send(const std::string& text, std::uint16_t port) const
    {
        const sockaddr_in address = at(port);
        ::sendto(fd_, text.data(), text.size(), 0, reinterpret_cast<const sockaddr*>(&address),
            sizeof address);
    }

    // Waits up to 5 s; empty when nothing came. `from`: the sender's port.
    std::string receive(std::uint16_t* from = nullptr) const
    {
        char bytes[2048];
        sockaddr_in address{};
        socklen_t length = sizeof address;
        const ssize_t size =
            ::recvfrom(fd_, bytes, sizeof bytes, 0, reinterpret_cast<sockaddr*>(&address), &length);
        if (from)
            *from = ntohs(address.sin_port);
        return size < 0 ? std::string() : std::string(bytes, static_cast<std::size_t>(size));
    }

private:
    int fd_;
};

std::unique_ptr<Relay> relayTo(
    const Endpoint& target, const RelayConditions& conditions, std::size_t capacity = 1 << 26)
{
    RelaySettings settings;
    settings.targetPort = target.port();
    settings.conditions = conditions;
    settings.capacityBytes = capacity;
    std::string error;
    return Relay::start(settings, error);
}

} // namespace

class TestRelay final : public QObject
{
    Q_OBJECT

private slots:
    void forwardsBothWaysWithTheDelay();
    void eachClientGetsItsOwnAnswers();
    void conditionsChangeWhileItRuns();
    void lateDatagramIsOvertaken();
    void whatIsOnTheWayIsBounded();
    void addressesBeyondTheLoopbackAreRefused_data();
    void addressesBeyondTheLoopbackAreRefused();
    void takenPortIsRefused();
};

void TestRelay::forwardsBothWaysWithTheDelay()
{
    const Endpoint target;
    const Endpoint client;
    RelayConditions conditions;
    conditions.delay = 30ms;
    const auto relay = relayTo(target, conditions);
    QVERIFY(relay);

    const auto sent = Clock::now();
    client.send("there", relay->port());
    std::uint16_t from = 0;
    QCOMPARE(target.receive(&from), std::string("there"));
    QVERIFY(Clock::now() - sent >= 30ms);
    target.send("and back", from);
    QCOMPARE(client.receive(&from), std::string("and back"));
    QVERIFY(Clock::now() - sent >= 60ms);
    QCOMPARE(from, relay->port());
    QTRY_COMPARE(relay->statistics().toClients.forwarded, 1U);
    QCOMPARE(relay->statistics().toTarget.forwardedBytes, 5U);
}

void TestRelay::eachClientGetsItsOwnAnswers()
{
    const Endpoint target;
    const auto relay = relayTo(target, {});
    QVERIFY(relay);
    const std::vector<Endpoint> clients(20);
    for (std::size_t i = 0; i < clients.size(); ++i)
        clients[i].send(std::to_string(i), relay->port());
    for (std::size_t i = 0; i < clients.size(); ++i) {
        std::uint16_t from = 0;
        const std::string text = target.receive(&from);
        target.send("answer to " + text, from);
    }
    for (std::size_t i = 0; i < clients.size(); ++i)
        QCOMPARE(clients[i].receive(), "answer to " + std::to_string(i));
    QCOMPARE(relay->statistics().clients, clients.size());
}

void TestRelay::conditionsChangeWhileItRuns()
{
    const Endpoint target;
    const Endpoint client;
    RelayConditions conditions;
    conditions.blackhole = true;
    const auto relay = relayTo(target, conditions);
    QVERIFY(relay);
    client.send("gone", relay->port());
    QTRY_COMPARE(relay->statistics().toTarget.blackholed, 1U);

    conditions.blackhole = false;
    relay->setConditions(conditions);
    client.send("through", relay->port());
    QCOMPARE(target.receive(), std::string("through"));

    conditions.loss = 1;
    relay->setConditions(conditions);
    client.send("gone", relay->port());
    QTRY_COMPARE(relay->statistics().toTarget.lost, 1U);
}

void TestRelay::lateDatagramIsOvertaken()
{
    const Endpoint target;
    const Endpoint client;
    RelayConditions conditions;
    conditions.reorder = 1;
    conditions.reorderBy = 200ms;
    const auto relay = relayTo(target, conditions);
    QVERIFY(relay);
    client.send("first", relay->port());
    QTRY_COMPARE(relay->statistics().toTarget.heldBack, 1U);
    relay->setConditions({});
    client.send("second", relay->port());
    QCOMPARE(target.receive(), std::string("second"));
    QCOMPARE(target.receive(), std::string("first"));
}

void TestRelay::whatIsOnTheWayIsBounded()
{
    const Endpoint target;
    const Endpoint client;
    RelayConditions conditions;
    conditions.delay = 1h;
    const auto relay = relayTo(target, conditions, 10000);
    QVERIFY(relay);
    const std::string datagram(1000, 'x');
    for (int i = 0; i < 50; ++i)
        client.send(datagram, relay->port());
    QTRY_COMPARE(relay->statistics().toTarget.received, 50U);
    QCOMPARE(relay->statistics().toTarget.queueFull, 40U);
}

void TestRelay::addressesBeyondTheLoopbackAreRefused_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("private") << QByteArray("192.168.1.1");
    QTest::newRow("any") << QByteArray("0.0.0.0");
    QTest::newRow("a name") << QByteArray("localhost");
    QTest::newRow("nothing") << QByteArray("");
}

void TestRelay::addressesBeyondTheLoopbackAreRefused()
{
    QFETCH(QByteArray, address);
    RelaySettings settings;
    settings.targetAddress = address.toStdString();
    settings.targetPort = 9;
    std::string error;
    QVERIFY(!Relay::start(settings, error));
    QVERIFY(!error.empty());
}

void TestRelay::takenPortIsRefused()
{
    const Endpoint taken;
    RelaySettings settings;
    settings.targetPort = 9;
    settings.listenPort = taken.port();
    std::string error;
    QVERIFY(!Relay::start(settings, error));
    QVERIFY(!error.empty());
}

ORVA_TEST(TestRelay)
#include "tst_relay.moc"
