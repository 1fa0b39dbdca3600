// SPDX-License-Identifier: GPL-3.0-or-later
#include "shape_mask.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <mutex>
#include <vector>

namespace brenvaldo::platform::drawing {

namespace {

using Run = ShapeMask::Run;
using Rows = std::vector<std::vector<Run>>;

// The painter takes small coordinates only, and a small tile stays in the processor's cache.
constexpr int tileWidth = 16384;
constexpr int stripHeight = 64;

/// The shape in pixels of a tile, sharing nothing with the one that other threads use.
QPainterPath placedIn(const QRect& tile, const QPainterPath& shape)
{
    QPainterPath placed;
    placed.setFillRule(shape.fillRule());
    placed.addPath(shape);
    placed.translate(-tile.topLeft());
    return placed;
}

QImage rasterised(const QPainterPath& shape, const QRect& tile)
{
    QImage image(tile.size(), QImage::Format_Alpha8);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(placedIn(tile, shape), Qt::black);
    return image;
}

void addRun(std::vector<Run>& runs, const Run& run)
{
    if (!runs.empty() && runs.back().end == run.begin && runs.back().coverage == run.coverage)
        runs.back().end = run.end;
    else
        runs.push_back(run);
}

void takeRow(const uchar* coverage, const QRect& tile, std::vector<Run>& runs)
{
    const uchar* const end = coverage + tile.width();
    for (const uchar* begin = coverage; begin != end;) {
        const uchar value = *begin;
        const uchar* next
            = std::find_if(begin, end, [value](uchar other) { return other != value; });
        if (value != 0)
            addRun(
                runs,
                {.begin = tile.x() + static_cast<int>(begin - coverage),
                 .end = tile.x() + static_cast<int>(next - coverage),
                 .coverage = value}
            );
        begin = next;
    }
}

Rows drawn(const QPainterPath& shape, const QRect& area)
{
    Rows rows(static_cast<std::size_t>(area.height()));
    for (int x = 0; x < area.width(); x += tileWidth) {
        const QRect tile = area.intersected({x, area.y(), tileWidth, area.height()});
        const QImage image = rasterised(shape, tile);
        for (int y = 0; y < tile.height(); ++y)
            takeRow(image.constScanLine(y), tile, rows[static_cast<std::size_t>(y)]);
    }
    return rows;
}

} // namespace

struct ShapeMask::Strips
{
    /// `stripHeight` rows, drawn at once.
    struct Strip
    {
        std::once_flag isDrawn;
        Rows rows;
    };

    QPainterPath shape;
    graphics::PixelSize canvas;
    std::vector<Strip> strips;
};

ShapeMask::ShapeMask(const QPainterPath& shape, graphics::PixelSize canvas)
{
    const int count = (canvas.height + stripHeight - 1) / stripHeight;
    m_strips = std::make_shared<Strips>(Strips{
        .shape = shape,
        .canvas = canvas,
        .strips = std::vector<Strips::Strip>(static_cast<std::size_t>(count))});
}

std::span<const ShapeMask::Run> ShapeMask::row(int y) const
{
    const int top = y / stripHeight * stripHeight;
    const QRect canvas(0, 0, m_strips->canvas.width, m_strips->canvas.height);
    Strips::Strip& strip = m_strips->strips[static_cast<std::size_t>(y / stripHeight)];
    std::call_once(strip.isDrawn, [&] {
        strip.rows
            = drawn(m_strips->shape, canvas.intersected({0, top, canvas.width(), stripHeight}));
    });
    return strip.rows[static_cast<std::size_t>(y - top)];
}

} // namespace brenvaldo::platform::drawing
