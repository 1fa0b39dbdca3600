// SPDX-License-Identifier: GPL-3.0-or-later
#include "default_patterns.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/atomic_file.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace brenvaldo::presets {

namespace {

constexpr double side = 128;
constexpr double half = side / 2;
constexpr double line = 6;

using Draw = void (*)(QPainter& painter);

/// The first corner is at the top.
QPolygonF regularPolygon(QPointF centre, double radius, int corners)
{
    QPolygonF polygon;
    for (int corner = 0; corner < corners; ++corner) {
        const double angle = std::numbers::pi * (2.0 * corner / corners - 0.5);
        polygon.append(centre + radius * QPointF(std::cos(angle), std::sin(angle)));
    }
    return polygon;
}

void fillWithPen(QPainter& painter)
{
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
}

void drawDots(QPainter& painter)
{
    constexpr double radius = 16;
    fillWithPen(painter);
    painter.drawEllipse(QPointF(half / 2, half / 2), radius, radius);
    painter.drawEllipse(QPointF(half * 1.5, half * 1.5), radius, radius);
}

void drawDiagonals(QPainter& painter)
{
    for (const double start : {0.0, half})
        painter.drawLine(QPointF(start - side, side), QPointF(start + side, -side));
}

void drawLattice(QPainter& painter)
{
    painter.drawLine(QPointF(-side, -side), QPointF(side * 2, side * 2));
    painter.drawLine(QPointF(-side, side * 2), QPointF(side * 2, -side));
}

void drawChecks(QPainter& painter)
{
    fillWithPen(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawRect(QRectF(0, 0, half, half));
    painter.drawRect(QRectF(half, half, half, half));
}

void drawWaves(QPainter& painter)
{
    constexpr double height = 14;
    for (const double middle : {half / 2, half * 1.5}) {
        QPolygonF wave;
        for (int x = 0; x <= static_cast<int>(side); ++x)
            wave.append(QPointF(x, middle + height * std::sin(2 * std::numbers::pi * x / side)));
        painter.drawPolyline(wave);
    }
}

void drawZigzag(QPainter& painter)
{
    constexpr double height = 32;
    for (const double top : {half / 4, half * 1.25})
        painter.drawPolyline(QPolygonF(
            {{0, top + height},
             {half / 2, top},
             {half, top + height},
             {half * 1.5, top},
             {side, top + height}}
        ));
}

void drawBricks(QPainter& painter)
{
    for (const double y : {0.0, half})
        painter.drawLine(QPointF(0, y), QPointF(side, y));
    painter.drawLine(QPointF(half / 2, 0), QPointF(half / 2, half));
    painter.drawLine(QPointF(half * 1.5, half), QPointF(half * 1.5, side));
}

void drawScales(QPainter& painter)
{
    for (const QPointF centre :
         {QPointF(0, 0),
          QPointF(half, 0),
          QPointF(half / 2, half / 2),
          QPointF(half * 1.5, half / 2),
          QPointF(0, half),
          QPointF(half, half),
          QPointF(half / 2, half * 1.5),
          QPointF(half * 1.5, half * 1.5)})
        painter.drawArc(
            QRectF(centre - QPointF(half / 2, half / 2), QSizeF(half, half)), 0, 180 * 16
        );
}

void drawRings(QPainter& painter)
{
    for (const double radius : {20.0, 40.0, 60.0})
        painter.drawEllipse(QPointF(half, half), radius, radius);
}

void drawStars(QPainter& painter)
{
    constexpr int points = 5;
    fillWithPen(painter);
    for (const QPointF centre : {QPointF(half / 2, half / 2), QPointF(half * 1.5, half * 1.5)}) {
        const QPolygonF corners = regularPolygon(centre, 24, points);
        QPolygonF star;
        for (int corner = 0; corner < points; ++corner)
            star.append(corners[corner * 2 % points]);
        painter.drawPolygon(star, Qt::WindingFill);
    }
}

/// What `draw` draws, and what reaches into the tile from its neighbours.
QImage tile(Draw draw)
{
    QImage image(QSizeF(side, side).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (const double x : {-side, 0.0, side}) {
        for (const double y : {-side, 0.0, side}) {
            painter.save();
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(QColor(128, 128, 128), line));
            painter.translate(x, y);
            draw(painter);
            painter.restore();
        }
    }
    return image;
}

QByteArray png(const QImage& image)
{
    QByteArray contents;
    QBuffer buffer(&contents);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return contents;
}

} // namespace

std::vector<DefaultPattern> defaultPatterns()
{
    return {
        {u"Bricks"_s, tile(drawBricks)},
        {u"Checks"_s, tile(drawChecks)},
        {u"Diagonals"_s, tile(drawDiagonals)},
        {u"Dots"_s, tile(drawDots)},
        {u"Lattice"_s, tile(drawLattice)},
        {u"Rings"_s, tile(drawRings)},
        {u"Scales"_s, tile(drawScales)},
        {u"Stars"_s, tile(drawStars)},
        {u"Waves"_s, tile(drawWaves)},
        {u"Zigzag"_s, tile(drawZigzag)},
    };
}

void makeDefaultPatterns(const QString& folder)
{
    if (QFileInfo::exists(folder) || !QDir().mkpath(folder))
        return;
    for (const DefaultPattern& pattern : defaultPatterns()) {
        const QString file = pattern.name + u".png"_s;
        (void)platform::storage::writeFileAtomically(
            platform::appendingPathComponent(folder, file), png(pattern.tile)
        );
    }
}

} // namespace brenvaldo::presets
