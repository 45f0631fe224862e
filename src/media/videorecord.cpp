// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/videorecord.h"

#include "model/device.h"
#include "store/location.h"

#include <QDir>

namespace {

// Names are Preview_VID3_..., Playback_VID3_...: the number is the channel's, counted from 1.
bool belongsTo(const QString& fileName, int channelNumber)
{
    constexpr int lettersBeforeNumber = 3;
    return fileName.section(QLatin1Char('_'), 1, 1).mid(lettersBeforeNumber).toInt()
        == channelNumber + 1;
}

// The last one in the order of the names; empty where there is none.
QString lastPictureOf(int channelNumber, const QDir& folder)
{
    const QStringList filters{QStringLiteral("*.png"), QStringLiteral("*.jpg")};
    const QStringList names = folder.entryList(filters, QDir::Files | QDir::NoDotAndDotDot);
    QString last;
    for (const QString& name : names) {
        if (belongsTo(name, channelNumber))
            last = folder.filePath(name);
    }
    return last;
}

} // namespace

VideoRecord* VideoRecord::instance()
{
    static VideoRecord* const record = new VideoRecord;
    return record;
}

VideoRecord::VideoRecord()
    : videoPath_(Location::instance()->getVideoPath())
    , picPath_(Location::instance()->getPicPath())
    , rootName_(QStringLiteral("/ORVA/"))
{
}

void VideoRecord::setRootName(int brand)
{
    if (brand == 0 || brand == 151)
        rootName_ = QStringLiteral("/ORVA/");
    else if (brand == 149)
        rootName_ = QStringLiteral("/BRISEN HD/");
    else if (brand == 150)
        rootName_ = QStringLiteral("/Fenrad/");
}

QString VideoRecord::channelFolder(const Device* device, bool isVideo) const
{
    return (isVideo ? videoPath_ : picPath_) + rootName_ + device->uid();
}

QString VideoRecord::placeholderPath(const Channel* channel) const
{
    if (channel == nullptr)
        return {};
    const QString snapshots = channelFolder(channel->device(), false);
    const QString snapshot = lastPictureOf(channel->number(), snapshots);
    return !snapshot.isEmpty()
        ? snapshot
        : lastPictureOf(channel->number(), snapshots + QStringLiteral("/placeHolder"));
}
