// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "batch_rules.h"

#include <controls/progress.h>

namespace brenvaldo::workspace {

/// The bar of a run of the driver: shown for as long as it lives, a step up a photo.
class RunBar
{
public:
    RunBar(controls::ProgressIndicator& bar, qsizetype photos)
        : m_step(progressStep(photos))
        , m_progress(bar, controls::guiControlsBar)
    {
    }

    void advance() { m_progress.advance(m_step); }

    /// The program ends, and the run with it.
    [[nodiscard]] bool isAskedToEnd() const { return m_progress.isAskedToEnd(); }

private:
    double m_step;
    controls::RunningProgress m_progress;
};

} // namespace brenvaldo::workspace
