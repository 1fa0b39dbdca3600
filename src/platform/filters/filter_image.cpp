// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_image.h"

#include "pixel_program.h"
#include "transfer_curve.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <algorithm>
#include <map>
#include <utility>

namespace brenvaldo::platform::filters {

using graphics::KernelOutput;
using graphics::KernelRow;

namespace {

/// A grey picture has to show colours, too.
vips::VImage withThreeColors(const graphics::ImageNode& node)
{
    if (node.colorModel != graphics::ColorModel::Gray)
        return node.pixels;
    const vips::VImage gray = node.pixels.extract_band(0);
    std::vector<vips::VImage> bands = {gray, gray, gray};
    if (node.hasAlpha)
        bands.push_back(node.pixels.extract_band(1));
    return vips::VImage::bandjoin(bands);
}

/// The result of `program`, block by block; `store(block, x, count, row)` puts it into the output.
template <std::size_t SourceCount, class Store>
vips::VImage rendered(const PixelProgram& program, const KernelOutput& output, const Store& store)
{
    std::array<vips::VImage, SourceCount> sources;
    std::copy_n(program.sources().begin(), SourceCount, sources.begin());
    std::array<int, SourceCount> sizes = {};
    for (std::size_t i = 0; i < SourceCount; ++i)
        sizes[i] = static_cast<int>(VIPS_IMAGE_SIZEOF_PEL(sources[i].get_image()));
    return graphics::mapRows(
        sources,
        output,
        [program, sizes, store](const KernelRow<SourceCount>& row) {
            std::array<const void*, SourceCount> at = {};
            for (int done = 0; done < row.count; done += PixelBlock::capacity) {
                const int count = std::min(PixelBlock::capacity, row.count - done);
                for (std::size_t i = 0; i < SourceCount; ++i)
                    at[i] = row.template input<char>(i) + std::ptrdiff_t{done} * sizes[i];
                store(program.run(at, {row.x + done, row.y}, count), done, count, row.output);
            }
        }
    );
}

template <class Store>
vips::VImage render(
    const std::shared_ptr<const PixelNode>& result, const KernelOutput& output, const Store& store
)
{
    const PixelProgram program(result);
    switch (program.sources().size()) {
    case 1:
        return rendered<1>(program, output, store);
    case 2:
        return rendered<2>(program, output, store);
    case 3:
        return rendered<3>(program, output, store);
    default:
        throw vips::VError("a calculation with too many pictures");
    }
}

using NodePointer = std::shared_ptr<const PixelNode>;

/// Steps that are shared stay shared.
NodePointer
withSourcesInMemory(const NodePointer& node, std::map<const PixelNode*, NodePointer>& done)
{
    if (const auto found = done.find(node.get()); found != done.end())
        return found->second;
    PixelNode copy = *node;
    if (!copy.compute)
        copy.pixels = graphics::randomAccess(copy.pixels);
    for (NodePointer& input : copy.inputs)
        input = withSourcesInMemory(input, done);
    return done[node.get()] = std::make_shared<PixelNode>(std::move(copy));
}

using Bytes = std::array<quint8, PixelBlock::capacity>;

BRENVALDO_VECTOR_LOOP void toBytes(const PixelBlock::Plane& levels, Bytes& bytes)
{
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const float level = std::min(std::max(levels[i], 0.0F), 1.0F);
        bytes[i] = static_cast<quint8>(static_cast<int>(level * 255 + 0.5F));
    }
}

/// Puts the planes of a block side by side; `bands` of them.
void storeBytes(const PixelBlock& block, int bands, std::size_t count, quint8* out)
{
    std::array<Bytes, 4> planes;
    toBytes(block.red, planes[0]);
    toBytes(block.green, planes[1]);
    toBytes(block.blue, planes[2]);
    if (bands > 3)
        toBytes(block.alpha, planes[3]);
    for (std::size_t i = 0; i < count; ++i, out += bands) {
        out[0] = planes[0][i];
        out[1] = planes[1][i];
        out[2] = planes[2][i];
        if (bands > 3)
            out[3] = planes[3][i];
    }
}

} // namespace

