// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardtest.h"

#include "store/location.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>

CardParts::CardParts(const ChannelWindow& card)
    : frame(card.findChild<QWidget*>(QStringLiteral("widget_frame")))
    , image(card.findChild<QLabel*>(QStringLiteral("label_image")))
    , strip(card.findChild<QWidget*>(QStringLiteral("widget_strip")))
    , name(card.findChild<QLabel*>(QStringLiteral("channelName")))
    , dot(card.findChild<QLabel*>(QStringLiteral("label_dot")))
{
}

void keepPicturesApart()
{
    static const QTemporaryDir folder;
    Location::instance()->setPicPath(folder.path());
}

void savePicture(const QString& path, const QColor& colour, QSize size)
{
    QDir().mkpath(QFileInfo(path).path());
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    if (!image.save(path))
        qFatal("cannot write %s", qUtf8Printable(path));
}

CardTest::CardTest()
    : device(wall.addDevice(2))
    , other(wall.addDevice(1, false))
{
    qRegisterMetaType<QMouseEvent*>("QMouseEvent*");
    keepPicturesApart();
    card.setWindowFlags(Qt::FramelessWindowHint);
    card.setChannel(device, channel());
    card.adjustSize();
    card.grab(); // lays it out
}

bool CardTest::show()
{
    card.show();
    return QTest::qWaitForWindowExposed(&card);
}

QColor CardTest::nameColour() const
{
    parts().name->ensurePolished();
    return parts().name->palette().color(QPalette::WindowText);
}

QColor CardTest::nameGround() const
{
    parts().name->ensurePolished();
    return parts().name->palette().color(QPalette::Window);
}
