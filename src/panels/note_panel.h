// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

namespace brenvaldo::panels {

/// The panel of a function without settings: a sentence in their place.
struct NotePanel : PanelView
{
    NotePanel(const QString& name, const QString& note);
};

} // namespace brenvaldo::panels