FilterImage::FilterImage(const graphics::Image& photo)
    : m_size(photo.pixelSize())
    , m_hasAlpha(photo.hasAlpha())
{
    const graphics::ImageNode srgb = graphics::convertedToSrgb(*photo.node());
    m_node = std::make_shared<PixelNode>(PixelNode{.pixels = withThreeColors(srgb)});
}

FilterImage::FilterImage(
    graphics::PixelSize size, bool hasAlpha, std::shared_ptr<const PixelNode> node
)
    : m_size(size)
    , m_hasAlpha(hasAlpha)
    , m_node(std::move(node))
{
}

graphics::Image FilterImage::toImage(const graphics::Image& photo) const
{
    const int bands = m_hasAlpha ? 4 : 3;
    const vips::VImage pixels = render(
        inSpace(m_node, Space::Encoded),
        {bands, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB},
        [bands](const PixelBlock& block, int first, int count, void* row) {
            quint8* out = static_cast<quint8*>(row) + std::ptrdiff_t{first} * bands;
            storeBytes(block, bands, static_cast<std::size_t>(count), out);
        }
    );
    return graphics::makeImage(
        {.pixels = pixels,
         .hasAlpha = m_hasAlpha,
         .dotsPerInch = photo.dotsPerInch(),
         .decodingBytes = photo.node()->decodingBytes}
    );
}

vips::VImage floatPixels(const FilterImage& image, Space space)
{
    const int bands = image.hasAlpha() ? 4 : 3;
    return render(
        inSpace(image.node(), space),
        {bands, VIPS_FORMAT_FLOAT, VIPS_INTERPRETATION_scRGB},
        [bands](const PixelBlock& block, int first, int count, void* row) {
            float* out = static_cast<float*>(row) + std::ptrdiff_t{first} * bands;
            for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i, out += bands) {
                const float weight = bands > 3 ? block.alpha[i] : 1.0F;
                out[0] = block.red[i] * weight;
                out[1] = block.green[i] * weight;
                out[2] = block.blue[i] * weight;
                if (bands > 3)
                    out[3] = weight;
            }
        }
    );
}

std::shared_ptr<const PixelNode> inSpace(const std::shared_ptr<const PixelNode>& node, Space space)
{
    if (node->space == space)
        return node;
    const bool holdsFloats = !node->compute && node->pixels.format() == VIPS_FORMAT_FLOAT;
    if (!node->compute && !holdsFloats) // photos are read in either
        return std::make_shared<PixelNode>(PixelNode{.space = space, .pixels = node->pixels});
    const auto convert = space == Space::Linear ? makeLinear : makeEncoded;
    return std::make_shared<PixelNode>(PixelNode{
        .space = space,
        .inputs = {node},
        .compute = [convert](const Blocks& inputs, const BlockPlace& /*place*/, PixelBlock& out) {
            convert(*inputs[0], out);
        }});
}

FilterImage readInAnyOrder(const FilterImage& image)
{
    std::map<const PixelNode*, NodePointer> done;
    return {image.pixelSize(), image.hasAlpha(), withSourcesInMemory(image.node(), done)};
}

FilterImage imageOf(const FilterImage& like, PixelNode node)
{
    return {like.pixelSize(), like.hasAlpha(), std::make_shared<PixelNode>(std::move(node))};
}

FilterImage mapped(const FilterImage& image, Space space, BlockMap map)
{
    return imageOf(
        image,
        {.space = space,
         .inputs = {inSpace(image.node(), space)},
         .compute =
             [map
              = std::move(map)](const Blocks& inputs, const BlockPlace& place, PixelBlock& out) {
                 map(*inputs[0], place, out);
                 out.alpha = inputs[0]->alpha;
             }}
    );
}

} // namespace brenvaldo::platform::filters
