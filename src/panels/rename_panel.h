// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// What is put before and behind the names of the files.
struct RenamePanel : PanelView
{
    RenamePanel();

    controls::TextField tfPrefixToAdd;
    controls::ComboBox cbxPrefixMetaData; ///< filled at start
    controls::TextField tfPostfixToAdd;
    controls::ComboBox cbxPostfixMetaData; ///< filled at start
};

} // namespace brenvaldo::panels
