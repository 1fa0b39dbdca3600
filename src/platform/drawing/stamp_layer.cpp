// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamp_layer.h"

#include "layer_texture.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/evaluation.h>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::drawing {

namespace {

/// (above * weight + below * (full - weight)) / full, rounded.
quint8 mixed(quint8 above, quint8 below, quint8 weight)
{
    const auto sum = static_cast<quint16>(above * weight + below * (255 - weight) + 127);
    // A division by 255 in 16 bits, exact for every sum, of which many are done at a time.
    return static_cast<quint8>(static_cast<quint16>(sum + 1 + (sum >> 8)) >> 8);
}

quint16 mixed(quint16 above, quint16 below, quint16 weight)
{
    constexpr quint32 full = std::numeric_limits<quint16>::max();
    const quint32 sum = quint32{above} * weight + quint32{below} * (full - weight);
    return static_cast<quint16>((sum + full / 2) / full);
}

/// Not inlined: as a function of its own it is compiled for whole vectors of samples.
template <class Sample>
[[gnu::noinline]] void
mix(Sample* __restrict photo,
    const Sample* __restrict layer,
    const Sample* __restrict weights,
    qsizetype count)
{
    constexpr qsizetype block = 32;
    qsizetype done = 0;
    for (; done + block <= count; done += block) {
        for (qsizetype i = 0; i < block; ++i)
            photo[done + i] = mixed(layer[done + i], photo[done + i], weights[done + i]);
    }
    for (; done < count; ++done)
        photo[done] = mixed(layer[done], photo[done], weights[done]);
}

} // namespace

template <class Sample>
StampLayer<Sample>::StampLayer(
    const QImage& layer,
    const std::optional<Stamp::Texture>& texture,
    const graphics::ImageNode& photo
)
    : m_width(layer.width())
    , m_height(layer.height())
    , m_colors(graphics::colorBands(photo.colorModel))
    , m_photoHasAlpha(photo.hasAlpha)
    , m_samples(sampleAt(0, m_height))
    , m_weights(m_samples.size())
{
    const graphics::Image straight
        = graphics::Image::fromQImage(layer.convertToFormat(QImage::Format_RGBA8888));
    takeRows(graphics::srgbLayerInColorsOf(straight.node()->pixels, photo), texture, photo);
}

template <class Sample>
void StampLayer<Sample>::takeRows(
    const vips::VImage& layer,
    const std::optional<Stamp::Texture>& texture,
    const graphics::ImageNode& photo
)
{
    const auto samples = [](const uchar* row) { return reinterpret_cast<const Sample*>(row); };
    if (!texture) {
        graphics::forEachRow(layer, [&](const uchar* row, int y) { takeRow(samples(row), y); });
        return;
    }
    const LayerTexture<Sample> filling(*texture, photo);
    std::vector<Sample> filled(static_cast<std::size_t>(m_width * (m_colors + 1)));
    graphics::forEachRow(layer, [&](const uchar* row, int y) {
        std::copy_n(samples(row), filled.size(), filled.begin());
        filling.addTo(filled.data(), y);
        takeRow(filled.data(), y);
    });
}

template <class Sample>
std::size_t StampLayer<Sample>::sampleAt(int x, int y) const
{
    const std::size_t pixel = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width)
        + static_cast<std::size_t>(x);
    return pixel * static_cast<std::size_t>(m_colors);
}

template <class Sample>
void StampLayer<Sample>::takeRow(const Sample* row, int y)
{
    takeRuns(row);
    Sample* samples = m_samples.data() + sampleAt(0, y);
    Sample* weights = m_weights.data() + sampleAt(0, y);
    for (int x = 0; x < m_width; ++x, row += m_colors + 1) {
        samples = std::copy_n(row, m_colors, samples);
        weights = std::fill_n(weights, m_colors, row[m_colors]);
    }
}

template <class Sample>
void StampLayer<Sample>::takeRuns(const Sample* row)
{
    constexpr int smallestGap = 16; // a shorter one costs less to lay than to leave out
    const std::size_t firstOfRow = m_runs.size();
    for (int x = 0; x < m_width; ++x) {
        if (row[qsizetype{x} * (m_colors + 1) + m_colors] == 0)
            continue;
        if (m_runs.size() > firstOfRow && x < m_runs.back().end + smallestGap)
            m_runs.back().end = x + 1;
        else
            m_runs.push_back({.begin = x, .end = x + 1});
    }
    m_runsEnd.push_back(m_runs.size());
}

template <class Sample>
void StampLayer<Sample>::layOver(Sample* photo, int x, int y, int count) const
{
    const auto row = static_cast<std::size_t>(y);
    const int photoBands = m_colors + (m_photoHasAlpha ? 1 : 0);
    for (std::size_t index = row > 0 ? m_runsEnd[row - 1] : 0; index < m_runsEnd[row]; ++index) {
        const int begin = std::max(x, m_runs[index].begin);
        const int end = std::min(x + count, m_runs[index].end);
        if (begin < end)
            layRun(photo + qsizetype{begin - x} * photoBands, sampleAt(begin, y), end - begin);
    }
}

template <class Sample>
void StampLayer<Sample>::layRun(Sample* photo, std::size_t first, int count) const
{
    if (m_photoHasAlpha)
        layOverTranslucent(photo, first, count);
    else
        mix(photo, &m_samples[first], &m_weights[first], qsizetype{count} * m_colors);
}

template <class Sample>
void StampLayer<Sample>::layOverTranslucent(Sample* photo, std::size_t first, int count) const
{
    constexpr double full = std::numeric_limits<Sample>::max();
    const Sample* layer = &m_samples[first];
    const Sample* weights = &m_weights[first];
    for (int i = 0; i < count; ++i, photo += m_colors + 1, layer += m_colors, weights += m_colors) {
        if (*weights == 0)
            continue;
        const double above = *weights / full;
        const double below = photo[m_colors] / full * (1 - above);
        const double alpha = above + below;
        for (int band = 0; band < m_colors; ++band)
            photo[band]
                = static_cast<Sample>((layer[band] * above + photo[band] * below) / alpha + 0.5);
        photo[m_colors] = static_cast<Sample>(alpha * full + 0.5);
    }
}

template class StampLayer<quint8>;
template class StampLayer<quint16>;

} // namespace brenvaldo::platform::drawing
