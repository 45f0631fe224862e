// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <chrono>

// Brings the repaints of a window's tiles together. Whenever one tile repaints, Qt puts the whole
// window together anew: tiles that each follow their own camera would make that as many times a second
// as pictures come. Here a repaint waits until a frame time has passed since the one before; the first
// after a pause does not wait. Child of the window; main thread.
class RepaintPacer final : public QObject
{
    Q_OBJECT

public:
    // The one of this top-level window.
    static RepaintPacer* of(QWidget* window);

    // Calls update() of `tile`, which may die before.
    void repaint(QWidget* tile);

    // Short enough that no picture of a tile is overwritten by its next one, which may come 20 ms later
    // since that is how often devices are asked; and about what a screen can show.
    static constexpr std::chrono::milliseconds frameTime{16};

private:
    explicit RepaintPacer(QWidget* window);
    void repaintAll();

    QVector<QPointer<QWidget>> waiting_;
    QElapsedTimer sinceLast_; // repaint
    QTimer timer_;
};
