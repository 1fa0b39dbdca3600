// SPDX-License-Identifier: GPL-3.0-or-later
#include "relief.h"

#include "blurred_plane.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace brenvaldo::platform {

namespace {

std::size_t indexOf(const HeightField& field, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(field.width)
        + static_cast<std::size_t>(x);
}

HeightField maskOf(const QImage& layer)
{
    HeightField mask{
        .width = layer.width(),
        .height = layer.height(),
        .heights = std::vector<float>(
            static_cast<std::size_t>(layer.width()) * static_cast<std::size_t>(layer.height())
        )};
    for (int y = 0; y < mask.height; ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(layer.constScanLine(y));
        for (int x = 0; x < mask.width; ++x) {
            if (pixels[x] == 0)
                continue;
            const double luminance
                = 0.2126 * qRed(pixels[x]) + 0.7152 * qGreen(pixels[x]) + 0.0722 * qBlue(pixels[x]);
            mask.heights[indexOf(mask, x, y)] = static_cast<float>(luminance / 255);
        }
    }
    return mask;
}

/// Squared distance of each pixel centre of the part to the nearest centre outside of it; those
/// beyond `reach` count as `reach`.
class EdgeDistance
{
public:
    EdgeDistance(const HeightField& mask, int reach)
        : m_width(mask.width)
        , m_height(mask.height)
        , m_reach(reach)
        , m_alongRows(mask.heights.size())
    {
        for (int y = 0; y < m_height; ++y)
            measureAlong(&mask.heights[indexOf(mask, 0, y)], rowAt(y));
    }

    /// Calls `take(x, squaredDistance)` for the pixels of a row of the part.
    template <class Take>
    void forEachInRow(int y, Take take) const
    {
        std::vector<std::int32_t> squared(
            m_alongRows.begin() + offset(y), m_alongRows.begin() + offset(y + 1)
        );
        for (int distance = 1; distance <= m_reach; ++distance) {
            keepNearer(y - distance, distance, squared);
            keepNearer(y + distance, distance, squared);
        }
        for (int x = 0; x < m_width; ++x) {
            if (squared[static_cast<std::size_t>(x)] > 0)
                take(x, squared[static_cast<std::size_t>(x)]);
        }
    }

private:
    [[nodiscard]] std::ptrdiff_t offset(int y) const
    {
        return static_cast<std::ptrdiff_t>(y) * m_width;
    }
    [[nodiscard]] std::int32_t* rowAt(int y) { return m_alongRows.data() + offset(y); }

    void measureAlong(const float* mask, std::int32_t* squared) const
    {
        // What lies beyond the layer's border is outside.
        std::int32_t distance = 0;
        for (int x = 0; x < m_width; ++x) {
            distance = mask[x] >= 0.5F ? std::min(distance + 1, m_reach) : 0;
            squared[x] = distance;
        }
        distance = 0;
        for (int x = m_width - 1; x >= 0; --x) {
            distance = mask[x] >= 0.5F ? std::min(distance + 1, squared[x]) : 0;
            squared[x] = distance * distance;
        }
    }

    void keepNearer(int y, std::int32_t distance, std::vector<std::int32_t>& squared) const
    {
        const bool isInside = y >= 0 && y < m_height;
        const std::int32_t* row = isInside ? m_alongRows.data() + offset(y) : nullptr;
        for (std::size_t x = 0; x < squared.size(); ++x) {
            const std::int32_t other = (row != nullptr ? row[x] : 0) + distance * distance;
            squared[x] = std::min(squared[x], other);
        }
    }

