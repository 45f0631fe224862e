// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiletest.h"

#include "cloud/dev.h"
#include "scriptedlink.h"
#include "wall/waitingcircle.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <algorithm>
#include <cmath>

bool PaintCount::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        ++count;
    return false;
}

TileParts::TileParts(const GlWidgetViewWindow* tile)
{
    const auto labels = tile->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->styleSheet().contains(QLatin1String("opengl_background")))
            background = label;
        else if (label->text() == QLatin1String("REC"))
            recordText = label;
    }
    Q_ASSERT(background != nullptr && recordText != nullptr);
    frame = background->parentWidget();
    recordIndicator = recordText->parentWidget();
    const auto marks = recordIndicator->findChildren<QLabel*>();
    recordDot = marks.first() == recordText ? marks.last() : marks.first();
}

TileTest::TileTest(int tileCount, QSize tileSize)
    : io(IoConnect::instance()) // which the decoder has built
    , device(new Device)
{
    QObject::disconnect(io.get(), nullptr, &viewControl, nullptr); // no wall opens and closes here
    qRegisterMetaType<Channel*>("Channel*");
    qRegisterMetaType<Device*>("Device*");
    device->setChannelCount(tileCount);
    const int columns = static_cast<int>(std::ceil(std::sqrt(tileCount)));
    const int rows = (tileCount + columns - 1) / columns;
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.setGeometry(
        0, 0, std::max(columns * tileSize.width(), 100), std::max(rows * tileSize.height(), 100));
    for (int i = 0; i < tileCount; ++i) {
        tiles_.push_back(new GlWidgetViewWindow(&window));
        tile(i)->setChannel(device.get(), channel(i));
        tile(i)->resize(tileSize.width(), tileSize.height(), i % columns * tileSize.width(),
            i / columns * tileSize.height());
        channel(i)->mode(true).playing = true;
    }
}

TileTest::~TileTest()
{
    while (!tiles_.empty())
        remove();
    removeDevice();
    QThreadPool::globalInstance()->waitForDone(); // the layer comes up by a task
    QCoreApplication::sendPostedEvents();
    io.reset();
    QThreadPool::globalInstance()->waitForDone(); // and goes down by one
    ScriptedLink::instance().reset();
}

bool TileTest::isWaiting(int number) const
{
    const auto circles = tile(number)->findChildren<WaitingCircle*>();
    return circles.size() == 1 && circles.first()->isVisibleTo(tile(number));
}

bool TileTest::show()
{
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

void TileTest::store(const Picture& picture, int number, bool isLive) const
{
    ChannelMode& mode = channel(number)->mode(isLive);
    if (mode.yuvBuffer == nullptr)
        mode.yuvBuffer = new std::uint8_t[yuvBufferBytes];
    std::copy(picture.bytes().begin(), picture.bytes().end(), mode.yuvBuffer.load());
    mode.pictureSize = picture.size();
}

void TileTest::decode(const Picture& picture, int number, bool isLive)
{
    store(picture, number, isLive);
    emit decoder.decodeSuccess(
        channel(number), isLive, picture.size().width(), picture.size().height(), 0);
}

void TileTest::remove(int number)
{
    const auto at = tiles_.begin() + number;
    delete *at;
    tiles_.erase(at);
}

void TileTest::removeDevice()
{
    if (!device)
        return;
    emit Dev::instance()->deleteDevMsg(device.get());
    device.reset();
    QCoreApplication::sendPostedEvents();
}

QImage paintedOf(GlWidgetViewWindow* tile)
{
    // Until the window has been put together: Qt clears what it has shown before it paints anew.
    QSignalSpy shown(tile, &QOpenGLWidget::frameSwapped);
    tile->update();
    return shown.wait() ? tile->grabFramebuffer() : QImage();
}

QImage TileTest::screen() const
{
    const QRect area(window.mapToGlobal(QPoint(0, 0)), window.size());
    return window.screen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage();
}

QImage TileTest::screen(int number) const
{
    return screen().copy(tile(number)->geometry());
}
