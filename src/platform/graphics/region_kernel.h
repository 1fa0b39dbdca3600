// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "deferred_pixels.h"

#include <vips/vips8>

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

namespace brenvaldo::platform::graphics {

/// One row of a kernel: `count` pixels whose first stands at (`x`, `y`) of the picture.
template <std::size_t InputCount>
struct KernelRow
{
    std::array<const void*, InputCount> inputs;
    void* output;
    int x;
    int y;
    int count;

    template <typename Sample>
    [[nodiscard]] const Sample* input(std::size_t index) const
    {
        return static_cast<const Sample*>(inputs[index]);
    }

    template <typename Sample>
    [[nodiscard]] Sample* out() const
    {
        return static_cast<Sample*>(output);
    }
};

namespace detail {

/// The evaluation of one kernel; owned by its output image.
template <std::size_t InputCount, typename Functor>
class RegionKernel
{
public:
    RegionKernel(std::array<vips::VImage, InputCount> inputs, Functor functor)
        : m_inputs(std::move(inputs))
        , m_functor(std::move(functor))
    {
    }

    static void* start(VipsImage* /*out*/, void* kernel, void* /*unused*/)
    {
        auto regions = std::make_unique<Regions>();
        for (std::size_t i = 0; i < InputCount; ++i)
            (*regions)[i] = vips_region_new(self(kernel)->m_inputs[i].get_image());
        return regions.release();
    }

    static int
    generate(VipsRegion* out, void* scratch, void* kernel, void* /*unused*/, gboolean* /*stop*/)
    {
        auto& regions = *static_cast<Regions*>(scratch);
        const VipsRect area = out->valid;
        for (VipsRegion* region : regions) {
            if (vips_region_prepare(region, &area) != 0)
                return -1;
        }
        for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
            KernelRow<InputCount> row
                = {{}, VIPS_REGION_ADDR(out, area.left, y), area.left, y, area.width};
            for (std::size_t i = 0; i < InputCount; ++i)
                row.inputs[i] = VIPS_REGION_ADDR(regions[i], area.left, y);
            self(kernel)->m_functor(std::as_const(row));
        }
        return 0;
    }

    static int stop(void* scratch, void* /*kernel*/, void* /*unused*/)
    {
        const std::unique_ptr<Regions> regions(static_cast<Regions*>(scratch));
        for (VipsRegion* region : *regions)
            g_object_unref(region);
        return 0;
    }

    static void release(VipsImage* /*out*/, gpointer kernel)
    {
        const std::unique_ptr<RegionKernel> owned(self(kernel));
    }

private:
    using Regions = std::array<VipsRegion*, InputCount>;

    static RegionKernel* self(void* kernel) { return static_cast<RegionKernel*>(kernel); }

    std::array<vips::VImage, InputCount> m_inputs;
    Functor m_functor;
};

} // namespace detail

/// What a kernel makes of each pixel of its inputs.
struct KernelOutput
{
    int bands = 0;
    VipsBandFormat format = VIPS_FORMAT_UCHAR;
    VipsInterpretation interpretation = VIPS_INTERPRETATION_sRGB;
};

/// A lazily evaluated picture whose rows `functor(const KernelRow<N>&)` computes from the same rows
/// of `inputs`, which all have the same size.
///
/// The functor is called from several threads at once, sees absolute coordinates, and must not
/// throw. Throws `vips::VError` when the pipeline can't be built.
template <std::size_t InputCount, typename Functor>
[[nodiscard]] vips::VImage
mapRows(std::array<vips::VImage, InputCount> inputs, const KernelOutput& output, Functor functor)
{
    static_assert(InputCount > 0);
    using Kernel = detail::RegionKernel<InputCount, Functor>;
    std::array<VipsImage*, InputCount + 1> sources = {};
    for (std::size_t i = 0; i < InputCount; ++i)
        sources[i] = inputs[i].get_image();

    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    Kernel* kernel = std::make_unique<Kernel>(inputs, std::move(functor)).release();
    g_signal_connect(image, "close", G_CALLBACK(&Kernel::release), kernel);
    if (vips_image_pipeline_array(image, VIPS_DEMAND_STYLE_THINSTRIP, sources.data()) != 0)
        throw vips::VError();
    image->Bands = output.bands;
    image->BandFmt = output.format;
    image->Type = output.interpretation;
    image->Coding = VIPS_CODING_NONE;
    if (vips_image_generate(
            image, &Kernel::start, &Kernel::generate, &Kernel::stop, kernel, nullptr
        )
        != 0)
        throw vips::VError();
    return out;
}

} // namespace brenvaldo::platform::graphics
