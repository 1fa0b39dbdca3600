// SPDX-License-Identifier: GPL-3.0-or-later
#include "shape_mask.h"

#include <QImage>
#include <QPainter>

#include <algorithm>

namespace brenvaldo::platform::drawing {

namespace {

using Run = ShapeMask::Run;
using Rows = std::vector<std::vector<Run>>;

// The painter takes small coordinates only, and a small tile stays in the processor's cache.
constexpr int tileWidth = 16384;
constexpr int tileHeight = 64;

QImage rasterised(const QPainterPath& shape, const QRect& tile)
{
    QImage image(tile.size(), QImage::Format_Alpha8);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-tile.topLeft());
    painter.fillPath(shape, Qt::black);
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

void takeTile(const QPainterPath& shape, const QRect& tile, Rows& rows)
{
    const QImage image = rasterised(shape, tile);
    for (int y = 0; y < tile.height(); ++y)
        takeRow(image.constScanLine(y), tile, rows[static_cast<std::size_t>(y)]);
}

} // namespace

ShapeMask::ShapeMask(const QPainterPath& shape, graphics::PixelSize canvas)
{
    m_runsEnd.reserve(static_cast<std::size_t>(canvas.height));
    const QRect all(0, 0, canvas.width, canvas.height);
    for (int y = 0; y < canvas.height; y += tileHeight) {
        Rows rows(static_cast<std::size_t>(std::min(tileHeight, canvas.height - y)));
        for (int x = 0; x < canvas.width; x += tileWidth)
            takeTile(shape, all.intersected({x, y, tileWidth, tileHeight}), rows);
        for (const std::vector<Run>& runs : rows) {
            m_runs.insert(m_runs.end(), runs.begin(), runs.end());
            m_runsEnd.push_back(m_runs.size());
        }
    }
}

std::span<const ShapeMask::Run> ShapeMask::row(int y) const
{
    const auto index = static_cast<std::size_t>(y);
    const std::size_t begin = index > 0 ? m_runsEnd[index - 1] : 0;
    return std::span(m_runs).subspan(begin, m_runsEnd[index] - begin);
}

} // namespace brenvaldo::platform::drawing
