// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stamp.h"

#include <platform/graphics/image_node.h>

#include <vector>

namespace brenvaldo::platform::drawing {

/// A stamp's layer in the colours and the depth of a photo, laid out for a quick way over its rows.
/// `Sample` is the photo's.
template <class Sample>
class StampLayer
{
public:
    /// Throws `vips::VError` when the colours can't be brought to those of the photo.
    StampLayer(
        const QImage& layer,
        const std::optional<Stamp::Texture>& texture,
        const graphics::ImageNode& photo
    );

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }

    /// Lays a part of row `y` over pixels of the photo: `count` pixels, the layer's from `x` on.
    void layOver(Sample* photo, int x, int y, int count) const;

private:
    /// Columns of a row that are not transparent, from the first to behind the last.
    struct Run
    {
        int begin = 0;
        int end = 0;
    };

    [[nodiscard]] std::size_t sampleAt(int x, int y) const;
    void takeRows(
        const vips::VImage& layer,
        const std::optional<Stamp::Texture>& texture,
        const graphics::ImageNode& photo
    );
    void takeRow(const Sample* row, int y);
    void takeRuns(const Sample* row);
    void layRun(Sample* photo, std::size_t first, int count) const;
    void layOverTranslucent(Sample* photo, std::size_t first, int count) const;

    int m_width = 0;
    int m_height = 0;
    int m_colors = 0;
    bool m_photoHasAlpha = false;
    std::vector<Sample> m_samples;
    std::vector<Sample> m_weights; ///< the opacity of each of `m_samples`
    std::vector<Run> m_runs; ///< of all rows, from the top down
    std::vector<std::size_t> m_runsEnd; ///< where the runs of each row end
};

extern template class StampLayer<quint8>;
extern template class StampLayer<quint16>;

} // namespace brenvaldo::platform::drawing