    int m_width;
    int m_height;
    std::int32_t m_reach;
    std::vector<std::int32_t> m_alongRows;
};

double quarterCircle(double distance, double radius)
{
    const double t = std::clamp(distance / radius, 0.0, 1.0);
    return std::sqrt(1 - (1 - t) * (1 - t));
}

/// The slope of the part, before its ridge is softened.
HeightField slopeOf(const HeightField& mask, double radius)
{
    const int reach = static_cast<int>(std::ceil(radius + 0.5));
    std::vector<float> heights; // by the squared distance
    for (int squared = 0; squared <= reach * reach; ++squared)
        heights.push_back(static_cast<float>(quarterCircle(std::sqrt(squared) - 0.5, radius)));
    HeightField field{
        .width = mask.width,
        .height = mask.height,
        .heights = std::vector<float>(mask.heights.size())};
    const EdgeDistance distances(mask, reach);
    for (int y = 0; y < field.height; ++y) {
        float* row = &field.heights[indexOf(field, 0, y)];
        distances.forEachInRow(y, [&](int x, std::int32_t squared) {
            row[x] = heights[static_cast<std::size_t>(squared)];
        });
    }
    return field;
}

struct Texel
{
    std::array<double, 4> channels{};
};

Texel texelAt(const QImage& shading, int x, int y)
{
    const int column = std::clamp(x, 0, shading.width() - 1);
    const int row = std::clamp(y, 0, shading.height() - 1);
    const QRgb pixel = reinterpret_cast<const QRgb*>(shading.constScanLine(row))[column];
    return {
        {static_cast<double>(qRed(pixel)),
         static_cast<double>(qGreen(pixel)),
         static_cast<double>(qBlue(pixel)),
         static_cast<double>(qAlpha(pixel))}};
}

/// Samples `shading` bilinearly; `u` and `v` are pixels from its bottom left corner.
Texel lookedUp(const QImage& shading, double u, double v)
{
    const double x = u - 0.5;
    const double y = shading.height() - v - 0.5;
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const double dx = x - left;
    const double dy = y - top;
    const Texel topLeft = texelAt(shading, left, top);
    const Texel topRight = texelAt(shading, left + 1, top);
    const Texel bottomLeft = texelAt(shading, left, top + 1);
    const Texel bottomRight = texelAt(shading, left + 1, top + 1);
    Texel texel;
    for (std::size_t channel = 0; channel < 4; ++channel) {
        const double upper = std::lerp(topLeft.channels[channel], topRight.channels[channel], dx);
        const double lower
            = std::lerp(bottomLeft.channels[channel], bottomRight.channels[channel], dx);
        texel.channels[channel] = std::lerp(upper, lower, dy);
    }
    return texel;
}

QRgb faded(const Texel& texel, int alpha)
{
    const auto byte = [&](std::size_t channel) {
        return static_cast<int>(texel.channels[channel] * alpha / 255 + 0.5);
    };
    return qRgba(byte(0), byte(1), byte(2), byte(3));
}

} // namespace

HeightField heightFieldFromMask(const QImage& layer, double radius)
{
    const HeightField mask = maskOf(layer.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    if (radius <= 0 || mask.heights.empty())
        return mask;
    HeightField field = slopeOf(mask, radius);
    const double sigma = 0.1 * radius;
    if (sigma >= 0.5) {
        const Plane slope{
            .width = field.width, .height = field.height, .samples = std::move(field.heights)};
        field.heights = blurred(slope, sigma, Edge::Repeated).samples;
    }
    for (std::size_t index = 0; index < field.heights.size(); ++index)
        field.heights[index] *= mask.heights[index];
    return field;
}

QImage
shadedMaterial(const HeightField& field, const QImage& layer, const QImage& shading, double scale)
{
    const QImage object = layer.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage ball = shading.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage result(object.size(), QImage::Format_ARGB32_Premultiplied);
    if (result.isNull() || ball.isNull())
        return result;
    const auto height = [&](int x, int y) {
        const int column = std::clamp(x, 0, field.width - 1);
        const int row = std::clamp(y, 0, field.height - 1);
        return scale * static_cast<double>(field.at(column, row));
    };
    for (int y = 0; y < field.height; ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(object.constScanLine(y));
        auto* shaded = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < field.width; ++x) {
            const int alpha = qAlpha(pixels[x]);
            if (alpha == 0) {
                shaded[x] = 0;
                continue;
            }
            const double slopeX = (height(x + 1, y) - height(x - 1, y)) / 2;
            const double slopeY = (height(x, y - 1) - height(x, y + 1)) / 2;
            const double length = std::sqrt(slopeX * slopeX + slopeY * slopeY + 1);
            const double u = (-slopeX / length + 1) * 0.5 * ball.width();
            const double v = (-slopeY / length + 1) * 0.5 * ball.height();
            shaded[x] = faded(lookedUp(ball, u, v), alpha);
        }
    }
    return result;
}

QImage colorBall(const Color& color)
{
    constexpr int side = 134;
    constexpr double centre = 67;
    constexpr double startRadius = 65;
    constexpr double travel
        = 30; // the circles shrink from radius 65 to 0 while their centre moves up
    QImage ball(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < side; ++row) {
        auto* pixels = reinterpret_cast<QRgb*>(ball.scanLine(row));
        for (int column = 0; column < side; ++column) {
            const double x = column + 0.5 - centre;
            const double y = side - row - 0.5 - centre;
            // |p - (0, travel t)| = startRadius (1 - t), solved for its larger t in 0..1.
            const double a = travel * travel - startRadius * startRadius;
            const double b = 2 * (startRadius * startRadius - travel * y);
            const double c = x * x + y * y - startRadius * startRadius;
            const double root = std::sqrt(std::max(0.0, b * b - 4 * a * c));
            const double t = (-b + root) / (2 * a);
            const double coverage = std::clamp(startRadius - std::hypot(x, y) + 0.5, 0.0, 1.0);
            const double shade = std::clamp(t, 0.0, 1.0);
            const auto byte = [&](double component) {
                return static_cast<int>(255 * component * shade * coverage + 0.5);
            };
            pixels[column] = qRgba(
                byte(color.red),
                byte(color.green),
                byte(color.blue),
                static_cast<int>(255 * coverage + 0.5)
            );
        }
    }
    return ball;
}

} // namespace brenvaldo::platform
