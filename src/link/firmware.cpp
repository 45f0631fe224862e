// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/firmware.h"

#include "link/messagecodec.h"
#include "model/channel.h"

#include <QStringList>

namespace {

// The family stands in the text itself, behind the numbers.
bool isFamily01(const QString& version)
{
    constexpr int familyAt = 11;
    return version.midRef(familyAt, 2) == QLatin1String("01");
}

// For versions whose first part is that one character, below any digit.
bool canSeekByNumbers(const QStringList& parts, bool family01)
{
    const int second = parts[1].toInt();
    const bool hasThird = parts.size() > 2;
    const int third = hasThird ? parts[2].toInt() : 0;
    if (family01)
        return second >= 4 || (second == 3 && hasThird && third >= 2);
    return second >= 6 || (second == 5 && hasThird && third >= 0);
}

} // namespace

QString firmwareVersion(const Channel& channel)
{
    const std::shared_ptr<const Channel::VersionBlock> block = channel.version();
    if (block == nullptr)
        return {};
    return textOf(*block);
}

bool firmwareCanSeek(const Channel* channel)
{
    if (channel == nullptr)
        return true;
    const QString version = firmwareVersion(*channel);
    const QStringList parts = version.split(QLatin1Char('.'));
    if (parts.size() < 2)
        return false;
    const int order = parts[0].compare(QString(QChar(1)));
    if (order != 0)
        return order > 0;
    return canSeekByNumbers(parts, isFamily01(version));
}

bool firmwareResumesByStart(const Channel* channel)
{
    if (channel == nullptr)
        return true;
    const QString version = firmwareVersion(*channel);
    const QStringList parts = version.split(QLatin1Char('.'));
    return parts.size() >= 2 && !isFamily01(version) && parts[1].toInt() < 5;
}
