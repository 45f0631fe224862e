// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/device.h"

#include <QVector>
#include <QWidget>

#include <chrono>
#include <vector>

class GlWidgetViewWindow;

// A borderless window with a square grid of tiles, tile i for channel i of one device, live: what the
// wall does, without the wall. Main thread; the layer comes up with it.
class TileWall final : public QWidget
{
    Q_OBJECT

public:
    TileWall(const QString& uid, const QString& password, int tiles);
    ~TileWall() override;

    // Connects the channels and starts their streams as they come.
    void open();
    // Of a tile whose channel is connected.
    void start(int tile);
    void stop(int tile);
    // From the start of a tile's stream to the first picture on the screen, in the order of arrival.
    const std::vector<std::chrono::microseconds>& firstPictures() const { return firstPictures_; }

signals:
    void firstPicture(int tile);
    void allShown(); // every tile has shown a picture
    void composed(); // the window was put together anew
    void stopped(int tile);
    void failed(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* tile, QEvent* event) override;

private:
    using Clock = std::chrono::steady_clock;

    struct Place
    {
        GlWidgetViewWindow* tile = nullptr;
        Clock::time_point started;
        bool decoded = false; // a picture of this start
        bool painted = false; // into the tile, not yet on the screen
        bool shown = false;
    };

    void windowComposed(Place& place);

    DeviceOwner device_;
    std::vector<Place> places_;
    std::vector<std::chrono::microseconds> firstPictures_;
};
