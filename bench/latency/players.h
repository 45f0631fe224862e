// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "benchcamera.h"
#include "bridgeprocess.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

struct EndProcess
{
    void operator()(BoundProcess* process) const
    {
        process->kill();
        process->waitForFinished();
        delete process;
    }
};
using ProcessPtr = std::unique_ptr<BoundProcess, EndProcess>;

// The client's program in a folder of its own, since its deployment file lies beside it. One thread.
class ClientProgram
{
public:
    // `decoder`: as in the deployment file.
    explicit ClientProgram(const QString& decoder);

    // The running program, with its output to be read; null: it does not start.
    ProcessPtr start(int tiles, const QStringList& arguments) const;
    QString file(const QString& name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
};

// Passes the camera's frames on as an RTSP stream on loopback, each at once. One thread, but for take().
class RtspServer
{
public:
    // Null: `error` tells why.
    static std::unique_ptr<RtspServer> start(std::string& error);
    Q_DISABLE_COPY_MOVE(RtspServer)
    ~RtspServer();

    QString url() const;
    // A frame that the server has no time for is lost. Never waits; one other thread.
    void take(const LinkFrame& frame);

private:
    RtspServer() = default;
    bool open();

    QTemporaryDir folder_;
    BoundProcess process_;
    int port_ = 0;
    int pipe_ = -1;
};

// One mpv for each tile; none where one does not start.
using Players = std::vector<ProcessPtr>;
Players startMpv(const RtspServer& server, int tiles, const QStringList& output);
