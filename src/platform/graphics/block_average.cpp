// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_average.h"

#include <QtGlobal>

#include <array>
#include <memory>
#include <vector>

namespace brenvaldo::platform::graphics {

namespace {

/// The sums of the columns of a row of blocks, and of the blocks.
template <class Sample, class Sum>
class BlockRow
{
public:
    void clear(std::size_t samples) { m_sums.assign(samples, 0); }

    void add(const Sample* row) { addTo(m_sums.data(), row, m_sums.size()); }

    /// Writes the averages of `count` blocks.
    void average(int side, int bands, Sample* out, int count) const
    {
        switch (bands) {
        case 1:
            averageOf<1>(side, out, count);
            break;
        case 3:
            averageOf<3>(side, out, count);
            break;
        default:
            averageOf<4>(side, out, count);
        }
    }

private:
    /// Not inlined: as a function of its own it is compiled for whole vectors of samples.
    [[gnu::noinline]] static void
    addTo(Sum* __restrict sums, const Sample* __restrict row, std::size_t count)
    {
        constexpr std::size_t vectors = 32;
        std::size_t done = 0;
        for (; done + vectors <= count; done += vectors) {
            for (std::size_t i = 0; i < vectors; ++i)
                sums[done + i] = static_cast<Sum>(sums[done + i] + row[done + i]);
        }
        for (; done < count; ++done)
            sums[done] = static_cast<Sum>(sums[done] + row[done]);
    }

    template <std::size_t Bands>
    void averageOf(int side, Sample* out, int count) const
    {
        const float share = 1.0F / static_cast<float>(side * side);
        const Sum* column = m_sums.data();
        for (int i = 0; i < count; ++i) {
            std::array<quint32, Bands> sums{};
            for (int x = 0; x < side; ++x) {
                for (quint32& sum : sums)
                    sum += *column++;
            }
            for (const quint32 sum : sums)
                *out++ = static_cast<Sample>(static_cast<float>(sum) * share + 0.5F);
        }
    }

    std::vector<Sum> m_sums;
};

/// One evaluation; owned by its output image.
template <class Sample, class Sum>
class Averaging
{
public:
    Averaging(vips::VImage pixels, int side)
        : m_pixels(std::move(pixels))
        , m_side(side)
    {
    }

    static void* start(VipsImage* /*out*/, void* averaging, void* /*unused*/)
    {
        auto scratch = std::make_unique<Scratch>();
        scratch->region = vips_region_new(self(averaging)->m_pixels.get_image());
        return scratch.release();
    }

    static int
    generate(VipsRegion* out, void* scratch, void* averaging, void* /*unused*/, gboolean* /*stop*/)
    {
        const VipsRect area = out->valid;
        for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
            auto* averages = reinterpret_cast<Sample*>(VIPS_REGION_ADDR(out, area.left, y));
            if (!self(averaging)->makeRow(*static_cast<Scratch*>(scratch), area, y, averages))
                return -1;
        }
        return 0;
    }

    static int stop(void* scratch, void* /*averaging*/, void* /*unused*/)
    {
        const std::unique_ptr<Scratch> owned(static_cast<Scratch*>(scratch));
        g_object_unref(owned->region);
        return 0;
    }

    static void release(VipsImage* /*out*/, gpointer averaging)
    {
        const std::unique_ptr<Averaging> owned(self(averaging));
    }

private:
    /// What one thread needs.
    struct Scratch
    {
        VipsRegion* region = nullptr;
        BlockRow<Sample, Sum> row;
    };

    static Averaging* self(void* averaging) { return static_cast<Averaging*>(averaging); }

    /// False when the pixels can't be read.
    bool makeRow(Scratch& scratch, const VipsRect& area, int y, Sample* averages) const
    {
        const VipsRect blocks
            = {.left = area.left * m_side,
               .top = y * m_side,
               .width = area.width * m_side,
               .height = m_side};
        if (!prepare(scratch.region, blocks))
            return false;
        const int bands = m_pixels.bands();
        scratch.row.clear(static_cast<std::size_t>(blocks.width) * static_cast<std::size_t>(bands));
        for (int row = blocks.top; row < VIPS_RECT_BOTTOM(&blocks); ++row)
            scratch.row.add(
                reinterpret_cast<const Sample*>(VIPS_REGION_ADDR(scratch.region, blocks.left, row))
            );
        scratch.row.average(m_side, bands, averages, area.width);
        return true;
    }

    /// Rows below the last blocks are in no average, but damage in them counts.
    bool prepare(VipsRegion* region, VipsRect blocks) const
    {
        const int below = m_pixels.height() - VIPS_RECT_BOTTOM(&blocks);
        if (below < m_side)
            blocks.height += below;
        return vips_region_prepare(region, &blocks) == 0;
    }

    vips::VImage m_pixels;
    int m_side;
};

template <class Sample, class Sum>
vips::VImage averaged(const vips::VImage& pixels, int side)
{
    using Kernel = Averaging<Sample, Sum>;
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    Kernel* kernel = std::make_unique<Kernel>(pixels, side).release();
    g_signal_connect(image, "close", G_CALLBACK(&Kernel::release), kernel);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_THINSTRIP, pixels.get_image(), nullptr) != 0)
        throw vips::VError();
    image->Xsize = pixels.width() / side;
    image->Ysize = pixels.height() / side;
    if (vips_image_generate(
            image, &Kernel::start, &Kernel::generate, &Kernel::stop, kernel, nullptr
        )
        != 0)
        throw vips::VError();
    return out;
}

} // namespace

vips::VImage blockAverages(const vips::VImage& pixels, int side)
{
    Q_ASSERT(side > 0 && side <= largestBlock);
    Q_ASSERT(pixels.bands() == 1 || pixels.bands() == 3 || pixels.bands() == 4);
    return pixels.format() == VIPS_FORMAT_USHORT ? averaged<quint16, quint32>(pixels, side)
                                                 : averaged<quint8, quint16>(pixels, side);
}

} // namespace brenvaldo::platform::graphics
