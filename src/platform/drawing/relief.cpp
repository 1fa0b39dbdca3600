// SPDX-License-Identifier: GPL-3.0-or-later
#include "relief.h"

#include "blurred_plane.h"
#include "edge_distance.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::platform::drawing {

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

float quarterCircle(float distance, float radius)
{
    if (distance <= 0 || distance >= radius)
        return distance <= 0 ? 0 : 1;
    const float t = 1 - distance / radius;
    return std::sqrt(1 - t * t);
}

/// How far each pixel belongs to the part: `mask` as a fraction of its brightest sample.
std::vector<float> coverageOf(const HeightField& mask)
{
    const float brightest = *std::max_element(mask.heights.begin(), mask.heights.end());
    std::vector<float> coverage(mask.heights.size());
    if (brightest <= 0)
        return coverage;
    for (std::size_t index = 0; index < coverage.size(); ++index)
        coverage[index] = mask.heights[index] / brightest;
    return coverage;
}

/// The slope of the part, before its ridge is softened.
HeightField slopeOf(const HeightField& mask, double radius)
{
    const std::vector<float> coverage = coverageOf(mask);
    const EdgeDistance edge(
        {.width = mask.width, .height = mask.height, .samples = coverage.data()},
        static_cast<int>(std::ceil(radius + 0.5))
    );
    HeightField field{.width = mask.width, .height = mask.height, .heights = {}};
    field.heights.reserve(mask.heights.size());
    for (int y = 0; y < field.height; ++y) {
        for (const float distance : edge.ofRow(y))
            field.heights.push_back(quarterCircle(distance, static_cast<float>(radius)));
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

QImage colorBall(const graphics::Color& color)
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

} // namespace brenvaldo::platform::drawing
