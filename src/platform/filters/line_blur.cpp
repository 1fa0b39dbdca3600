// SPDX-License-Identifier: GPL-3.0-or-later
#include "line_blur.h"

#include <platform/graphics/convolution.h>

#include <memory>
#include <vector>

namespace brenvaldo::platform::filters {

namespace {

/// The evaluation of a blur; owned by its output. Its input is larger by the kernel's reach on
/// every side.
class LineBlur
{
public:
    LineBlur(vips::VImage input, std::vector<float> kernel)
        : m_input(std::move(input))
        , m_kernel(std::move(kernel))
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

    [[nodiscard]] int fill(VipsRegion* out, VipsRegion* input) const
    {
        const VipsRect& area = out->valid;
        const int more = static_cast<int>(m_kernel.size()) - 1;
        const VipsRect needed = {area.left, area.top, area.width + more, area.height + more};
        if (vips_region_prepare(input, &needed) != 0)
            return -1;
        const auto bands = static_cast<std::size_t>(m_input.bands());
        const auto step = static_cast<std::size_t>(VIPS_REGION_LSKIP(input)) / sizeof(float);
        thread_local std::vector<float> line;
        line.resize(static_cast<std::size_t>(needed.width) * bands);
        for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
            graphics::convolve(
                samples(input, area.left, y), step, m_kernel, line.data(), line.size()
            );
            graphics::convolve(
                line.data(),
                bands,
                m_kernel,
                samples(out, area.left, y),
                static_cast<std::size_t>(area.width) * bands
            );
        }
        return 0;
    }

    static float* samples(VipsRegion* region, int x, int y)
    {
        return static_cast<float*>(static_cast<void*>(VIPS_REGION_ADDR(region, x, y)));
    }

    vips::VImage m_input;
    std::vector<float> m_kernel;
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
    const int reach = static_cast<int>(kernel.size()) / 2;
    const vips::VImage wide = withCachedLines(pixels, reach)
                                  .embed(
                                      reach,
                                      reach,
                                      pixels.width() + 2 * reach,
                                      pixels.height() + 2 * reach,
                                      vips::VImage::option()->set("extend", VIPS_EXTEND_COPY)
                                  );
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    LineBlur* blur = std::make_unique<LineBlur>(wide, kernel).release();
    g_signal_connect(image, "close", G_CALLBACK(&LineBlur::release), blur);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_FATSTRIP, wide.get_image(), nullptr) != 0)
        throw vips::VError();
    image->Xsize = pixels.width();
    image->Ysize = pixels.height();
    if (vips_image_generate(
            image, &LineBlur::start, &LineBlur::generate, &LineBlur::stop, blur, nullptr
        )
        != 0)
        throw vips::VError();
    return out;
}

} // namespace brenvaldo::platform::filters
