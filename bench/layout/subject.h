// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/walllayout.h"

#include <QList>
#include <QOpenGLWidget>
#include <QSize>
#include <QWidget>

#include <memory>

// A window with a wall of tiles in it, which is put through the steps that are measured. Each step
// returns as soon as the call does that a user's click would make.
class Subject
{
public:
    explicit Subject(QSize size);
    virtual ~Subject() = default;
    Q_DISABLE_COPY_MOVE(Subject)

    // Until the window is on the screen. False where it does not get there.
    bool show();
    // Those on the screen.
    QList<QOpenGLWidget*> tiles() const;

    // Without tiles: what the next ones are to be.
    virtual void prepare(WINDOW_MOD mod) = 0;
    void makeTiles();
    void dropTiles() { area_.reset(); } // with the widget that they stand on

    virtual void setLayout(WINDOW_MOD mod) = 0;
    virtual void doubleClick() = 0; // on the last tile: it alone, or all of them again
    virtual void turnPage(bool forward) = 0;
    virtual void changeMode(bool isLive) = 0;
    void resizeTo(QSize size);

    virtual void openMore() { } // as many channels again
    virtual void settle() const { } // until nothing is left to do but paint
    virtual void bringPictures() = 0; // to all tiles

protected:
    virtual void makeTilesOn(QWidget* area) = 0;
    virtual void layOut(QSize size) = 0;
    QWidget* area() const { return area_.get(); }

private:
    QWidget window_;
    std::unique_ptr<QWidget> area_;
};
