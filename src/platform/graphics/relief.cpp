// SPDX-License-Identifier: GPL-3.0-or-later
#include "relief.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace brenvaldo::platform {

namespace {

constexpr float farAway = 1e20F;

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
            const double luminance
                = 0.2126 * qRed(pixels[x]) + 0.7152 * qGreen(pixels[x]) + 0.0722 * qBlue(pixels[x]);
            mask.heights[indexOf(mask, x, y)] = static_cast<float>(luminance / 255);
        }
    }
    return mask;
}

/// Squared distances to the nearest sample of value 0, along one line: the lower envelope of
/// parabolas (Felzenszwalb and Huttenlocher, "Distance Transforms of Sampled Functions", 2012).
class LineDistance
{
public:
    explicit LineDistance(int longest)
        : m_vertex(static_cast<std::size_t>(longest))
        , m_border(static_cast<std::size_t>(longest) + 1)
        , m_result(static_cast<std::size_t>(longest))
    {
    }

    const std::vector<float>& transform(const std::vector<float>& line)
    {
        const int size = static_cast<int>(line.size());
        int last = 0;
        m_vertex[0] = 0;
        m_border[0] = -farAway;
        m_border[1] = farAway;
        for (int q = 1; q < size; ++q) {
            float border = intersection(line, q, m_vertex[at(last)]);
            while (last > 0 && border <= m_border[at(last)]) {
                --last;
                border = intersection(line, q, m_vertex[at(last)]);
            }
            ++last;
            m_vertex[at(last)] = q;
            m_border[at(last)] = border;
            m_border[at(last) + 1] = farAway;
        }
        int current = 0;
        for (int q = 0; q < size; ++q) {
            while (m_border[at(current) + 1] < static_cast<float>(q))
                ++current;
            const int vertex = m_vertex[at(current)];
            const auto offset = static_cast<float>(q - vertex);
            m_result[at(q)] = offset * offset + line[at(vertex)];
        }
        return m_result;
    }

private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }

    static float intersection(const std::vector<float>& line, int q, int p)
    {
        const auto fq = static_cast<double>(line[at(q)]) + static_cast<double>(q) * q;
        const auto fp = static_cast<double>(line[at(p)]) + static_cast<double>(p) * p;
        return static_cast<float>((fq - fp) / (2.0 * (q - p)));
    }

    std::vector<int> m_vertex;
    std::vector<float> m_border;
    std::vector<float> m_result;
};

/// Distance of each pixel centre of the part to the nearest centre outside of it.
HeightField distancesToOutside(const HeightField& mask)
{
    // A rim of one pixel stands for all that lies outside of the layer.
    HeightField squared{.width = mask.width + 2, .height = mask.height + 2, .heights = {}};
    squared.heights.resize(
        static_cast<std::size_t>(squared.width) * static_cast<std::size_t>(squared.height)
    );
    for (int y = 0; y < mask.height; ++y) {
        for (int x = 0; x < mask.width; ++x) {
            if (mask.at(x, y) >= 0.5F)
                squared.heights[indexOf(squared, x + 1, y + 1)] = farAway;
        }
    }
    LineDistance along(std::max(squared.width, squared.height));
    std::vector<float> line(static_cast<std::size_t>(squared.height));
    for (int x = 0; x < squared.width; ++x) {
        for (int y = 0; y < squared.height; ++y)
            line[static_cast<std::size_t>(y)] = squared.at(x, y);
        const auto& result = along.transform(line);
        for (int y = 0; y < squared.height; ++y)
            squared.heights[indexOf(squared, x, y)] = result[static_cast<std::size_t>(y)];
    }
    line.resize(static_cast<std::size_t>(squared.width));
    HeightField distances{
        .width = mask.width,
        .height = mask.height,
        .heights = std::vector<float>(mask.heights.size())};
    for (int y = 0; y < mask.height; ++y) {
        for (int x = 0; x < squared.width; ++x)
            line[static_cast<std::size_t>(x)] = squared.at(x, y + 1);
        const auto& result = along.transform(line);
        for (int x = 0; x < mask.width; ++x) {
            distances.heights[indexOf(distances, x, y)]
                = std::sqrt(result[static_cast<std::size_t>(x) + 1]);
        }
    }
    return distances;
}

double quarterCircle(double distance, double radius)
{
    const double t = std::clamp(distance / radius, 0.0, 1.0);
    return std::sqrt(1 - (1 - t) * (1 - t));
}

/// Blurs with a Gaussian of `sigma` pixels; samples beyond an edge repeat it.
void soften(HeightField& field, double sigma)
{
    const int reach = static_cast<int>(std::ceil(3 * sigma));
    std::vector<double> kernel;
    double sum = 0;
    for (int offset = -reach; offset <= reach; ++offset) {
        kernel.push_back(std::exp(-offset * offset / (2 * sigma * sigma)));
        sum += kernel.back();
    }
    const HeightField source = field;
    HeightField across = field;
    const auto convolve = [&](const HeightField& from, HeightField& to, int stepX, int stepY) {
        for (int y = 0; y < field.height; ++y) {
            for (int x = 0; x < field.width; ++x) {
                double value = 0;
                for (int offset = -reach; offset <= reach; ++offset) {
                    const int fromX = std::clamp(x + offset * stepX, 0, field.width - 1);
                    const int fromY = std::clamp(y + offset * stepY, 0, field.height - 1);
                    value += kernel[static_cast<std::size_t>(offset + reach)]
                        * static_cast<double>(from.at(fromX, fromY));
                }
                to.heights[indexOf(to, x, y)] = static_cast<float>(value / sum);
            }
        }
    };
    convolve(source, across, 1, 0);
    convolve(across, field, 0, 1);
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
    HeightField field = distancesToOutside(mask);
    for (float& height : field.heights)
        height = static_cast<float>(quarterCircle(static_cast<double>(height) - 0.5, radius));
    const double sigma = 0.1 * radius;
    if (sigma >= 0.5)
        soften(field, sigma);
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
            const double slopeX = (height(x + 1, y) - height(x - 1, y)) / 2;
            const double slopeY = (height(x, y - 1) - height(x, y + 1)) / 2;
            const double length = std::sqrt(slopeX * slopeX + slopeY * slopeY + 1);
            const double u = (-slopeX / length + 1) * 0.5 * ball.width();
            const double v = (-slopeY / length + 1) * 0.5 * ball.height();
            shaded[x] = faded(lookedUp(ball, u, v), qAlpha(pixels[x]));
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
