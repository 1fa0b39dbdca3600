// SPDX-License-Identifier: GPL-3.0-or-later
#include "progress.h"

#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/run_loop.h>

namespace brenvaldo::controls {

namespace {

void pump(std::chrono::microseconds atMost)
{
    if (atMost.count() > 0)
        platform::pumpEvents(atMost);
}

} // namespace

Progress::Progress(ProgressIndicator& bar, const BarRhythm& rhythm)
    : m_bar(bar)
    , m_rhythm(rhythm)
{
}

void Progress::hInitialisePB()
{
    m_bar.setMaximum(m_rhythm.maximum);
    m_bar.setHidden(false);
    m_bar.startAnimation();
    m_bar.setDoubleValue(0);
}

void Progress::hProgressPB(double step)
{
    pump(m_rhythm.pauseBefore);
    m_bar.incrementBy(step);
    pump(m_rhythm.pauseAfter);
}

void Progress::hStopPB()
{
    m_bar.setHidden(true);
    m_bar.stopAnimation();
    m_bar.setDoubleValue(0);
}

RunningProgress::RunningProgress(ProgressIndicator& bar, const BarRhythm& rhythm)
    : m_bar(bar)
    , m_progress(bar, rhythm)
{
    m_progress.hInitialisePB();
}

RunningProgress::~RunningProgress()
{
    platform::awaitAllFiles();
    m_progress.hStopPB();
}

void RunningProgress::advance(double step) { m_progress.hProgressPB(step); }

} // namespace brenvaldo::controls
