// SPDX-License-Identifier: GPL-3.0-or-later
#include "evaluation.h"

#include "engine.h"
#include "engine_thread.h"

#include <platform/foundation/log.h>

#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace brenvaldo::platform::graphics {

namespace {

/// The first fault of one evaluation.
class EvaluationFault
{
public:
    /// Called where a part could not be computed: what the engine says there is about that part,
    /// while other evaluations go on.
    void note()
    {
        const std::unique_ptr<char, decltype(&g_free)> text(vips_error_buffer_copy(), g_free);
        const std::lock_guard lock(m_mutex);
        if (!std::exchange(m_isNoted, true))
            m_reason = text.get();
    }

    /// @throws vips::VError when one was noted.
    void raise() const
    {
        const std::lock_guard lock(m_mutex);
        if (m_isNoted)
            throw vips::VError(
                m_reason.empty() ? "a part of the picture can't be computed" : m_reason
            );
    }

private:
    mutable std::mutex m_mutex;
    bool m_isNoted = false;
    std::string m_reason;
};

/// The last node of a pipeline.
class WatchedPixels
{
public:
    using Fault = std::shared_ptr<EvaluationFault>;

    WatchedPixels(vips::VImage pixels, Fault fault)
        : m_pixels(std::move(pixels))
        , m_fault(std::move(fault))
        , m_terms(EvaluationTerms::ofThread())
        , m_log(ThreadLogSink::current())
    {
    }

    static void* start(VipsImage* /*out*/, void* watched, void* /*unused*/)
    {
        return vips_region_new(self(watched)->m_pixels.get_image());
    }

    static int
    generate(VipsRegion* out, void* source, void* watched, void* /*unused*/, gboolean* /*stop*/)
    {
        if (self(watched)->fills(out, static_cast<VipsRegion*>(source)))
            return 0;
        self(watched)->m_fault->note();
        return -1;
    }

    static int stop(void* source, void* /*watched*/, void* /*unused*/)
    {
        g_object_unref(source);
        return 0;
    }

    static void release(VipsImage* /*out*/, gpointer watched)
    {
        const std::unique_ptr<WatchedPixels> owned(self(watched));
    }

private:
    /// A decoder works on the thread that asks for its pixels.
    static bool prepareWhole(VipsRegion* region, const VipsRect& area)
    {
        const int before = madeUpParts();
        if (vips_region_prepare(region, &area) != 0)
            return false;
        if (madeUpParts() != before)
            vips_error("evaluation", "the image data is damaged");
        return madeUpParts() == before;
    }

    static WatchedPixels* self(void* watched) { return static_cast<WatchedPixels*>(watched); }

    /// On a thread of the engine, which works here for the thread that asked for the pixels.
    [[nodiscard]] bool fills(VipsRegion* out, VipsRegion* source) const
    {
        const TermsOnThread terms(m_terms);
        const ThreadLogSink log(m_log);
        const VipsRect area = out->valid;
        return !m_terms.isCancelled() && prepareWhole(source, area)
            && vips_region_region(out, source, &area, area.left, area.top) == 0;
    }

    vips::VImage m_pixels;
    Fault m_fault;
    EvaluationTerms m_terms;
    LogSink m_log;
};

vips::VImage watchedPixels(const vips::VImage& pixels, const WatchedPixels::Fault& fault)
{
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    WatchedPixels* watched = std::make_unique<WatchedPixels>(pixels, fault).release();
    g_signal_connect(image, "close", G_CALLBACK(&WatchedPixels::release), watched);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_ANY, pixels.get_image(), nullptr) != 0
        || vips_image_generate(
               image,
               &WatchedPixels::start,
               &WatchedPixels::generate,
               &WatchedPixels::stop,
               watched,
               nullptr
           ) != 0)
        throw vips::VError();
    if (const int threads = EvaluationTerms::ofThread().threads; threads > 0)
        vips_image_set_int(image, VIPS_META_CONCURRENCY, threads);
    return out;
}

using TakeRow = std::function<void(const unsigned char*, int)>;

int takeRows(VipsRegion* region, VipsRect* area, void* take)
{
    for (int y = area->top; y < VIPS_RECT_BOTTOM(area); ++y)
        (*static_cast<const TakeRow*>(take))(VIPS_REGION_ADDR(region, 0, y), y);
    return 0;
}

} // namespace

void evaluate(
    const vips::VImage& pixels, const std::function<void(const vips::VImage& watched)>& sink
)
{
    const auto fault = std::make_shared<EvaluationFault>();
    try {
        sink(watchedPixels(pixels, fault));
    } catch (const vips::VError&) {
        fault->raise();
        throw;
    }
    fault->raise();
}

vips::VImage copiedToMemory(const vips::VImage& pixels)
{
    vips::VImage copy;
    evaluate(pixels, [&copy](const vips::VImage& watched) { copy = watched.copy_memory(); });
    return copy;
}

void forEachRow(const vips::VImage& pixels, const TakeRow& take)
{
    TakeRow taker = take;
    evaluate(pixels, [&taker](const vips::VImage& watched) {
        if (vips_sink_disc(watched.get_image(), takeRows, &taker) != 0)
            throw vips::VError();
    });
}

} // namespace brenvaldo::platform::graphics
