// SPDX-License-Identifier: GPL-3.0-or-later
#include "turned_tiles.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;

namespace {

constexpr int bands = 4;
constexpr int alphaBand = bands - 1;
constexpr int fraction = 16; ///< bits of the fixed-point coordinates
constexpr qint64 one = qint64{1} << fraction;
constexpr quint32 allShares = 65536;

qint64 fixedPoint(double value) { return std::llround(value * one); }

/// A coordinate that walks through the cells along a row.
class Walk
{
public:
    Walk(double start, double step, int side)
        : m_side(side * one)
        , m_at(wrapped(fixedPoint(std::fmod(start, side))))
        , m_step(wrapped(fixedPoint(std::fmod(step, side))))
    {
    }

    void goOn()
    {
        m_at += m_step;
        if (m_at >= m_side)
            m_at -= m_side;
    }

    /// The pixels on both sides, and the share of the second, of 256.
    [[nodiscard]] int first() const { return static_cast<int>(m_at >> fraction); }
    [[nodiscard]] int second() const { return m_at + one >= m_side ? 0 : first() + 1; }
    [[nodiscard]] quint32 share() const
    {
        return static_cast<quint32>((m_at & (one - 1)) >> (fraction - 8));
    }

private:
    [[nodiscard]] qint64 wrapped(qint64 value) const { return (value % m_side + m_side) % m_side; }

    qint64 m_side;
    qint64 m_at;
    qint64 m_step;
};

/// Four pixels and their shares of 65536.
struct Taps
{
    std::array<const quint8*, 4> pixels;
    std::array<quint32, 4> shares;
};

/// The sum of a band, each pixel by its weight.
quint32 weightedSum(const Taps& taps, const std::array<quint32, 4>& weights, int band)
{
    return weights[0] * taps.pixels[0][band] + weights[1] * taps.pixels[1][band]
        + weights[2] * taps.pixels[2][band] + weights[3] * taps.pixels[3][band];
}

/// Pixels of one opacity are mixed by their shares.
void mixEvenly(const Taps& taps, quint8 alpha, quint8* out)
{
    for (int band = 0; band < alphaBand; ++band)
        out[band] = static_cast<quint8>(
            (weightedSum(taps, taps.shares, band) + allShares / 2) / allShares
        );
    out[alphaBand] = alpha;
}

/// Others are weighted with their opacity, too.
void mixByOpacity(const Taps& taps, quint8* out)
{
    std::array<quint32, 4> weights;
    quint32 opacity = 0;
    for (std::size_t i = 0; i < weights.size(); ++i) {
        weights[i] = taps.shares[i] * taps.pixels[i][alphaBand];
        opacity += weights[i];
    }
    out[alphaBand] = static_cast<quint8>((opacity + allShares / 2) / allShares);
    for (int band = 0; band < alphaBand; ++band)
        out[band] = opacity == 0
            ? quint8{0}
            : static_cast<quint8>((weightedSum(taps, weights, band) + opacity / 2) / opacity);
}

void mix(const Taps& taps, quint8* out)
{
    const quint8 alpha = taps.pixels[0][alphaBand];
    const bool isEven = taps.pixels[1][alphaBand] == alpha && taps.pixels[2][alphaBand] == alpha
        && taps.pixels[3][alphaBand] == alpha;
    if (isEven && alpha == 0)
        std::fill_n(out, bands, quint8{0});
    else if (isEven)
        mixEvenly(taps, alpha, out);
    else
        mixByOpacity(taps, out);
}

class TurnedRows
{
public:
    TurnedRows(const vips::VImage& cell, const TileTurn& turn)
        : m_cell(cell)
        , m_pixels(VIPS_IMAGE_ADDR(m_cell.get_image(), 0, 0))
        , m_turn(turn)
        , m_cosine(std::cos(turn.degrees * std::numbers::pi / 180))
        , m_sine(std::sin(turn.degrees * std::numbers::pi / 180))
    {
    }

    void operator()(const graphics::KernelRow<1>& row) const
    {
        const double right = row.x + 0.5 - m_turn.centre.x();
        const double down = row.y + 0.5 - m_turn.centre.y();
        // Coordinates of the middles of pixels; they are half a pixel from the corners.
        Walk across(
            m_turn.inCell.x() + right * m_cosine - down * m_sine - 0.5, m_cosine, m_cell.width()
        );
        Walk along(
            m_turn.inCell.y() + right * m_sine + down * m_cosine - 0.5, m_sine, m_cell.height()
        );
        auto* out = row.out<quint8>();
        for (int i = 0; i < row.count; ++i, out += bands) {
            mix(tapsAt(across, along), out);
            across.goOn();
            along.goOn();
        }
    }

private:
    [[nodiscard]] const quint8* pixel(int x, int y) const
    {
        return m_pixels + qsizetype{y} * m_cell.width() * bands + qsizetype{x} * bands;
    }

    [[nodiscard]] Taps tapsAt(const Walk& across, const Walk& along) const
    {
        const quint32 x = across.share();
        const quint32 y = along.share();
        return {
            .pixels
            = {pixel(across.first(), along.first()),
               pixel(across.second(), along.first()),
               pixel(across.first(), along.second()),
               pixel(across.second(), along.second())},
            .shares = {(256 - x) * (256 - y), x * (256 - y), (256 - x) * y, x * y}};
    }

    vips::VImage m_cell;
    const quint8* m_pixels;
    TileTurn m_turn;
    double m_cosine;
    double m_sine;
};

} // namespace

Image turnedTiles(const Image& cell, const TileTurn& turn)
{
    const ImageNode& node = *cell.node();
    return graphics::builtImage(node, turn.canvas, [&] {
        const vips::VImage canvas = vips::VImage::black(turn.canvas.width, turn.canvas.height);
        return node.withPixels(
            graphics::mapRows(std::array{canvas}, {.bands = bands}, TurnedRows(node.pixels, turn))
        );
    });
}

} // namespace brenvaldo::platform::drawing
