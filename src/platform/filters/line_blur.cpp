// SPDX-License-Identifier: GPL-3.0-or-later
#include "line_blur.h"

#include <platform/graphics/convolution.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace brenvaldo::platform::filters {

namespace {

/// The evaluation of a blur; owned by its output.
class LineBlur
{
public:
    LineBlur(vips::VImage input, std::vector<float> kernel)
        : m_input(std::move(input))
        , m_kernel(std::move(kernel))
        , m_reach(static_cast<int>(m_kernel.size()) / 2)
    {
    }

    static void* start(VipsImage* /*out*/, void* blur, void* /*unused*/)
    {
        return vips_region_new(self(blur)->m_input.get_image());
    }

    static int
    generate(VipsRegion* out, void* input, void* blur, void* /*unused*/, gboolean* /*stop*/)
    {
        return self(blur)->fill(out, static_cast<VipsRegion*>(input));
    }

    static int stop(void* input, void* /*blur*/, void* /*unused*/)
    {
        g_object_unref(input);
        return 0;
    }

    static void release(VipsImage* /*out*/, gpointer blur)
    {
        const std::unique_ptr<LineBlur> owned(self(blur));
    }

private:
    static LineBlur* self(void* blur) { return static_cast<LineBlur*>(blur); }

    [[nodiscard]] std::size_t samplesOf(int pixels) const
    {
        return static_cast<std::size_t>(pixels) * static_cast<std::size_t>(m_input.bands());
    }

    [[nodiscard]] int fill(VipsRegion* out, VipsRegion* input) const
    {
        const VipsRect wide = grown(out->valid);
        VipsRect inside = wide;
        const VipsRect picture = {0, 0, m_input.width(), m_input.height()};
        vips_rect_intersectrect(&wide, &picture, &inside);
        if (vips_region_prepare(input, &inside) != 0)
            return -1;
        thread_local std::vector<float> strip;
        strip.resize(samplesOf(wide.width) * static_cast<std::size_t>(out->valid.height));
        blurDownwards(input, inside, out->valid, strip);
        for (int y = 0; y < out->valid.height; ++y)
            blurSideways(&strip[samplesOf(wide.width) * static_cast<std::size_t>(y)], out, y);
        return 0;
    }

    /// What the pixels of `area` are made of; a part of it may lie beyond the edges.
    [[nodiscard]] VipsRect grown(const VipsRect& area) const
    {
        return {
            area.left - m_reach,
            area.top - m_reach,
            area.width + 2 * m_reach,
            area.height + 2 * m_reach};
    }

    /// Some columns at a time, which are put together first: rows of a large picture lie too far
    /// from each other for the processor's caches.
    void blurDownwards(
        VipsRegion* input, const VipsRect& inside, const VipsRect& area, std::vector<float>& strip
    ) const
    {
        constexpr std::size_t columns = 128;
        thread_local std::vector<float> block;
        const VipsRect wide = grown(area);
        block.resize(columns * static_cast<std::size_t>(wide.height));
        float* first = strip.data() + samplesOf(inside.left - wide.left);
        const std::size_t count = samplesOf(inside.width);
        for (std::size_t done = 0; done < count; done += columns) {
            const std::size_t width = std::min(columns, count - done);
            for (int i = 0; i < wide.height; ++i)
                std::copy_n(
                    samples(input, inside.left, rowInside(wide.top + i)) + done,
                    width,
                    block.data() + columns * static_cast<std::size_t>(i)
                );
            for (int y = 0; y < area.height; ++y)
                graphics::convolve(
                    block.data() + columns * static_cast<std::size_t>(y),
                    columns,
                    m_kernel,
                    first + done + samplesOf(wide.width) * static_cast<std::size_t>(y),
                    width
                );
        }
    }

    void blurSideways(float* row, VipsRegion* out, int y) const
    {
        const VipsRect& area = out->valid;
        continueBeyondEdges(row, area.left - m_reach, area.width + 2 * m_reach);
        graphics::convolve(
            row,
            samplesOf(1),
            m_kernel,
            samples(out, area.left, area.top + y),
            samplesOf(area.width)
        );
    }

    /// `row` begins at `left`; its pixels beyond the edges become those at the edges.
    void continueBeyondEdges(float* row, int left, int width) const
    {
        const auto repeat = [this, row](int from, int to, int pixel) {
            for (int x = from; x < to; ++x)
                std::copy_n(row + samplesOf(pixel), samplesOf(1), row + samplesOf(x));
        };
        repeat(0, -left, -left);
        const int end = m_input.width() - left;
        repeat(end, width, end - 1);
    }

    [[nodiscard]] int rowInside(int y) const { return std::clamp(y, 0, m_input.height() - 1); }

    static float* samples(VipsRegion* region, int x, int y)
    {
        return static_cast<float*>(static_cast<void*>(VIPS_REGION_ADDR(region, x, y)));
    }

    vips::VImage m_input;
    std::vector<float> m_kernel;
    int m_reach;
};

/// Lines that several strips of the blur have in common are computed once.
vips::VImage withCachedLines(const vips::VImage& pixels, int reach)
{
    constexpr int height = 16;
    constexpr int stripsAtATime = 8;
    return pixels.tilecache(vips::VImage::option()
                                ->set("tile_width", pixels.width())
                                ->set("tile_height", height)
                                ->set("max_tiles", 2 * reach / height + stripsAtATime)
                                ->set("threaded", true));
}

} // namespace

vips::VImage lineBlurred(const vips::VImage& pixels, double sigma)
{
    const std::vector<float> kernel = graphics::gaussianKernel(sigma);
    const vips::VImage in = withCachedLines(pixels, static_cast<int>(kernel.size()) / 2);
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    LineBlur* blur = std::make_unique<LineBlur>(in, kernel).release();
    g_signal_connect(image, "close", G_CALLBACK(&LineBlur::release), blur);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_FATSTRIP, in.get_image(), nullptr) != 0)
        throw vips::VError();
    if (vips_image_generate(
            image, &LineBlur::start, &LineBlur::generate, &LineBlur::stop, blur, nullptr
        )
        != 0)
        throw vips::VError();
    return out;
}

} // namespace brenvaldo::platform::filters
