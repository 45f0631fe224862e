// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <vector>

// Brings the repaints of a window's tiles together. Whenever one tile repaints, Qt puts the whole
// window together anew: tiles that each follow their own camera would make that as many times a second
// as pictures come. Here a new picture waits until every tile that plays has one, and at most for one
// frame time, or less where delay counts for more than work. Where painting takes nearly all the time
// there is, some is left to everything else, and pictures that come meanwhile are not seen.
// Child of the window; main thread.
class RepaintPacer final : public QObject
{
    Q_OBJECT

public:
    // The one of this top-level window.
    static RepaintPacer* of(QWidget* window);

    // `tile` has a new picture to paint. It may die at any time.
    void pictureCame(QWidget* tile);
    // The picture of `tile` is about to be replaced by the next one: where it waits, it is painted
    // before this returns, so that it is seen, unless painting has had its share of time.
    void pictureGoes(const QWidget* tile);

private:
    struct Tile
    {
        QPointer<QWidget> widget;
        qint64 lastPicture = 0; // milliseconds of clock_
        bool waiting = false;
    };

    explicit RepaintPacer(QWidget* window);
    Tile& entryOf(QWidget* tile);
    bool allHavePictures(qint64 now) const;
    void repaintAll();

    std::vector<Tile> tiles_; // that have had a picture
    QElapsedTimer clock_;
    qint64 nextRepaint_ = 0; // not before, milliseconds of clock_
    QTimer timer_; // runs while a picture waits
};
