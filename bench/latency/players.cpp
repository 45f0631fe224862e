// SPDX-License-Identifier: GPL-3.0-or-later
#include "players.h"

#include "tilegrid.h"

#include <QFile>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int pipeBytes = 1 << 20; // more than one frame may have, some seconds of them
constexpr int startPatienceMs = 10000;

} // namespace

ClientProgram::ClientProgram(const QString& decoder)
{
    QFile::copy(QStringLiteral(ORVA_TILES_PROGRAM), file(QStringLiteral("orva_tiles")));
    QFile deployment(file(QStringLiteral("deployment.json")));
    if (deployment.open(QFile::WriteOnly))
        deployment.write("{\"link\": {\"searchScope\": \"loopback\"}, \"decoder\": \""
            + decoder.toUtf8() + "\"}\n");
}

ProcessPtr ClientProgram::start(int tiles, const QStringList& arguments) const
{
    ProcessPtr process(new BoundProcess);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(file(QStringLiteral("orva_tiles")),
        QStringList{QStringLiteral("--uid"), QString::fromLatin1(BenchCamera::uid),
            QStringLiteral("--password"), QString::fromLatin1(BenchCamera::password),
            QStringLiteral("--tiles"), QString::number(tiles)}
            + arguments);
    return process->waitForStarted() ? std::move(process) : nullptr;
}

std::unique_ptr<RtspServer> RtspServer::start(std::string& error)
{
    std::unique_ptr<RtspServer> server(new RtspServer);
    if (server->open())
        return server;
    error =
        "the RTSP server does not start: " + server->process_.readAllStandardError().toStdString();
    return nullptr;
}

RtspServer::~RtspServer()
{
    process_.kill();
    process_.waitForFinished();
    if (pipe_ >= 0)
        ::close(pipe_);
}

bool RtspServer::open()
{
    const QString path = folder_.filePath(QStringLiteral("frames"));
    if (::mkfifo(qPrintable(path), 0600) != 0)
        return false;
    // For reading too, so that neither this nor a write depends on the server.
    pipe_ = ::open(qPrintable(path), O_RDWR | O_CLOEXEC);
    if (pipe_ < 0 || ::fcntl(pipe_, F_SETPIPE_SZ, pipeBytes) < 0)
        return false;
    process_.start(QStringLiteral(RTSP_LIVE_SCRIPT), {path});
    while (!process_.canReadLine()) {
        if (!process_.waitForReadyRead(startPatienceMs))
            return false;
    }
    port_ = process_.readLine().simplified().split(' ').last().toInt();
    return port_ > 0;
}

QString RtspServer::url() const
{
    return QStringLiteral("rtsp://127.0.0.1:%1/camera").arg(port_);
}

void RtspServer::take(const LinkFrame& frame)
{
    const auto size = static_cast<std::uint32_t>(frame.bytes.size());
    std::vector<std::uint8_t> message{static_cast<std::uint8_t>(frame.key ? 1 : 0)};
    for (int shift = 0; shift < 32; shift += 8)
        message.push_back(static_cast<std::uint8_t>(size >> shift));
    message.insert(message.end(), frame.bytes.begin(), frame.bytes.end());

    int waiting = 0;
    const bool room = ::ioctl(pipe_, FIONREAD, &waiting) == 0
        && static_cast<std::size_t>(waiting) + message.size() < pipeBytes / 2;
    if (room && ::write(pipe_, message.data(), message.size()) < 0)
        return; // the player will miss it, and that shows
}

Players startMpv(const RtspServer& server, int tiles, const QStringList& output)
{
    Players players;
    for (int tile = 0; tile < tiles; ++tile) {
        const QRect at = tileRect(tile, tiles);
        ProcessPtr process(new BoundProcess);
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->start(QStringLiteral("mpv"),
            QStringList{QStringLiteral("--no-config"), QStringLiteral("--profile=low-latency"),
                QStringLiteral("--untimed"), QStringLiteral("--msg-level=all=error"),
                QStringLiteral("--input-terminal=no"), QStringLiteral("--no-audio"),
                QStringLiteral("--no-osc"), QStringLiteral("--no-border"),
                QStringLiteral("--osd-level=0"), QStringLiteral("--input-default-bindings=no"),
                QStringLiteral("--load-scripts=no"), QStringLiteral("--ytdl=no"),
                QStringLiteral("--hwdec=no"), QStringLiteral("--keepaspect-window=no"),
                QStringLiteral("--geometry=%1x%2+%3+%4")
                    .arg(at.width())
                    .arg(at.height())
                    .arg(at.x())
                    .arg(at.y())}
                + output + QStringList(server.url()));
        if (!process->waitForStarted())
            return {};
        players.push_back(std::move(process));
    }
    return players;
}
