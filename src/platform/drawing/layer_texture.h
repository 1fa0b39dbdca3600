// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stamp.h"

#include <platform/graphics/image_node.h>

#include <array>

namespace brenvaldo::platform::drawing {

/// The picture that fills a part of a stamp's layer, in the colours and the depth of a photo.
/// `Sample` is the photo's.
template <class Sample>
class LayerTexture
{
public:
    /// Throws `vips::VError` when the picture can't be brought to the photo's colours.
    LayerTexture(const Stamp::Texture& texture, const graphics::ImageNode& photo);

    /// Adds the picture's share to row `y` of the layer: straight colours of the photo's model and
    /// an alpha, which grows by the share.
    void addTo(Sample* row, int y) const;

private:
    static constexpr std::size_t mostColors = 4;
    using Colors = std::array<double, mostColors>;

    [[nodiscard]] QPointF placeOf(int x, int y) const;
    [[nodiscard]] Colors colorsAt(QPointF point) const;
    [[nodiscard]] const Sample* pixelAt(int x, int y) const;

    QImage m_share;
    QTransform m_toPicture;
    QPoint m_origin;
    QSize m_period;
    vips::VImage m_pixels;
    int m_colors = 0;
};

extern template class LayerTexture<quint8>;
extern template class LayerTexture<quint16>;

} // namespace brenvaldo::platform::drawing
