// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_pass.h"

#include "best_jpeg_blocks.h"
#include "encoders.h"

#include <platform/graphics/gray_as_rgb.h>

#include <algorithm>
#include <memory>

namespace brenvaldo::platform::codecs {

namespace {

constexpr int side = static_cast<int>(BlockRow::side);
constexpr int colors = 3;

constexpr int blockBefore(int place) { return place / side * side; }
constexpr int blockAfter(int place) { return (place + side - 1) / side * side; }

/// The evaluation of a pass; owned by its output.
class Pass
{
public:
    explicit Pass(vips::VImage input)
        : m_input(std::move(input))
    {
    }

    static void* start(VipsImage* /*out*/, void* pass, void* /*unused*/)
    {
        return vips_region_new(self(pass)->m_input.get_image());
    }

    static int
    generate(VipsRegion* out, void* input, void* pass, void* /*unused*/, gboolean* /*stop*/)
    {
        return self(pass)->fill(out, static_cast<VipsRegion*>(input));
    }

    static int stop(void* input, void* /*pass*/, void* /*unused*/)
    {
        g_object_unref(input);
        return 0;
    }

    static void release(VipsImage* /*out*/, gpointer pass)
    {
        const std::unique_ptr<Pass> owned(self(pass));
    }

private:
    static Pass* self(void* pass) { return static_cast<Pass*>(pass); }

    /// Whole squares are needed for each part of them.
    [[nodiscard]] int fill(VipsRegion* out, VipsRegion* input) const
    {
        const VipsRect& area = out->valid;
        const int left = blockBefore(area.left);
        const int top = blockBefore(area.top);
        const int right = std::min(blockAfter(VIPS_RECT_RIGHT(&area)), m_input.width());
        const int bottom = std::min(blockAfter(VIPS_RECT_BOTTOM(&area)), m_input.height());
        const VipsRect needed = {left, top, right - left, bottom - top};
        if (vips_region_prepare(input, &needed) != 0)
            return -1;
        constexpr int step = static_cast<int>(BlockRow::width);
        for (int y = top; y < bottom; y += side) {
            for (int x = left; x < right; x += step)
                passBlocks(input, {x, y, std::min(step, right - x), side}, out);
        }
        return 0;
    }

    static void passBlocks(VipsRegion* input, const VipsRect& blocks, VipsRegion* out)
    {
        thread_local BlockRow pixels;
        for (int y = 0; y < side; ++y)
            read(input, blocks, y, pixels);
        passThroughJpeg(pixels);
        VipsRect wanted;
        vips_rect_intersectrect(&blocks, &out->valid, &wanted);
        for (int y = wanted.top; y < VIPS_RECT_BOTTOM(&wanted); ++y)
            write(pixels, blocks, {wanted.left, y, wanted.width, 1}, out);
    }

    /// Beyond the edges the outermost pixels go on.
    static void read(VipsRegion* input, const VipsRect& blocks, int y, BlockRow& pixels)
    {
        const int row = std::min(blocks.top + y, VIPS_RECT_BOTTOM(&input->valid) - 1);
        const quint8* in = VIPS_REGION_ADDR(input, blocks.left, row);
        const auto count = static_cast<std::size_t>(blocks.width);
        for (std::size_t band = 0; band < colors; ++band) {
            auto& samples = pixels.planes[band][static_cast<std::size_t>(y)];
            for (std::size_t x = 0; x < count; ++x)
                samples[x] = in[x * colors + band];
            std::fill(samples.begin() + blocks.width, samples.end(), samples[count - 1]);
        }
    }

    static void
    write(const BlockRow& pixels, const VipsRect& blocks, const VipsRect& wanted, VipsRegion* out)
    {
        quint8* to = VIPS_REGION_ADDR(out, wanted.left, wanted.top);
        const auto first = static_cast<std::size_t>(wanted.left - blocks.left);
        const auto row = static_cast<std::size_t>(wanted.top - blocks.top);
        for (std::size_t x = 0; x < static_cast<std::size_t>(wanted.width); ++x) {
            for (std::size_t band = 0; band < colors; ++band)
                to[x * colors + band] = static_cast<quint8>(pixels.planes[band][row][first + x]);
        }
    }

    vips::VImage m_input;
};

vips::VImage passed(const vips::VImage& pixels)
{
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    Pass* pass = std::make_unique<Pass>(pixels).release();
    g_signal_connect(image, "close", G_CALLBACK(&Pass::release), pass);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_FATSTRIP, pixels.get_image(), nullptr) != 0
        || vips_image_generate(image, &Pass::start, &Pass::generate, &Pass::stop, pass, nullptr)
            != 0)
        throw vips::VError();
    return out;
}

} // namespace

graphics::Image throughJpeg(const graphics::Image& image)
{
    const graphics::Image colored = graphics::grayAsRgb(image);
    return graphics::builtImage(*colored.node(), image.pixelSize(), [&] {
        const graphics::ImageNode flat = fittedTo(
            *colored.node(),
            {.alpha = AlphaSupport::Flattens,
             .depth = DepthSupport::EightBits,
             .colors = ColorSupport::SrgbInsteadOfCmyk}
        );
        return flat.withPixels(passed(flat.pixels));
    });
}

} // namespace brenvaldo::platform::codecs
