// SPDX-License-Identifier: GPL-3.0-or-later
#include "render.h"

#include "svg.h"

#include <QPainter>
#include <QSvgRenderer>

namespace {

QRectF plateRect(const Plate& plate, const QSizeF& canvas)
{
    const double beyond = plate.radius + 1;
    QRectF rect(QPointF(0, 0), canvas);
    if (plate.open == Plate::Open::Left)
        rect.setLeft(-beyond);
    if (plate.open == Plate::Open::Right)
        rect.setRight(canvas.width() + beyond);
    return rect;
}

void drawPlate(QPainter& painter, const Plate& plate, const QSizeF& canvas)
{
    QRectF rect = plateRect(plate, canvas);
    double radius = plate.radius;
    painter.setPen(Qt::NoPen);
    if (plate.edge.isValid()) {
        painter.setPen(QPen(plate.edge, 1));
        rect.adjust(0.5, 0.5, -0.5, -0.5);
        radius -= 0.5;
    }
    painter.setBrush(plate.fill);
    painter.drawRoundedRect(rect, radius, radius);
}

// Draws around the painter's origin, as large as fits into the box.
void drawCentred(QPainter& painter, QSvgRenderer& svg, const QSizeF& box)
{
    const QSizeF size = svg.viewBoxF().size().scaled(box, Qt::KeepAspectRatio);
    svg.render(&painter, QRectF(QPointF(-size.width() / 2, -size.height() / 2), size));
}

QImage emptyImage(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage renderFrame(const QSize& canvas, QSvgRenderer& still, QSvgRenderer& turning, double degrees)
{
    QImage image = emptyImage(canvas);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(QPointF(0, 0), canvas).center());
    drawCentred(painter, still, canvas);
    painter.rotate(degrees);
    drawCentred(painter, turning, canvas);
    return image;
}

} // namespace

QImage render(const Picture& picture, int scale)
{
    const auto svg = loadSvg(picture.svg, picture.face, picture.entry);
    QImage image = emptyImage(picture.canvas * scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    if (picture.face.plate)
        drawPlate(painter, *picture.face.plate, picture.canvas);
    painter.translate(QRectF(QPointF(0, 0), picture.canvas).center() + picture.nudge);
    painter.rotate(picture.turnedDegrees);
    drawCentred(painter, *svg, picture.glyph);
    return image;
}

std::vector<QImage> render(const Animation& animation)
{
    const auto still = loadSvg(animation.stillSvg, Face(), animation.entry);
    const auto turning = loadSvg(animation.turningSvg, Face(), animation.entry);
    std::vector<QImage> frames;
    frames.reserve(static_cast<std::size_t>(animation.frames));
    for (int i = 0; i < animation.frames; ++i)
        frames.push_back(
            renderFrame(animation.canvas, *still, *turning, 360.0 * i / animation.frames));
    return frames;
}
