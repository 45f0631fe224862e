// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturetimes.h"

#include "framemark.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "media/stream.h"
#include "model/channel.h"
#include "model/events.h"
#include "stampreader.h"

#include <QFile>

#include <chrono>

PictureTimes::PictureTimes()
{
    connect(IoConnect::instance(), &IoConnect::videoRequestSuccessMsg, this,
        &PictureTimes::watchStreams);
    connect(Decode::instance(), &Decode::decodeSuccess, this,
        [this](Channel* channel, bool, int width, int height) {
            notePicture(channel, width, height);
        });
}

bool PictureTimes::write(const QString& path) const
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(lines_) == lines_.size();
}

// A filter that a stream has already is not added twice.
void PictureTimes::watchStreams()
{
    for (Stream* stream : Decode::instance()->streams())
        stream->installEventFilter(this);
}

bool PictureTimes::eventFilter(QObject* stream, QEvent* event)
{
    if (static_cast<int>(event->type()) == DecodeEvent_getVideo::number) {
        const auto& got = *static_cast<const DecodeEvent_getVideo*>(event);
        if (got.result > 0)
            note("fetched", static_cast<const Stream*>(stream)->channel()->number(),
                frameMark(got.buffer.get(), static_cast<std::size_t>(got.result)));
    }
    return false;
}

void PictureTimes::notePicture(Channel* channel, int width, int height)
{
    const std::uint8_t* picture = channel->mode(true).yuvBuffer.load(std::memory_order_acquire);
    if (const auto stamp = readStamp(picture, width, width, height))
        note("decoded", channel->number(), *stamp);
}

void PictureTimes::note(const char* what, int channel, quint64 which)
{
    using namespace std::chrono;
    const auto now = steady_clock::now().time_since_epoch();
    lines_ += QByteArray(what) + ' ' + QByteArray::number(channel) + ' ' + QByteArray::number(which)
        + ' ' + QByteArray::number(qint64(duration_cast<microseconds>(now).count())) + '\n';
}
