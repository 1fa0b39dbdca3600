// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kinds_of_run.h"

#include <platform/graphics/image.h>
#include <presets/preset_record.h>

#include <QLatin1String>
#include <QtGlobal>

#include <functional>
#include <limits>
#include <optional>
#include <vector>

/// \file
/// What the program knows of a function: one row a function, each in a file of its own.

namespace brenvaldo::workspace {

/// The three parts of the window that functions are chosen in.
enum class Section { EditPhoto, FileManagement, Gallery };

/// How the user chooses a function.
struct Choice
{
    using IsTabSelected = bool (*)(const panels::Panels& panels);

    Section section;
    int index = 0; ///< of the section's pop-up
    /// Where functions share an index: true while the tab of this one is selected.
    IsTabSelected isTabSelected = nullptr;
    bool onlyByItsTab = false; ///< the pop-up does not choose it
};

enum class HolderChange { LeaveAsItWas, Empty, Fill };

/// The holders of a function: its own view, and what becomes of the four holders that several
/// functions share.
struct HolderPlan
{
    QLatin1String mainView;
    HolderChange preview;
    HolderChange applyOn;
    HolderChange fileType;
    HolderChange destination;
};

/// All holders filled: what most functions that edit photos have.
constexpr HolderPlan withPreview(QLatin1String mainView)
{
    using enum HolderChange;
    return {mainView, Fill, Fill, Fill, Fill};
}

constexpr HolderPlan withoutPreview(QLatin1String mainView)
{
    using enum HolderChange;
    return {mainView, Empty, Fill, Fill, Fill};
}

enum class PresetButtons { LeaveAsTheyWere, Show, Hide };

/// The tags of a panel's fields, first and last; an edit in one of them selects the function.
struct FieldTags
{
    static constexpr int unbounded = std::numeric_limits<int>::max();

    int first = 0;
    int last = -1;

    [[nodiscard]] bool contain(int tag) const { return first <= tag && tag <= last; }
};

/// What a function's effect does to the plain photo below it.
enum class PhotoBelow { Stays, Goes };

/// The settings of a function as a preset keeps them.
struct PresetTable
{
    using Applies = bool (*)(const panels::Panels& panels);

    presets::PresetRecord (*make)(panels::Panels& panels);
    Applies applies = nullptr; ///< where a function has several: true for the one that is shown
    void (*afterLoad)(const Subsystems& subsystems) = nullptr;
};

struct Function
{
    /// The picture that a run would make of the photo at a path; nothing when it fails.
    using Preview = std::function<std::optional<platform::graphics::Image>(
        const Subsystems& subsystems, const QString& path
    )>;

    QLatin1String id;
    const char* title; ///< what a photographer calls it, in the context "FunctionTitle"
    Choice choice;
    HolderPlan holders;
    PresetButtons presetButtons = PresetButtons::Show;
    FieldTags fieldTags = {};
    /// Brings the panel to its first state, after the holders have been filled.
    std::function<void(const Subsystems& subsystems)> whenShown = {};
    KindOfRun run;
    Preview preview = {}; ///< empty: no effect is shown
    PhotoBelow photoBelow = PhotoBelow::Stays;
    std::vector<PresetTable> presets = {};
    /// Shows what belongs to a preset that was loaded, after the preview was drawn anew.
    std::function<void(const Subsystems& subsystems)> whenPresetLoaded = {};
};

/// False for a function that comes with a later version. One with a button of its own is built when
/// the action of that button is.
[[nodiscard]] bool hasOperation(const KindOfRun& run);

} // namespace brenvaldo::workspace
