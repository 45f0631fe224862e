// SPDX-License-Identifier: GPL-3.0-or-later
#include "contestant.h"

#include "tilegrid.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr char uid[] = "BENCHWALLRECORDER001";

QString clipOf(const Wall& wall, int tile)
{
    return wall.clips[tile % wall.clips.size()];
}

QByteArray recorder(const Wall& wall)
{
    QByteArray device = QByteArray("  - uid: ") + uid + "\n    version: 2.6.0.N02A-"
        + QByteArray::number(wall.tiles) + "\n    password: " + BridgeProcess::password
        + "\n    channels:\n";
    for (int tile = 0; tile < wall.tiles; ++tile)
        device += "      - main: \"file:" + clipOf(wall, tile).toUtf8() + "\"\n";
    return device;
}

// The layer reads its scope from the file beside the program.
bool writeDeployment(const QString& program)
{
    QFile file(QFileInfo(program).path() + QStringLiteral("/deployment.json"));
    return file.open(QFile::WriteOnly)
        && file.write("{\"link\": {\"searchScope\": \"loopback\"}}\n") > 0;
}

QStringList mpvArguments(const QRect& at)
{
    const QString geometry = QStringLiteral("--geometry=%1x%2+%3+%4")
                                 .arg(at.width())
                                 .arg(at.height())
                                 .arg(at.x())
                                 .arg(at.y());
    return {QStringLiteral("--no-config"), QStringLiteral("--msg-level=all=error"),
        QStringLiteral("--input-terminal=no"), QStringLiteral("--no-audio"),
        QStringLiteral("--no-osc"), QStringLiteral("--no-border"), QStringLiteral("--osd-level=0"),
        QStringLiteral("--input-default-bindings=no"), QStringLiteral("--load-scripts=no"),
        QStringLiteral("--ytdl=no"), QStringLiteral("--hwdec=no"),
        QStringLiteral("--keepaspect-window=no"), QStringLiteral("--loop-file=inf"), geometry};
}

std::unique_ptr<Performance> playWithMpv(
    const Wall& wall, const QStringList& output, std::string& error)
{
    auto performance = std::make_unique<Performance>();
    for (int tile = 0; tile < wall.tiles; ++tile) {
        const QStringList arguments =
            mpvArguments(tileRect(tile, wall.tiles)) + output + QStringList(clipOf(wall, tile));
        if (!performance->players.start(QStringLiteral("mpv"), arguments, wall.log)) {
            error = "mpv does not start";
            return nullptr;
        }
    }
    return performance;
}

} // namespace

std::unique_ptr<Performance> playWithClient(const Wall& wall, std::string& error)
{
    const QString program = QStringLiteral(ORVA_TILES_PROGRAM);
    auto performance = std::make_unique<Performance>();
    performance->bridge = std::make_unique<BridgeProcess>(recorder(wall));
    if (!writeDeployment(program) || !performance->bridge->start()) {
        error = "orva-bridge does not start: " + performance->bridge->log().toStdString();
        return nullptr;
    }
    const QStringList arguments{QStringLiteral("--uid"), QString::fromLatin1(uid),
        QStringLiteral("--password"), QString::fromLatin1(BridgeProcess::password),
        QStringLiteral("--tiles"), QString::number(wall.tiles), QStringLiteral("--seconds"),
        QString::number(wall.longest.count())};
    if (!performance->players.start(program, arguments, wall.log)) {
        error = "orva_tiles does not start";
        return nullptr;
    }
    return performance;
}

std::unique_ptr<Performance> playWithFloor(const Wall& wall, std::string& error)
{
    auto performance = std::make_unique<Performance>();
    QStringList clips;
    for (int tile = 0; tile < wall.tiles; ++tile)
        clips += clipOf(wall, tile);
    if (!performance->players.start(QStringLiteral(BENCH_FLOOR_PROGRAM), clips, wall.log)) {
        error = "bench_floor does not start";
        return nullptr;
    }
    return performance;
}

std::unique_ptr<Performance> playWithMpvGpu(const Wall& wall, std::string& error)
{
    // Software OpenGL is taken only by those who ask for it.
    return playWithMpv(wall,
        {QStringLiteral("--vo=gpu"), QStringLiteral("--gpu-context=x11egl"),
            QStringLiteral("--gpu-sw=yes")},
        error);
}

std::unique_ptr<Performance> playWithMpvX11(const Wall& wall, std::string& error)
{
    return playWithMpv(wall, {QStringLiteral("--vo=x11")}, error);
}
