// SPDX-License-Identifier: GPL-3.0-or-later
#include "layer_texture.h"

#include "floor_modulo.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/qt_pixels.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace brenvaldo::platform::drawing {

using graphics::ImageNode;

namespace {

bool hasColorsOf(const ImageNode& picture, const ImageNode& photo)
{
    return picture.colorModel == photo.colorModel
        && picture.pixels.format() == photo.pixels.format()
        && picture.iccProfile == photo.iccProfile;
}

/// The samples of `picture` in the colours and the depth of `photo`, in memory.
vips::VImage samplesFor(const ImageNode& photo, const ImageNode& picture)
{
    if (hasColorsOf(picture, photo))
        return picture.pixels.copy_memory();
    const QImage srgb = graphics::evaluatedQImage(picture).convertToFormat(QImage::Format_RGBA8888);
    return graphics::srgbLayerInColorsOf(graphics::Image::fromQImage(srgb).node()->pixels, photo)
        .copy_memory();
}

} // namespace

template <class Sample>
LayerTexture<Sample>::LayerTexture(const Stamp::Texture& texture, const ImageNode& photo)
    : m_share(texture.share)
    , m_toPicture(texture.toPicture)
    , m_origin(texture.origin)
    , m_period(texture.period)
    , m_pixels(samplesFor(photo, *texture.picture.node()))
    , m_colors(graphics::colorBands(photo.colorModel))
{
}

template <class Sample>
void LayerTexture<Sample>::addTo(Sample* row, int y) const
{
    constexpr double full = std::numeric_limits<Sample>::max();
    const uchar* shares = m_share.constScanLine(y);
    for (int x = 0; x < m_share.width(); ++x, row += m_colors + 1) {
        if (shares[x] == 0)
            continue;
        const double share = shares[x] / 255.0 * full;
        const double rest = std::min<double>(row[m_colors], full - share);
        const Colors colors = colorsAt(placeOf(x, y));
        for (int band = 0; band < m_colors; ++band) {
            const double sum = row[band] * rest + colors[static_cast<std::size_t>(band)] * share;
            row[band] = static_cast<Sample>(sum / (rest + share) + 0.5);
        }
        row[m_colors] = static_cast<Sample>(rest + share + 0.5);
    }
}

template <class Sample>
QPointF LayerTexture<Sample>::placeOf(int x, int y) const
{
    QPoint pixel = QPoint(x, y) - m_origin;
    if (!m_period.isEmpty())
        pixel
            = {floorModulo(pixel.x(), m_period.width()), floorModulo(pixel.y(), m_period.height())};
    return m_toPicture.map(QPointF(pixel) + QPointF(0.5, 0.5));
}

/// Between the four pixels around the point, each as strong as it is opaque.
template <class Sample>
typename LayerTexture<Sample>::Colors LayerTexture<Sample>::colorsAt(QPointF point) const
{
    const double left = std::floor(point.x() - 0.5);
    const double top = std::floor(point.y() - 0.5);
    const double dx = point.x() - 0.5 - left;
    const double dy = point.y() - 0.5 - top;
    const bool hasAlpha = m_pixels.bands() > m_colors;
    Colors colors{};
    double total = 0;
    for (const int step : {0, 1, 2, 3}) {
        const int column = step % 2;
        const int row = step / 2;
        double weight = (column == 0 ? 1 - dx : dx) * (row == 0 ? 1 - dy : dy);
        if (weight == 0)
            continue;
        const Sample* pixel = pixelAt(static_cast<int>(left) + column, static_cast<int>(top) + row);
        if (hasAlpha)
            weight *= pixel[m_colors];
        total += weight;
        for (int band = 0; band < m_colors; ++band)
            colors[static_cast<std::size_t>(band)] += weight * pixel[band];
    }
    for (double& color : colors)
        color /= std::max(total, std::numeric_limits<double>::min());
    return colors;
}

template <class Sample>
const Sample* LayerTexture<Sample>::pixelAt(int x, int y) const
{
    const int column = floorModulo(x, m_pixels.width());
    const int row = floorModulo(y, m_pixels.height());
    return reinterpret_cast<const Sample*>(VIPS_IMAGE_ADDR(m_pixels.get_image(), column, row));
}

template class LayerTexture<quint8>;
template class LayerTexture<quint16>;

} // namespace brenvaldo::platform::drawing
