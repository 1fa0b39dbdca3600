// SPDX-License-Identifier: GPL-3.0-or-later
#include "deferred_pixels.h"

#include "evaluation.h"
#include "image_node.h"

#include <mutex>
#include <optional>

namespace brenvaldo::platform::graphics {

namespace {

class Deferred
{
public:
    Deferred(const PixelLayout& layout, std::function<vips::VImage()> produce)
        : m_layout(layout)
        , m_produce(std::move(produce))
    {
    }

    /// The pixels; null when they could not be made.
    VipsImage* pixels()
    {
        std::call_once(m_once, [this] { makePixels(); });
        return m_pixels ? m_pixels->get_image() : nullptr;
    }

private:
    void makePixels()
    {
        try {
            const vips::VImage made = m_produce();
            const PixelLayout layout = layoutOf(made);
            if (layout.width == m_layout.width && layout.height == m_layout.height
                && layout.bands == m_layout.bands && layout.format == m_layout.format)
                m_pixels = made;
            else
                vips_error("deferred", "the decoder gave pixels of another layout");
        } catch (const std::exception& error) { // the engine above this frame is written in C
            vips_error("deferred", "%s", error.what());
        }
        m_produce = nullptr;
    }

    PixelLayout m_layout;
    std::function<vips::VImage()> m_produce;
    std::once_flag m_once;
    std::optional<vips::VImage> m_pixels;
};

void* start(VipsImage* /*out*/, void* deferred, void* /*unused*/)
{
    VipsImage* pixels = static_cast<Deferred*>(deferred)->pixels();
    return pixels != nullptr ? vips_region_new(pixels) : nullptr;
}

int generate(VipsRegion* out, void* source, void* /*a*/, void* /*b*/, gboolean* /*stop*/)
{
    auto* region = static_cast<VipsRegion*>(source);
    const VipsRect area = out->valid;
    if (vips_region_prepare(region, &area) != 0)
        return -1;
    return vips_region_region(out, region, &area, area.left, area.top);
}

int stop(void* source, void* /*a*/, void* /*b*/)
{
    g_object_unref(source);
    return 0;
}

void release(VipsImage* /*out*/, gpointer deferred)
{
    const std::unique_ptr<Deferred> owned(static_cast<Deferred*>(deferred));
}

bool isSide(int length) { return length >= 1 && length < VIPS_MAX_COORD; }

/// The engine would take another size than one that it can't take, without a word.
void setLayout(VipsImage* image, const PixelLayout& layout)
{
    if (!isSide(layout.width) || !isSide(layout.height))
        throw vips::VError("the picture is too long for the engine");
    vips_image_init_fields(
        image,
        layout.width,
        layout.height,
        layout.bands,
        layout.format,
        VIPS_CODING_NONE,
        layout.interpretation,
        1.0,
        1.0
    );
}

} // namespace

std::size_t sizeOf(const PixelLayout& layout)
{
    return static_cast<std::size_t>(layout.width) * static_cast<std::size_t>(layout.height)
        * static_cast<std::size_t>(layout.bands) * vips_format_sizeof(layout.format);
}

PixelLayout layoutOf(const vips::VImage& pixels)
{
    return {
        .width = pixels.width(),
        .height = pixels.height(),
        .bands = pixels.bands(),
        .format = pixels.format(),
        .interpretation = pixels.interpretation(),
    };
}

vips::VImage newMemoryPixels(const PixelLayout& layout)
{
    const vips::VImage pixels(vips_image_new_memory());
    setLayout(pixels.get_image(), layout);
    if (vips_image_write_prepare(pixels.get_image()) != 0)
        throw vips::VError();
    return pixels;
}

vips::VImage deferredPixels(const PixelLayout& layout, std::function<vips::VImage()> produce)
{
    auto deferred = std::make_unique<Deferred>(layout, std::move(produce));
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    setLayout(image, layout);
    Deferred* state = deferred.release();
    g_signal_connect(image, "close", G_CALLBACK(release), state);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_ANY, nullptr) != 0
        || vips_image_generate(image, start, generate, stop, state, nullptr) != 0)
        throw vips::VError();
    return out;
}

vips::VImage randomAccess(const vips::VImage& pixels)
{
    if (!isSequential(pixels))
        return pixels;
    return deferredPixels(layoutOf(pixels), [pixels] { return copiedToMemory(pixels); });
}

} // namespace brenvaldo::platform::graphics
