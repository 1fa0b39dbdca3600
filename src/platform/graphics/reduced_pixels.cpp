// SPDX-License-Identifier: GPL-3.0-or-later
#include "reduced_pixels.h"

#include "block_loop.h"
#include "image_node.h"
#include "lanczos.h"

#include <QtGlobal>

#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

namespace brenvaldo::platform::graphics {

namespace {

template <class Sample>
BRENVALDO_BLOCK_LOOP void
widen(const Sample* __restrict in, std::size_t count, float* __restrict out)
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = static_cast<float>(in[i]);
}

template <class Sample>
BRENVALDO_BLOCK_LOOP void
roundTo(const float* __restrict in, std::size_t count, Sample* __restrict out)
{
    constexpr auto most = static_cast<float>(std::numeric_limits<Sample>::max());
    for (std::size_t i = 0; i < count; ++i) {
        const float rounded = in[i] + 0.5F;
        const float positive = rounded > 0 ? rounded : 0;
        out[i] = static_cast<Sample>(positive < most ? positive : most);
    }
}

void roundTo(const float* in, std::size_t count, float* out) { std::copy_n(in, count, out); }

/// The next higher multiple.
constexpr int wholeGroups(int lines)
{
    return (lines + linesAtOnce - 1) / linesAtOnce * linesAtOnce;
}

/// Source and result of a reduction, and how the one becomes the other.
struct ReductionPlan
{
    ReductionPlan(vips::VImage source, PixelSize size)
        : pixels(std::move(source))
        , columns(lanczosReduction(pixels.width(), size.width))
        , rows(lanczosReduction(pixels.height(), size.height))
    {
    }

    vips::VImage pixels;
    Reduction columns;
    Reduction rows;
};

/// Lines of the source whose columns are reduced: those that a line of the result needs.
template <class Sample>
class LineWindow
{
public:
    explicit LineWindow(const ReductionPlan& plan)
        : m_plan(plan)
        , m_capacity(wholeGroups(plan.rows.taps) + linesAtOnce)
    {
    }

    /// From now on, these pixels of each line.
    void start(PixelSpan span)
    {
        m_span = span;
        const auto& first = m_plan.columns.first;
        m_left = first[static_cast<std::size_t>(span.begin)];
        m_width = first[static_cast<std::size_t>(span.end - 1)] + m_plan.columns.taps - m_left;
        m_wide.step = resized(m_wideSamples, m_width, linesAtOnce);
        m_reduced.step = resized(m_reducedSamples, span.end - span.begin, m_capacity);
        m_wide.samples = m_wideSamples.data();
        m_reduced.samples = m_reducedSamples.data();
        m_begin = m_end = 0;
    }

    [[nodiscard]] bool holds(PixelSpan span) const
    {
        return span.begin == m_span.begin && span.end == m_span.end;
    }

    /// Reads lines until those from `begin` to `end` are there; false when they can't be read.
    bool read(VipsRegion* region, int begin, int end)
    {
        const bool goesOn = m_begin <= begin && begin <= m_end;
        if (!goesOn)
            m_begin = m_end = begin / linesAtOnce * linesAtOnce;
        while (m_end < end) {
            if (!readGroup(region))
                return false;
        }
        return true;
    }

    [[nodiscard]] const float* line(int y) const
    {
        return m_reduced.samples + static_cast<std::size_t>(y % m_capacity) * m_reduced.step;
    }

private:
    std::size_t resized(std::vector<float>& samples, int width, int lines) const
    {
        const std::size_t step
            = static_cast<std::size_t>(width) * static_cast<std::size_t>(m_plan.pixels.bands())
            + sampleSlack;
        samples.assign(step * static_cast<std::size_t>(lines), 0);
        return step;
    }

    bool readGroup(VipsRegion* region)
    {
        const VipsRect area
            = {.left = m_left,
               .top = m_end,
               .width = m_width,
               .height = std::min(linesAtOnce, m_plan.pixels.height() - m_end)};
        if (vips_region_prepare(region, &area) != 0)
            return false;
        const int bands = m_plan.pixels.bands();
        const std::size_t samples = m_wide.step - sampleSlack;
        for (int i = 0; i < area.height; ++i)
            widen(
                reinterpret_cast<const Sample*>(VIPS_REGION_ADDR(region, area.left, area.top + i)),
                samples,
                m_wide.samples + static_cast<std::size_t>(i) * m_wide.step
            );
        reduceLines(
            m_plan.columns,
            m_span,
            bands,
            {m_wide.samples, m_wide.step},
            {m_reduced.samples + static_cast<std::size_t>(m_end % m_capacity) * m_reduced.step,
             m_reduced.step}
        );
        m_end += linesAtOnce;
        m_begin = std::max(m_begin, m_end - m_capacity);
        return true;
    }

