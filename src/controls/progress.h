// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "range_controls.h"

#include <chrono>

namespace brenvaldo::controls {

/// How a bar counts, and how long the event loop may take at each step: at most, it is no sleep.
struct BarRhythm
{
    double maximum = 100;
    std::chrono::microseconds pauseBefore{0};
    std::chrono::microseconds pauseAfter{0};
};

inline constexpr BarRhythm guiControlsBar{
    1000, std::chrono::milliseconds(10), std::chrono::milliseconds(10)};
inline constexpr BarRhythm watermarkBar{
    1000, std::chrono::milliseconds(10), std::chrono::milliseconds(10)};
inline constexpr BarRhythm responsiveDesignBar{
    100, std::chrono::milliseconds(10), std::chrono::milliseconds(10)};
inline constexpr BarRhythm collectionViewBar{
    100, std::chrono::milliseconds(1), std::chrono::milliseconds(1)};
inline constexpr BarRhythm imageHandlingBar{
    100, std::chrono::milliseconds(1), std::chrono::milliseconds(0)};

/// Drives a bar through a run: shown at 0, up by a step a photo, hidden at the end.
class Progress
{
public:
    Progress(ProgressIndicator& bar, const BarRhythm& rhythm);

    void hInitialisePB();
    /// Lets waiting events through, adds `step`, and lets events through again.
    void hProgressPB(double step);
    void hStopPB();

private:
    ProgressIndicator& m_bar;
    BarRhythm m_rhythm;
};

/// The bar of one run: shown for as long as the object lives and files are in the making, whatever
/// ends the run.
class RunningProgress
{
public:
    RunningProgress(ProgressIndicator& bar, const BarRhythm& rhythm);
    RunningProgress(const RunningProgress&) = delete;
    RunningProgress& operator=(const RunningProgress&) = delete;
    RunningProgress(RunningProgress&&) = delete;
    RunningProgress& operator=(RunningProgress&&) = delete;
    ~RunningProgress();

    /// As `Progress::hProgressPB`.
    void advance(double step);

    /// To be looked at before each photo: the program ends, and the run with it.
    [[nodiscard]] bool isAskedToEnd() const { return m_bar.isAskedToEnd(); }

private:
    const ProgressIndicator& m_bar;
    Progress m_progress;
};

} // namespace brenvaldo::controls
