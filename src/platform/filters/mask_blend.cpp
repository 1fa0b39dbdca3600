// SPDX-License-Identifier: GPL-3.0-or-later
#include "mask_blend.h"

#include "pixel_node.h"

namespace brenvaldo::platform::filters {

namespace {

BRENVALDO_VECTOR_LOOP void
blend(const PixelBlock& front, const PixelBlock& back, const PixelBlock& mask, PixelBlock& out)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        const float share = mask.green[i] * mask.alpha[i];
        const float ofFront = share * front.alpha[i];
        const float ofBack = (1 - share) * back.alpha[i];
        const float alpha = ofFront + ofBack;
        const float weight = alpha > 0 ? 1 / alpha : 0.0F;
        out.red[i] = (ofFront * front.red[i] + ofBack * back.red[i]) * weight;
        out.green[i] = (ofFront * front.green[i] + ofBack * back.green[i]) * weight;
        out.blue[i] = (ofFront * front.blue[i] + ofBack * back.blue[i]) * weight;
        out.alpha[i] = alpha;
    }
}

} // namespace

FilterImage
blendedWithMask(const FilterImage& image, const FilterImage& background, const FilterImage& mask)
{
    const auto front = inSpace(image.node(), Space::Linear);
    const auto back = inSpace(background.node(), Space::Linear);
    const bool isOwnMask = mask.node() == image.node(); // needn't be converted twice
    const auto node = std::make_shared<PixelNode>(PixelNode{
        .space = Space::Linear,
        .inputs = {front, back, isOwnMask ? front : inSpace(mask.node(), Space::Linear)},
        .compute = [](const Blocks& inputs, const BlockPlace& /*place*/, PixelBlock& out) {
            blend(*inputs[0], *inputs[1], *inputs[2], out);
        }});
    return {image.pixelSize(), image.hasAlpha() || background.hasAlpha(), node};
}

FilterImage transparent(const FilterImage& like)
{
    const auto node = std::make_shared<PixelNode>(PixelNode{
        .inputs = {like.node()},
        .compute = [](const Blocks& /*inputs*/, const BlockPlace& /*place*/, PixelBlock& out) {
            out = {};
        }});
    return {like.pixelSize(), true, node};
}

} // namespace brenvaldo::platform::filters
