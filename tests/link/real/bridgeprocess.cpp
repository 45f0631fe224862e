// SPDX-License-Identifier: GPL-3.0-or-later
#include "bridgeprocess.h"

#include "localsocket.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <csignal>
#include <sys/prctl.h>

namespace {

// The object of an array whose `key` has this value.
QJsonObject entryOf(const QJsonArray& array, const QString& key, const QJsonValue& value)
{
    for (const auto entry : array) {
        if (entry.toObject().value(key) == value)
            return entry.toObject();
    }
    return {};
}

} // namespace

void BoundProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

BridgeProcess::BridgeProcess(const QByteArray& devices)
{
    QFile config(file(QStringLiteral("config.yaml")));
    if (config.open(QFile::WriteOnly))
        config.write("address: 127.0.0.1\nloopback-only: true\nstate: state.db\ncontrol: control\n"
                     "devices:\n"
            + devices);
    process_.setProcessChannelMode(QProcess::MergedChannels);
}

BridgeProcess::~BridgeProcess()
{
    kill();
}

QByteArray BridgeProcess::device(const QByteArray& uid, int channels, const QByteArray& more)
{
    const QByteArray picture = "width: 160, height: 90, rate: 10, bitrate: 64, key-interval: 10";
    return "  - uid: " + uid + "\n    version: " + version + "\n    password: " + password + '\n'
        + more + "    channels:\n      - count: " + QByteArray::number(channels)
        + "\n        main: {url: \"test:\", " + picture + "}\n        sub: {url: \"test:\", "
        + picture + ", codec: h265}\n";
}

bool BridgeProcess::start()
{
    constexpr qint64 patienceMs = 20000;
    constexpr int betweenLooksMs = 10;
    QElapsedTimer timer;
    timer.start();
    process_.start(QStringLiteral(ORVA_BRIDGE_PROGRAM),
        {QStringLiteral("--config"), file(QStringLiteral("config.yaml"))});
    if (!process_.waitForStarted())
        return false;
    while (!isServing()) {
        if (timer.elapsed() > patienceMs || process_.waitForFinished(betweenLooksMs))
            return false;
    }
    return true;
}

void BridgeProcess::kill()
{
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished();
}

bool BridgeProcess::isServing() const
{
    return LocalSocket(file(QStringLiteral("control")).toStdString()).isConnected();
}

QByteArray BridgeProcess::command(const QByteArray& line) const
{
    const LocalSocket socket(file(QStringLiteral("control")).toStdString());
    socket.write(line + '\n');
    return socket.readLine().trimmed();
}

bool BridgeProcess::fault(const QByteArray& uid, const QByteArray& fault) const
{
    return command("fault " + uid + ' ' + fault) == "ok";
}

QJsonObject BridgeProcess::status() const
{
    return QJsonDocument::fromJson(command("status")).object();
}

quint16 BridgeProcess::port() const
{
    return static_cast<quint16>(status().value(QStringLiteral("port")).toInt());
}

QJsonObject BridgeProcess::deviceStatus(const QString& uid) const
{
    return entryOf(status().value(QStringLiteral("devices")).toArray(), QStringLiteral("uid"), uid);
}

QJsonObject BridgeProcess::channelStatus(const QString& uid, int number) const
{
    return entryOf(deviceStatus(uid).value(QStringLiteral("channels")).toArray(),
        QStringLiteral("number"), number);
}

QJsonObject BridgeProcess::clientStatus(const QString& uid, int number) const
{
    return entryOf(deviceStatus(uid).value(QStringLiteral("clients")).toArray(),
        QStringLiteral("channel"), number);
}

QByteArray BridgeProcess::log()
{
    log_ += process_.readAll();
    return log_;
}
