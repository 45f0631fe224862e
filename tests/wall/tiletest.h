// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/ioconnect.h"
#include "media/decode.h"
#include "model/device.h"
#include "picture.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/viewcontrol.h"

#include <QImage>
#include <QWidget>

#include <memory>
#include <vector>

class QLabel;

// Counts the paint events of a widget, which must outlive it.
class PaintCount final : public QObject
{
public:
    explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    int count = 0;
};

// What the tile, which is on the screen, draws as it stands now, without what is over it.
QImage paintedOf(GlWidgetViewWindow* tile);

// What stands over a tile's picture.
struct TileParts
{
    explicit TileParts(const GlWidgetViewWindow* tile);

    QLabel* background = nullptr;
    QWidget* frame = nullptr;
    QLabel* recordText = nullptr;
    QLabel* recordDot = nullptr;
    QWidget* recordIndicator = nullptr;
};

class StandInViewControl final : public ViewControl
{
public:
    bool getIsLive() const override { return isLive; }

    bool isLive = true;
};

// The neighbours of a tile over the scripted layer, a device, and a window with a grid of tiles, tile i
// bound to channel i, whose live stream plays. Lives within one test function.
//
//     TileTest t;
//     QVERIFY(t.show());
//     t.decode(Picture({320, 180}, {128, 128, 128}));
//     QCOMPARE(differences(t.painted(), t.inner(), rgbOf({128, 128, 128})), QString());
class TileTest final
{
public:
    explicit TileTest(int tileCount = 1, QSize tileSize = QSize(200, 120));
    ~TileTest();
    Q_DISABLE_COPY_MOVE(TileTest)

    GlWidgetViewWindow* tile(int number = 0) const { return tiles_.at(std::size_t(number)); }
    Channel* channel(int number = 0) const { return device->channel(number); }
    TileParts parts(int number = 0) const { return TileParts(tile(number)); }
    bool isWaiting(int number = 0) const; // its circle stands on the tile

    // Until the window is on the screen. False where it does not get there.
    [[nodiscard]] bool show();
    // What a decode task does with a picture, and then tells.
    void store(const Picture& picture, int number = 0, bool isLive = true) const;
    void decode(const Picture& picture, int number = 0, bool isLive = true);
    // Deletes the tile now.
    void remove(int number = 0);
    // The device leaves the registry, and is destroyed.
    void removeDevice();

    QImage painted(int number = 0) const { return paintedOf(tile(number)); }
    // What stands on the screen now: the whole window, or the tile's part of it.
    QImage screen() const;
    QImage screen(int number) const;
    // The part of a tile that a picture fills: without the frame.
    QRect inner(int number = 0) const { return tile(number)->rect().adjusted(1, 1, -1, -1); }
    // The same, seen through the frame of two pixels.
    QRect visible(int number = 0) const { return tile(number)->rect().adjusted(2, 2, -2, -2); }

    StandInViewControl viewControl;
    Decode decoder;
    std::unique_ptr<IoConnect> io;
    DeviceOwner device;
    QWidget window;

private:
    std::vector<GlWidgetViewWindow*> tiles_;
};
