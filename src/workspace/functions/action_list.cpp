// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_list.h"

#include <files/tool_box.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

ActionList::ActionList(const Subsystems& subsystems, const platform::UserDefaults& defaults)
    : m_subsystems(subsystems)
    , m_defaults(defaults)
{
}

void ActionList::registerActions(controls::ActionRegistry& actions)
{
    actions.add(u"cGUIcontrols"_s, u"hImportTWMCActions"_s, [this](const auto&) {
        hImportTWMCActions();
    });
    actions.add(u"cGUIcontrols"_s, u"hRemoveTWMCActions"_s, [this](const auto&) {
        hRemoveTWMCActions();
    });
}

void ActionList::hImportTWMCActions()
{
    // The key under which actions are saved begins with a capital.
    const QString folder = m_defaults.text(u"cActionsDestination"_s);
    const QString row = m_subsystems.toolBox.hReadNSDataInFile(folder);
    if (!row.isEmpty())
        m_subsystems.panels.vwWatermark.cActionsTWMArrayController.addObject({row});
}

void ActionList::hRemoveTWMCActions()
{
    panels::WatermarkPanel& panel = m_subsystems.panels.vwWatermark;
    const int row = panel.tvwTWMActions.selectedRow();
    if (row >= 0)
        panel.cActionsTWMArrayController.removeObjectAtIndex(row);
}

} // namespace brenvaldo::workspace
