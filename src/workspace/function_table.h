// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

#include <optional>

/// \file
/// Which function a control stands for, and what its selection puts into the holders.

namespace brenvaldo::workspace {

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

enum class PresetButtons { LeaveAsTheyWere, Show, Hide };

struct FunctionRow
{
    QLatin1String id;
    HolderPlan holders;
    PresetButtons presetButtons;
};

/// The function at an index of `pubEditPhoto`; null outside of the table. Index 0 stands as
/// `textWM`; the tab of the panel decides whether it is `imageWM`.
[[nodiscard]] const FunctionRow* editFunctionAt(int index);

/// The function at an index of `pubFileManagementSelect`; null outside of the table. Index 0 stands
/// as `manSort`; the tab of the panel decides whether it is `batchSort`.
[[nodiscard]] const FunctionRow* fileManagementFunctionAt(int index);

/// The function that an edited field of that tag selects; nothing below 51.
[[nodiscard]] std::optional<QLatin1String> functionOfFieldTag(int tag);

} // namespace brenvaldo::workspace
