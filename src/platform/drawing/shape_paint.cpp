// SPDX-License-Identifier: GPL-3.0-or-later
#include "shape_paint.h"

#include "paint_mixing.h"
#include "photo_color.h"
#include "shape_mask.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::drawing {

using graphics::ImageNode;

namespace {

/// How much of the colour is left along a fade.
class FadeLine
{
public:
    explicit FadeLine(const ShapePaint::Fade& fade)
        : m_start(fade.start)
        , m_way(fade.end - fade.start)
        , m_square(QPointF::dotProduct(m_way, m_way))
    {
    }

    /// 1 at the start and 0 at the end, measured in the middle of the pixel; 0 beyond both.
    [[nodiscard]] float shareAt(int x, int y) const
    {
        if (m_square == 0)
            return 0;
        const QPointF middle(x + 0.5, y + 0.5);
        const double t = QPointF::dotProduct(middle - m_start, m_way) / m_square;
        return t < 0 || t > 1 ? 0 : static_cast<float>(1 - t);
    }

private:
    QPointF m_start;
    QPointF m_way;
    double m_square;
};

/// Paints a shape on the rows of a photo. `Sample` is the photo's.
template <class Sample>
class PaintRows
{
public:
    PaintRows(const QPainterPath& shape, const ShapePaint& paint, const ImageNode& photo)
        : m_mask(shape, {photo.pixels.width(), photo.pixels.height()})
        , m_mixing(mixingOf(paint.blend))
        , m_isPlain(paint.blend == ShapePaint::Blend::Normal && !paint.fade)
        , m_opacity(static_cast<float>(std::clamp(paint.opacity * paint.color.alpha, 0.0, 1.0)))
        , m_colors(graphics::colorBands(photo.colorModel))
        , m_bands(photo.pixels.bands())
        , m_isInk(photo.colorModel == graphics::ColorModel::Cmyk)
        , m_color(lightOf(samplesOf(paint.color, photo)))
        , m_black(lightOf(samplesOf({}, photo)))
    {
        if (paint.fade)
            m_fade.emplace(*paint.fade);
    }

    void operator()(const graphics::KernelRow<1>& row) const
    {
        auto* out = row.template out<Sample>();
        std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * m_bands, out);
        for (const ShapeMask::Run& run : m_mask.row(row.y)) {
            const int begin = std::max(run.begin, row.x);
            const int end = std::min(run.end, row.x + row.count);
            if (begin < end)
                paintRun(
                    out + qsizetype{begin - row.x} * m_bands,
                    {.begin = begin, .end = end, .coverage = run.coverage},
                    row.y
                );
        }
    }

private:
    static constexpr float full = std::numeric_limits<Sample>::max();

    [[nodiscard]] float lightOfSample(float sample) const
    {
        return m_isInk ? 1 - sample / full : sample / full;
    }

    [[nodiscard]] Sample sampleOfLight(float light) const
    {
        const float clamped = std::clamp(m_isInk ? 1 - light : light, 0.0F, 1.0F);
        return static_cast<Sample>(clamped * full + 0.5F);
    }

    [[nodiscard]] LightSamples lightOf(const std::vector<double>& samples) const
    {
        LightSamples light = {};
        for (std::size_t i = 0; i < samples.size(); ++i)
            light[i] = lightOfSample(static_cast<float>(samples[i]));
        return light;
    }

    [[nodiscard]] LightSamples lightOfPixel(const Sample* pixel) const
    {
        LightSamples light = {};
        for (int band = 0; band < m_colors; ++band)
            light[static_cast<std::size_t>(band)] = lightOfSample(pixel[band]);
        return light;
    }

    [[nodiscard]] bool covers(const ShapeMask::Run& run) const
    {
        return m_isPlain && m_opacity == 1 && run.coverage == std::numeric_limits<quint8>::max();
    }

    void paintRun(Sample* pixels, const ShapeMask::Run& run, int y) const
    {
        if (covers(run)) {
            fill(pixels, run.end - run.begin);
            return;
        }
        const float weight = m_opacity * run.coverage / std::numeric_limits<quint8>::max();
        for (int x = run.begin; x < run.end; ++x, pixels += m_bands) {
            const float share = m_fade ? m_fade->shareAt(x, y) : 1;
            if (share > 0)
                paintPixel(pixels, fadedTo(share), weight * share);
        }
    }

    void fill(Sample* pixels, int count) const
    {
        std::array<Sample, maxBands> pixel = {};
        for (int band = 0; band < m_bands; ++band)
            pixel[static_cast<std::size_t>(band)] = band < m_colors
                ? sampleOfLight(m_color[static_cast<std::size_t>(band)])
                : std::numeric_limits<Sample>::max();
        for (int i = 0; i < count; ++i)
            pixels = std::copy_n(pixel.begin(), m_bands, pixels);
    }

    [[nodiscard]] LightSamples fadedTo(float share) const
    {
        LightSamples color = m_color;
        for (std::size_t i = 0; i < color.size(); ++i)
            color[i] = color[i] * share + m_black[i] * (1 - share);
        return color;
    }

    void paintPixel(Sample* pixel, const LightSamples& above, float weight) const
    {
        const float opaque = m_bands > m_colors ? pixel[m_colors] / full : 1;
        const float alpha = weight + opaque * (1 - weight);
        if (alpha == 0)
            return;
        const LightSamples below = lightOfPixel(pixel);
        const LightSamples mixed = m_mixing(below, above, m_colors);
        for (int band = 0; band < m_colors; ++band) {
            const auto i = static_cast<std::size_t>(band);
            const float sum = above[i] * weight * (1 - opaque) + below[i] * opaque * (1 - weight)
                + mixed[i] * weight * opaque;
            pixel[band] = sampleOfLight(sum / alpha);
        }
        if (m_bands > m_colors)
            pixel[m_colors] = static_cast<Sample>(alpha * full + 0.5F);
    }

    static constexpr std::size_t maxBands = 5;

    ShapeMask m_mask;
    Mixing m_mixing;
    bool m_isPlain;
    float m_opacity;
    int m_colors;
    int m_bands;
    bool m_isInk;
    LightSamples m_color;
    LightSamples m_black; ///< what a fade ends in
    std::optional<FadeLine> m_fade;
};

template <class Sample>
vips::VImage
paintedPixels(const ImageNode& photo, const QPainterPath& shape, const ShapePaint& paint)
{
    const graphics::KernelOutput output
        = {photo.pixels.bands(), photo.pixels.format(), photo.pixels.interpretation()};
    return graphics::mapRows(
        std::array{photo.pixels}, output, PaintRows<Sample>(shape, paint, photo)
    );
}

} // namespace

graphics::Image
painted(const graphics::Image& photo, const QPainterPath& shape, const ShapePaint& paint)
{
    const ImageNode& node = *photo.node();
    return graphics::builtImage(node, photo.pixelSize(), [&] {
        const bool isDeep = node.pixels.format() == VIPS_FORMAT_USHORT;
        return node.withPixels(
            isDeep ? paintedPixels<quint16>(node, shape, paint)
                   : paintedPixels<quint8>(node, shape, paint)
        );
    });
}

} // namespace brenvaldo::platform::drawing
