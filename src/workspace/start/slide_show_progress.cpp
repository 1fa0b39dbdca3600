// SPDX-License-Identifier: GPL-3.0-or-later
#include "slide_show_progress.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

namespace brenvaldo::workspace {

namespace {

constexpr double slideShowStep = 1.0;
constexpr double maximumAfterReset = 100;

bool isOfSlideShow(const controls::ProgressIndicator& bar)
{
    return bar.name() == u"progBarSlideShow";
}

} // namespace

void cProgressbar::hInitializeProgressbar(controls::ProgressIndicator& bar, double maximum) const
{
    platform::log(u"hInitializeProgressbar entred"_s);
    if (!isOfSlideShow(bar))
        return;
    bar.setIndeterminate(true);
    bar.setMaximum(maximum);
    bar.setDoubleValue(0);
    bar.setHidden(false);
    bar.startAnimation();
    platform::log(u"wordt geinitialiseerd"_s);
}

void cProgressbar::hUpdateProgressbar(controls::ProgressIndicator& bar) const
{
    if (isOfSlideShow(bar))
        bar.incrementBy(slideShowStep);
}

void cProgressbar::hResetProgressbar(controls::ProgressIndicator& bar) const
{
    if (!isOfSlideShow(bar))
        return;
    bar.stopAnimation();
    bar.setDoubleValue(0);
    bar.setMaximum(maximumAfterReset);
}

} // namespace brenvaldo::workspace