    const ReductionPlan& m_plan;
    int m_capacity;
    PixelSpan m_span;
    int m_left = 0; ///< first column of the source that is read
    int m_width = 0;
    int m_begin = 0; ///< of the lines that are there
    int m_end = 0; ///< of those that were read, whole groups
    std::vector<float> m_wideSamples;
    std::vector<float> m_reducedSamples;
    Lines<float> m_wide = {};
    Lines<float> m_reduced = {};
};

/// One evaluation; owned by its output image.
template <class Sample>
class Reducing
{
public:
    Reducing(const vips::VImage& pixels, PixelSize size)
        : m_plan(pixels, size)
        , m_inOrder(m_plan)
        , m_isSequential(isSequential(pixels))
    {
    }

    static void* start(VipsImage* /*out*/, void* reducing, void* /*unused*/)
    {
        return std::make_unique<Scratch>(self(reducing)->m_plan).release();
    }

    static int
    generate(VipsRegion* out, void* scratch, void* reducing, void* /*unused*/, gboolean* /*stop*/)
    {
        return self(reducing)->fill(out, *static_cast<Scratch*>(scratch)) ? 0 : -1;
    }

    static int stop(void* scratch, void* /*reducing*/, void* /*unused*/)
    {
        const std::unique_ptr<Scratch> owned(static_cast<Scratch*>(scratch));
        return 0;
    }

    static void release(VipsImage* /*out*/, gpointer reducing)
    {
        const std::unique_ptr<Reducing> owned(self(reducing));
    }

private:
    /// What one thread needs.
    struct Scratch
    {
        explicit Scratch(const ReductionPlan& plan)
            : region(vips_region_new(plan.pixels.get_image()))
            , window(plan)
            , lines(static_cast<std::size_t>(plan.rows.taps))
        {
        }
        Scratch(const Scratch&) = delete;
        Scratch& operator=(const Scratch&) = delete;
        Scratch(Scratch&&) = delete;
        Scratch& operator=(Scratch&&) = delete;
        ~Scratch() { g_object_unref(region); }

        VipsRegion* region;
        LineWindow<Sample> window;
        std::vector<const float*> lines;
        std::vector<float> sums;
    };

    static Reducing* self(void* reducing) { return static_cast<Reducing*>(reducing); }

    bool fill(VipsRegion* out, Scratch& scratch)
    {
        const VipsRect area = out->valid;
        // Rows in their order may come from one thread after the other.
        LineWindow<Sample>& window = m_isSequential ? m_inOrder : scratch.window;
        const PixelSpan span = {.begin = area.left, .end = VIPS_RECT_RIGHT(&area)};
        // At the top another evaluation may begin, which has to read by itself.
        if (area.top == 0 || !window.holds(span))
            window.start(span);
        for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
            auto* row = reinterpret_cast<Sample*>(VIPS_REGION_ADDR(out, area.left, y));
            const auto samples = static_cast<std::size_t>(VIPS_REGION_N_ELEMENTS(out));
            if (!makeRow(window, scratch, y, row, samples))
                return false;
        }
        return true;
    }

    bool makeRow(
        LineWindow<Sample>& window, Scratch& scratch, int y, Sample* row, std::size_t samples
    ) const
    {
        const int begin = m_plan.rows.first[static_cast<std::size_t>(y)];
        if (!window.read(scratch.region, begin, begin + m_plan.rows.taps))
            return false;
        for (int i = 0; i < m_plan.rows.taps; ++i)
            scratch.lines[static_cast<std::size_t>(i)] = window.line(begin + i);
        scratch.sums.resize(samples + sampleSlack);
        addUpLines(scratch.lines, m_plan.rows.weightsOf(y), scratch.sums.data(), samples);
        roundTo(scratch.sums.data(), samples, row);
        return true;
    }

    ReductionPlan m_plan;
    LineWindow<Sample> m_inOrder; ///< for pixels that can be read from top to bottom only
    bool m_isSequential;
};

template <class Sample>
vips::VImage reduced(const vips::VImage& pixels, PixelSize size)
{
    using Kernel = Reducing<Sample>;
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    Kernel* kernel = std::make_unique<Kernel>(pixels, size).release();
    g_signal_connect(image, "close", G_CALLBACK(&Kernel::release), kernel);
    // Strips of some rows share most of what they read.
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_FATSTRIP, pixels.get_image(), nullptr) != 0)
        throw vips::VError();
    image->Xsize = size.width;
    image->Ysize = size.height;
    if (vips_image_generate(
            image, &Kernel::start, &Kernel::generate, &Kernel::stop, kernel, nullptr
        )
        != 0)
        throw vips::VError();
    constexpr int rowsAtATime = 16;
    return isSequential(pixels)
        ? out.sequential(vips::VImage::option()->set("tile_height", rowsAtATime))
        : out;
}

} // namespace

vips::VImage reducedPixels(const vips::VImage& pixels, PixelSize size)
{
    Q_ASSERT(size.width <= pixels.width() && size.height <= pixels.height());
    switch (pixels.format()) {
    case VIPS_FORMAT_UCHAR:
        return reduced<quint8>(pixels, size);
    case VIPS_FORMAT_USHORT:
        return reduced<quint16>(pixels, size);
    default:
        return reduced<float>(pixels, size);
    }
}

} // namespace brenvaldo::platform::graphics
