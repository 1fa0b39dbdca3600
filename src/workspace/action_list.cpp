// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui_controls.h"

#include <files/tool_box.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>
#include <presets/action_chain.h>
#include <presets/action_run.h>

/// \file
/// The chain of C-Actions that gives written files their names: its list grows by files of actions.

namespace brenvaldo::workspace {

void cGUIcontrols::hImportTWMCActions()
{
    // The key under which actions are saved begins with a capital.
    const QString folder = m_defaults.text(u"cActionsDestination"_s);
    const QString row = m_subsystems.toolBox.hReadNSDataInFile(folder);
    if (!row.isEmpty())
        m_panels.vwWatermark.cActionsTWMArrayController.addObject({row});
}

void cGUIcontrols::hRemoveTWMCActions()
{
    const int row = m_panels.vwWatermark.tvwTWMActions.selectedRow();
    if (row >= 0)
        m_panels.vwWatermark.cActionsTWMArrayController.removeObjectAtIndex(row);
}

QString cGUIcontrols::hGetTWMActionsToStore() const
{
    return presets::chainText(m_panels.vwWatermark.cActionsTWMArrayController);
}

void cGUIcontrols::hLoadTWMActions(const QString& chain)
{
    presets::loadChain(chain, m_panels.vwWatermark.cActionsTWMArrayController);
}

QString cGUIcontrols::hRenameTWMFile(
    const QString& path, const QString& name, const QList<QStringList>& rows
)
{
    return presets::renamedByActions(path, name, rows);
}

} // namespace brenvaldo::workspace
