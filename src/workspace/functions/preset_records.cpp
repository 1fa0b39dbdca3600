// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_records.h"

#include "function_id.h"

#include <presets/code_record.h>

#include <algorithm>

namespace brenvaldo::workspace {

namespace {

presets::PresetRecord recordOfTable(const PresetTable& table, const Subsystems& subsystems)
{
    presets::PresetRecord record = table.make(subsystems.panels);
    if (table.afterLoad)
        record.afterLoad = [&subsystems, afterLoad = table.afterLoad] { afterLoad(subsystems); };
    return record;
}

} // namespace

PresetRecords::PresetRecords(const Functions& functions, const Subsystems& subsystems)
    : m_panels(subsystems.panels)
{
    for (const Function& function : functions) {
        for (const PresetTable& table : function.presets)
            m_records[function.id].push_back({table.applies, recordOfTable(table, subsystems)});
    }
    // No row of the catalogue has this id, but presets of it may be kept.
    m_records[functionId::batchArchive].push_back(
        {nullptr, presets::archiveRecord(subsystems.panels)}
    );
}

const presets::PresetRecord* PresetRecords::recordOf(const QString& function) const
{
    const auto entries = m_records.constFind(function);
    if (entries == m_records.constEnd())
        return nullptr;
    const auto found = std::find_if(entries->begin(), entries->end(), [this](const Entry& entry) {
        return !entry.applies || entry.applies(m_panels);
    });
    return found == entries->end() ? nullptr : &found->record;
}

} // namespace brenvaldo::workspace
