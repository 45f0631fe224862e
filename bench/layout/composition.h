// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QOpenGLWidget>

#include <chrono>
#include <ctime>

// Milliseconds since it was made, of the clock and of the processor (all threads).
struct Span
{
    double wall = 0;
    double cpu = 0;
};

class Meter final
{
public:
    Span elapsed() const;

private:
    static double processorMs();

    const std::chrono::steady_clock::time_point wall_ = std::chrono::steady_clock::now();
    const double cpu_ = processorMs();
};

// Runs the event loop until each of these tiles has been painted and the window has been put together
// with all of them. Without tiles: until nothing is left to do.
void awaitComposition(const QList<QOpenGLWidget*>& tiles);

// Runs the event loop for so long, and counts how often the window of the tile is put together.
int countCompositions(QOpenGLWidget* tile, std::chrono::milliseconds time);
