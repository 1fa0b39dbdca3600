// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_manager.h"

#include "action_chain.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

namespace brenvaldo::presets {

cPresetManager::cPresetManager(
    panels::Panels& panels, std::function<QString()> selectedFunction, SelectedRecord selectedRecord
)
    : m_panels(panels)
    , m_selectedFunction(std::move(selectedFunction))
    , m_selectedRecord(std::move(selectedRecord))
{
}

void cPresetManager::registerActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cPresetManager::*action)()) {
        actions.add(u"cPresetManager"_s, name, [this, action](const controls::Sender&) {
            (this->*action)();
        });
    };
    add(u"hAddPreset"_s, &cPresetManager::hAddPreset);
    add(u"hLoadPreset"_s, &cPresetManager::hLoadPreset);
    add(u"hRemovePreset"_s, &cPresetManager::hRemovePreset);
    add(u"hApplySelectedPreset"_s, &cPresetManager::hApplySelectedPreset);
    add(u"closePresetsSheetObjC"_s, &cPresetManager::closePresetsSheetObjC);
}

void cPresetManager::hAddPreset()
{
    platform::log(u"myFunc: "_s + m_selectedFunction());
    const PresetRecord* record = m_selectedRecord();
    if (!record)
        return;
    try {
        addValuesToDB(*record);
    } catch (...) {
        presetNotSaved(m_panels.wwPresetsWindow.tfInputPDM.stringValue());
        throw;
    }
    listPresetsOf(record->process);
}

void cPresetManager::hLoadPreset()
{
    const PresetRecord* record = m_selectedRecord();
    if (!record)
        return;
    m_panels.wwPresetsWindow.sheet.open();
    if (record->process == u"Postfix")
        platform::log(u"Post"_s);
    listPresetsOf(record->process);
}

void cPresetManager::hRemovePreset()
{
    auto& sheet = m_panels.wwPresetsWindow;
    const int row = sheet.myPresetsTableView.selectedRow();
    if (row < 0)
        return;
    const QString name = sheet.thePresetsData.value(row, u"nmPreset"_s);
    const QString process = sheet.thePresetsData.value(row, u"nmProces"_s);
    dbViewController().removePresetFromDatabase(u"Presets"_s, u"NameOfPreset"_s, name);
    sheet.thePresetsData.removeAllObjects();
    listPresetsOf(process);
}

void cPresetManager::hApplySelectedPreset()
{
    const auto& sheet = m_panels.wwPresetsWindow;
    const int row = sheet.myPresetsTableView.selectedRow();
    if (row < 0)
        return;
    const PresetRecord* record = m_selectedRecord();
    if (!record)
        return;
    const QString name = sheet.thePresetsData.value(row, u"nmPreset"_s);
    const auto values = dbViewController().getSelectedPreset(u"Presets"_s, name);
    if (!values) {
        platform::log(u"The preset can't be read: "_s + name);
        return;
    }
    loadValuesFromDB(*record, *values);
    presetApplied();
}

void cPresetManager::closePresetsSheetObjC() { m_panels.wwPresetsWindow.sheet.close(); }

QString cPresetManager::addValuesToDB(const PresetRecord& record)
{
    const QString name = m_panels.wwPresetsWindow.tfInputPDM.stringValue();
    const std::optional<QString> taken = dbViewController().checkPresetNameFromTableNamed(
        u"Presets"_s, u"NameOfPreset"_s, name, u"Process"_s, record.process
    );
    const QString stored = taken == name ? name + u"_[x]"_s : name;
    dbViewController().insertSortingPresetToDB01(rowOf(record, stored));
    m_panels.wwPresetsWindow.thePresetsData.removeAllObjects();
    listPresetsOf(record.process);
    return name;
}

void cPresetManager::loadValuesFromDB(const PresetRecord& record, const PresetValues& values)
{
    using Before = PresetRecord::Before;

    if (record.before == Before::ClearSecondViewAndSimulation)
        m_panels.wwPresetsWindow.my2ndView.clear();
    if (record.before != Before::Nothing)
        m_panels.vwWatermark.cbWMSimulationMode.setState(0);
    restore(record, values);
    if (record.afterLoad)
        record.afterLoad();
}

void cPresetManager::listPresetsOf(const QString& process)
{
    hUpdateLoadPresetsTableView(u"Presets"_s, u"Process"_s, process);
}

void cPresetManager::hUpdateLoadPresetsTableView(
    const QString& table, const QString& column, const QString& value
)
{
    const auto rows = dbViewController().checkForActionType(table, column, value);
    if (!rows)
        return;
    const QString separator = u"|"_s;
    for (const QString& row : *rows) {
        const QStringList items = row.split(separator);
        const QString head = items.value(0) + separator + items.value(1);
        hLoadToPDMTable(items.value(0), items.value(1), row.split(head).value(1));
    }
    m_myLogCounter = 0;
}

void cPresetManager::hLoadToPDMTable(
    const QString& name, const QString& process, const QString& remainder
)
{
    auto& list = m_panels.wwPresetsWindow.thePresetsData;
    if (m_myLogCounter++ == 0)
        list.removeAllObjects();
    list.addObject({name, process, remainder});
}

void cPresetManager::hAlertWindow(const QString&, const QString&, const QString&) const { }

} // namespace brenvaldo::presets
