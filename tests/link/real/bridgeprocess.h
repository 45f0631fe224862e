// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

// A process that ends with ours, even where that one is killed. Linux.
class BoundProcess final : public QProcess
{
protected:
    void setupChildProcess() override;
};

// orva-bridge as a process of its own: on loopback, on a free port that clients find by a search,
// with its files in a temporary folder that outlives restarts. One thread.
class BridgeProcess final
{
public:
    // `devices`: the entries of the list "devices" of its configuration.
    explicit BridgeProcess(const QByteArray& devices);
    ~BridgeProcess(); // kills it
    Q_DISABLE_COPY_MOVE(BridgeProcess)

    // An entry of that list with small test pictures, 10 a second: H.264, in low quality H.265.
    // `more`: further keys of the device, a line each, indented by four.
    static QByteArray device(
        const QByteArray& uid, int channels = 1, const QByteArray& more = QByteArray());
    // What those devices tell of themselves.
    static constexpr char version[] = "1.5.0.IPC1";
    static constexpr char password[] = "secret";

    // True once it serves: waits for that, for 20 s at most.
    bool start();
    // As a device does whose plug is pulled. Waits for the end; may be started again.
    void kill();

    // Sends a line to its control socket. The answer without a line end; empty when none comes.
    QByteArray command(const QByteArray& line) const;
    // True when the device has taken the fault.
    bool fault(const QByteArray& uid, const QByteArray& fault) const;
    quint16 port() const;
    // As "status" tells them; empty for none of that name or number.
    QJsonObject deviceStatus(const QString& uid) const;
    QJsonObject channelStatus(const QString& uid, int number = 0) const;
    QJsonObject clientStatus(const QString& uid, int number = 0) const;

    // All lines of the log so far.
    QByteArray log();
    QString file(const QString& name) const { return folder_.filePath(name); }

private:
    bool isServing() const;
    QJsonObject status() const;

    QTemporaryDir folder_;
    BoundProcess process_;
    QByteArray log_;
};
