// SPDX-License-Identifier: GPL-3.0-or-later
#include "layer_fade.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::KernelRow;

namespace {

constexpr int bands = 4;

/// Some pixels of a row of the mask.
struct MaskBlock
{
    static constexpr int capacity = 256;

    float x; ///< of the first pixel
    float xStep;
    float y;
    std::array<float, capacity> levels;
};

float squared(float value) { return value * value; }

void findLevels(const FadeAlong& fade, MaskBlock& block)
{
    const QPointF way = fade.gone - fade.whole;
    const double length = QPointF::dotProduct(way, way);
    const QPointF first = QPointF(block.x, block.y) - fade.whole;
    const auto start = static_cast<float>(1 - QPointF::dotProduct(first, way) / length);
    const auto step = static_cast<float>(-block.xStep * way.x() / length);
    for (int i = 0; i < MaskBlock::capacity; ++i)
        block.levels[static_cast<std::size_t>(i)] = start + static_cast<float>(i) * step;
}

/// 1 at `whole` pixels from the centre, 0 at `gone`.
void findLevels(QPointF centre, float whole, float gone, MaskBlock& block)
{
    const float x = block.x - static_cast<float>(centre.x());
    const float ySquare = squared(block.y - static_cast<float>(centre.y()));
    const float scale = 1 / (whole - gone);
    for (int i = 0; i < MaskBlock::capacity; ++i) {
        const float distance
            = std::sqrt(squared(x + static_cast<float>(i) * block.xStep) + ySquare);
        block.levels[static_cast<std::size_t>(i)] = (distance - gone) * scale;
    }
}

void findLevels(const FadeOutward& fade, MaskBlock& block)
{
    if (fade.radius > 0)
        findLevels(fade.centre, 0, static_cast<float>(fade.radius), block);
    else
        block.levels.fill(0);
}

void findLevels(const FadeInward& fade, MaskBlock& block)
{
    constexpr double hardEdge = 1e-3;
    const double inner = std::min(fade.inner, fade.outer - hardEdge);
    findLevels(fade.centre, static_cast<float>(fade.outer), static_cast<float>(inner), block);
}

/// Takes away what the mask takes from pixels of a row.
void weaken(const MaskBlock& mask, quint8* pixels, int count)
{
    for (int i = 0; i < count; ++i) {
        const float level = std::clamp(mask.levels[static_cast<std::size_t>(i)], 0.0F, 1.0F);
        const int share = static_cast<int>(level * 255 + 0.5F);
        quint8& alpha = pixels[i * bands + bands - 1];
        alpha = static_cast<quint8>((alpha * share + 127) / 255);
    }
}

class FadedRows
{
public:
    FadedRows(const FadeMask& mask, graphics::PixelSize layer)
        : m_shape(mask.shape)
        , m_xStep(mask.size.width() / layer.width)
        , m_yStep(mask.size.height() / layer.height)
        , m_height(layer.height)
    {
    }

    void operator()(const KernelRow<1>& row) const
    {
        auto* out = row.out<quint8>();
        std::copy_n(row.input<quint8>(0), qsizetype{row.count} * bands, out);
        MaskBlock block;
        block.xStep = static_cast<float>(m_xStep);
        block.y = static_cast<float>((m_height - row.y - 0.5) * m_yStep);
        for (int done = 0; done < row.count; done += MaskBlock::capacity) {
            block.x = static_cast<float>((row.x + done + 0.5) * m_xStep);
            std::visit([&block](const auto& shape) { findLevels(shape, block); }, m_shape);
            const int count = std::min(MaskBlock::capacity, row.count - done);
            weaken(block, out + qsizetype{done} * bands, count);
        }
    }

private:
    decltype(FadeMask::shape) m_shape;
    double m_xStep;
    double m_yStep;
    int m_height;
};

} // namespace

Image faded(const Image& layer, const FadeMask& mask)
{
    const ImageNode& node = *layer.node();
    return graphics::builtImage(node, layer.pixelSize(), [&] {
        return node.withPixels(graphics::mapRows(
            std::array{node.pixels}, {.bands = bands}, FadedRows(mask, layer.pixelSize())
        ));
    });
}

} // namespace brenvaldo::platform::drawing
