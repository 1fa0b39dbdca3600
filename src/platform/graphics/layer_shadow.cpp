// SPDX-License-Identifier: GPL-3.0-or-later
#include "layer_shadow.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace brenvaldo::platform {

namespace {

enum class Edge { Transparent, Wrapped };

/// One plane of samples from 0 to 1, row by row.
struct Plane
{
    int width = 0;
    int height = 0;
    std::vector<float> samples;

    [[nodiscard]] float* row(int y) { return samples.data() + offset(y); }
    [[nodiscard]] const float* row(int y) const { return samples.data() + offset(y); }

private:
    [[nodiscard]] std::size_t offset(int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
};

Plane emptyPlane(int width, int height)
{
    return {
        .width = width,
        .height = height,
        .samples
        = std::vector<float>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
}

int wrapped(int value, int size) { return ((value % size) + size) % size; }

Plane shiftedAlpha(const QImage& object, QPoint shift, int width, int height, Edge edge)
{
    Plane plane = emptyPlane(width, height);
    for (int y = 0; y < object.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(object.constScanLine(y));
        int toY = y + shift.y();
        if (edge == Edge::Wrapped)
            toY = wrapped(toY, height);
        if (toY < 0 || toY >= height)
            continue;
        float* row = plane.row(toY);
        for (int x = 0; x < object.width(); ++x) {
            int toX = x + shift.x();
            if (edge == Edge::Wrapped)
                toX = wrapped(toX, width);
            if (toX >= 0 && toX < width)
                row[toX] = static_cast<float>(qAlpha(pixels[x])) / 255.0F;
        }
    }
    return plane;
}

std::vector<float> gaussianKernel(double sigma)
{
    const int reach = static_cast<int>(std::ceil(3 * sigma));
    std::vector<float> kernel;
    double sum = 0;
    for (int offset = -reach; offset <= reach; ++offset) {
        const double weight = std::exp(-offset * offset / (2 * sigma * sigma));
        kernel.push_back(static_cast<float>(weight));
        sum += weight;
    }
    for (float& weight : kernel)
        weight = static_cast<float>(weight / sum);
    return kernel;
}

/// Convolves along the rows and turns the plane over its diagonal, so that two calls blur both
/// ways.
Plane blurredRowsTransposed(const Plane& plane, const std::vector<float>& kernel, Edge edge)
{
    const int reach = static_cast<int>(kernel.size()) / 2;
    Plane result = emptyPlane(plane.height, plane.width);
    std::vector<float> padded(static_cast<std::size_t>(plane.width + 2 * reach));
    for (int y = 0; y < plane.height; ++y) {
        const float* row = plane.row(y);
        for (int x = -reach; x < plane.width + reach; ++x) {
            const bool inside = x >= 0 && x < plane.width;
            const float outside = edge == Edge::Wrapped ? row[wrapped(x, plane.width)] : 0.0F;
            padded[static_cast<std::size_t>(x + reach)] = inside ? row[x] : outside;
        }
        for (int x = 0; x < plane.width; ++x) {
            float sum = 0;
            for (std::size_t tap = 0; tap < kernel.size(); ++tap)
                sum += kernel[tap] * padded[static_cast<std::size_t>(x) + tap];
            result.row(x)[y] = sum;
        }
    }
    return result;
}

Plane blurred(const Plane& plane, double sigma, Edge edge)
{
    if (sigma <= 0 || plane.samples.empty())
        return plane;
    const std::vector<float> kernel = gaussianKernel(sigma);
    return blurredRowsTransposed(blurredRowsTransposed(plane, kernel, edge), kernel, edge);
}

QImage colored(const Plane& plane, const Color& color)
{
    QImage layer(plane.width, plane.height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < plane.height; ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(layer.scanLine(y));
        const float* row = plane.row(y);
        for (int x = 0; x < plane.width; ++x) {
            const double alpha
                = 255 * color.alpha * std::clamp(static_cast<double>(row[x]), 0.0, 1.0);
            const auto byte = [](double value) { return static_cast<int>(value + 0.5); };
            pixels[x] = qRgba(
                byte(color.red * alpha),
                byte(color.green * alpha),
                byte(color.blue * alpha),
                byte(alpha)
            );
        }
    }
    return layer;
}

QImage
shadowOf(const QImage& object, const Shadow& shadow, QPoint shift, int width, int height, Edge edge)
{
    const QImage premultiplied = object.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const Plane alpha = shiftedAlpha(premultiplied, shift, width, height, edge);
    return colored(blurred(alpha, shadow.blurRadius / 2, edge), shadow.color);
}

} // namespace

int shadowReach(double blurRadius) { return static_cast<int>(std::ceil(1.5 * blurRadius)); }

QImage shadowLayer(const QImage& object, const Shadow& shadow, int margin)
{
    const QPoint shift(margin + shadow.xOffset, margin - shadow.yOffset);
    return shadowOf(
        object,
        shadow,
        shift,
        object.width() + 2 * margin,
        object.height() + 2 * margin,
        Edge::Transparent
    );
}

QImage tiledShadowLayer(const QImage& cell, const Shadow& shadow)
{
    const QPoint shift(shadow.xOffset, -shadow.yOffset);
    return shadowOf(cell, shadow, shift, cell.width(), cell.height(), Edge::Wrapped);
}

} // namespace brenvaldo::platform
