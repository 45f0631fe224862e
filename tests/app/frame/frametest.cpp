// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametest.h"

#include "wall/glwidgetviewwindow.h"

#include <QTest>

FrameTest::FrameTest()
{
    clearSettings();
    wall.viewControl.setScale(0);
}

LocalDeviceRecord FrameTest::saveDevice(const QString& uid, int channelCount)
{
    LocalDeviceRecord record;
    record.type = 1;
    record.channel = channelCount;
    record.uid = uid;
    LocalStore::instance()->saveDevice(record);
    return record;
}

bool FrameTest::open()
{
    gate.press("widget_localLogin");
    // Until the window manager has placed it, what is asked of the window may be undone.
    return QTest::qWaitForWindowActive(&gate.window)
        && QTest::qWaitFor([this] { return gate.window.size() == QSize(1080, 720); })
        && wall.settle();
}

QList<GlWidgetViewWindow*> FrameTest::tiles() const
{
    return viewBox()->findChildren<GlWidgetViewWindow*>();
}

QRect FrameTest::placeIn(const QWidget* room, const QWidget* part)
{
    return {room->mapFromGlobal(part->mapToGlobal(QPoint(0, 0))), part->size()};
}

bool FrameTest::isCentred(const QWidget* part) const
{
    if (part == nullptr)
        return false;
    const QRect place = placeIn(viewBox(), part);
    const QPoint off = place.center() - viewBox()->rect().center();
    return qAbs(off.x()) <= 1 && qAbs(off.y()) <= 1;
}

bool hasRoom(const QLabel* label)
{
    const QRect text = label->fontMetrics().boundingRect(
        QRect(0, 0, label->width(), 0), Qt::TextWordWrap, label->text());
    return text.width() <= label->width() && text.height() <= label->height();
}
