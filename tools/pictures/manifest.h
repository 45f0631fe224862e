// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

class Tokens;

// The rectangle behind a drawing; it fills the canvas.
struct Plate
{
    // A plate runs out of the canvas on its open side: no edge and no round corners there.
    enum class Open { None, Left, Right };

    QColor fill;
    QColor edge; // invalid: no edge; otherwise 1 px inside the plate
    double radius = 0;
    Open open = Open::None;
};

// One colour of a drawing and what takes its place.
struct Recolour
{
    QByteArray from; // as the SVG writes it
    QColor to;
};

// How a drawing looks in one state of its widget.
struct Face
{
    std::optional<QColor> colour; // of `currentColor`
    std::vector<Recolour> recolours;
    std::optional<Plate> plate;
};

// Where a made file stands among the resources: ":" + prefix + "/" + file.
struct Place
{
    QString prefix;
    QString file; // with its folder and its suffix
};

// A PNG to make, in pixels of the 1x picture.
struct Picture
{
    QString entry; // what a Problem calls it
    Place place;
    QString svg; // path
    QSize canvas;
    QSizeF glyph; // the box that the drawing fits into, in the middle of the canvas
    QPointF nudge;
    double turnedDegrees = 0; // clockwise
    Face face;
};

// A GIF to make: a drawing with another one turning clockwise over it, once around.
struct Animation
{
    QString entry;
    Place place;
    QString stillSvg;
    QString turningSvg;
    QSize canvas;
    int frames = 0;
    int frameMs = 0;
};

// Everything that is to be made. `read` throws Problem on what is malformed, on an unknown
// colour or face, and on a name given twice; whether an SVG exists shows when it is drawn.
struct Manifest
{
    QString file;
    std::vector<Picture> pictures;
    std::vector<Animation> animations;

    static Manifest read(const QString& file, const Tokens& tokens);
};
