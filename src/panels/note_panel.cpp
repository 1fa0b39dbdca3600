// SPDX-License-Identifier: GPL-3.0-or-later
#include "note_panel.h"

namespace brenvaldo::panels {

NotePanel::NotePanel(const QString& name, const QString& note)
    : PanelView(name)
{
    setLayout({{Note{note}}});
}

} // namespace brenvaldo::panels
