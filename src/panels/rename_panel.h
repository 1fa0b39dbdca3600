// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// What is put before and behind the names of the files.
struct RenamePanel : PanelView
{
    RenamePanel();

    controls::TextField tfPrefixToAdd{u"tfPrefixToAdd"_s};
    /// Filled at start.
    controls::ComboBox cbxPrefixMetaData{u"cbxPrefixMetaData"_s, {}};
    controls::TextField tfPostfixToAdd{u"tfPostfixToAdd"_s};
    /// Filled at start.
    controls::ComboBox cbxPostfixMetaData{u"cbxPostfixMetaData"_s, {}};
};

} // namespace brenvaldo::panels
