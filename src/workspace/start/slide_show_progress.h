// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/range_controls.h>

namespace brenvaldo::workspace {

/// Runs the bar named "progBarSlideShow", which tells that something goes on but not how far it is;
/// a bar of any other name is left alone.
class cProgressbar
{
public:
    void hInitializeProgressbar(controls::ProgressIndicator& bar, double maximum) const;
    /// One step of 1.0.
    void hUpdateProgressbar(controls::ProgressIndicator& bar) const;
    /// Stopped and empty, with a maximum of 100.
    void hResetProgressbar(controls::ProgressIndicator& bar) const;
};

} // namespace brenvaldo::workspace
