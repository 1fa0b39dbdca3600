// SPDX-License-Identifier: GPL-3.0-or-later
#include "paint_rows.h"

#include "photo_color.h"

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::drawing {

using graphics::Color;
using graphics::ImageNode;

namespace {

const Color& firstColor(const Paint& paint)
{
    if (const auto* color = std::get_if<Color>(&paint))
        return *color;
    const auto* linear = std::get_if<LinearGradient>(&paint);
    return linear != nullptr ? linear->fade.from : std::get<RadialGradient>(paint).fade.from;
}

const Color& secondColor(const Paint& paint)
{
    if (const auto* color = std::get_if<Color>(&paint))
        return *color;
    const auto* linear = std::get_if<LinearGradient>(&paint);
    return linear != nullptr ? linear->fade.to : std::get<RadialGradient>(paint).fade.to;
}

float between(float from, float to, float share) { return from + (to - from) * share; }

} // namespace

BlendColor blendColorFor(const ImageNode& photo, const Color& color)
{
    const bool isInk = photo.colorModel == graphics::ColorModel::Cmyk;
    const double full = photo.pixels.format() == VIPS_FORMAT_USHORT ? 65535 : 255;
    const std::vector<double> samples = samplesOf(color, photo);
    BlendColor result;
    std::transform(
        samples.begin(),
        samples.end(),
        result.components.begin(),
        [isInk, full](double sample) {
            const auto value = static_cast<float>(sample / full);
            return isInk ? 1 - value : value;
        }
    );
    result.alpha = static_cast<float>(color.alpha);
    return result;
}

PaintRows::PaintRows(const ImageNode& photo, const Paint& paint, double opacity)
    : m_paint(paint)
    , m_colors(static_cast<std::size_t>(graphics::colorBands(photo.colorModel)))
    , m_from(blendColorFor(photo, firstColor(paint)))
    , m_to(blendColorFor(photo, secondColor(paint)))
{
    m_from.alpha *= static_cast<float>(opacity);
    m_to.alpha *= static_cast<float>(opacity);
}

void PaintRows::fill(const BlockPlace& place, BlendBlock& block) const
{
    if (std::holds_alternative<Color>(m_paint)) {
        fillPlain(place.count, block);
        return;
    }
    Way way;
    if (const auto* linear = std::get_if<LinearGradient>(&m_paint))
        findWay(*linear, place, way);
    else
        findWay(std::get<RadialGradient>(m_paint), place, way);
    fillFade(way, place.count, block);
}

void PaintRows::fillPlain(int count, BlendBlock& block) const
{
    for (std::size_t color = 0; color < m_colors; ++color)
        std::fill_n(block.colors[color].begin(), count, m_from.components[color]);
    std::fill_n(block.alpha.begin(), count, m_from.alpha);
}

void PaintRows::fillFade(const Way& way, int count, BlendBlock& block) const
{
    for (std::size_t color = 0; color < m_colors; ++color) {
        const float from = m_from.components[color];
        const float to = m_to.components[color];
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
            block.colors[color][i] = between(from, to, way.share[i]);
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        block.alpha[i] = between(m_from.alpha, m_to.alpha, way.share[i]) * way.coverage[i];
}

void PaintRows::findWay(const LinearGradient& gradient, const BlockPlace& place, Way& way)
{
    const QPointF line = gradient.end - gradient.start;
    const double squaredLength = QPointF::dotProduct(line, line);
    if (squaredLength == 0) {
        std::fill_n(way.share.begin(), place.count, 0.0F);
        std::fill_n(way.coverage.begin(), place.count, 0.0F);
        return;
    }
    const QPointF first = QPointF(place.x + 0.5, place.y + 0.5) - gradient.start;
    const auto begin = static_cast<float>(QPointF::dotProduct(first, line) / squaredLength);
    const auto step = static_cast<float>(line.x() / squaredLength);
    for (std::size_t i = 0; i < static_cast<std::size_t>(place.count); ++i) {
        const float share = begin + static_cast<float>(i) * step;
        way.share[i] = share;
        way.coverage[i] = share >= 0 && share <= 1 ? 1.0F : 0.0F;
    }
}

void PaintRows::findWay(const RadialGradient& gradient, const BlockPlace& place, Way& way)
{
    const auto start = static_cast<float>(gradient.startRadius);
    const auto end = static_cast<float>(gradient.endRadius);
    const float inner = std::min(start, end);
    const float outer = std::max(start, end);
    const auto dx = static_cast<float>(place.x + 0.5 - gradient.centre.x());
    const auto dy = static_cast<float>(place.y + 0.5 - gradient.centre.y());
    for (std::size_t i = 0; i < static_cast<std::size_t>(place.count); ++i) {
        const float column = dx + static_cast<float>(i);
        const float distance = std::sqrt(column * column + dy * dy);
        const float outside = std::clamp(outer - distance + 0.5F, 0.0F, 1.0F);
        const float inside = inner > 0 ? std::clamp(distance - inner + 0.5F, 0.0F, 1.0F) : 1.0F;
        const float onWay = std::clamp(distance, inner, outer) - start;
        way.share[i] = start == end ? 0.0F : onWay / (end - start);
        way.coverage[i] = start == end ? 0.0F : outside * inside;
    }
}

} // namespace brenvaldo::platform::drawing
