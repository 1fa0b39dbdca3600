// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_manager.h"

#include "action_chain.h"
#include "image_records.h"
#include "watermark_records.h"

#include <platform/foundation/log.h>

namespace brenvaldo::presets {

namespace {

QHash<QString, PresetRecord> recordsOf(panels::Panels& panels)
{
    return {
        {u"textWM"_qs, textWatermarkRecord(panels)},
        {u"imageWM"_qs, imageWatermarkRecord(panels)},
        {u"addTint"_qs, tintRecord(panels)},
        {u"framing"_qs, framingRecord(panels)},
        {u"roundings"_qs, roundingsRecord(panels)},
        {u"profileConversion"_qs, profileRecord(panels)},
        {u"rotatePhotos"_qs, rotationRecord(panels)},
        {u"resizePhotos"_qs, resizeRecord(panels)},
        {u"cropPhotos"_qs, cropRecord(panels)},
        {u"filters"_qs, filterRecord(panels)},
    };
}

} // namespace

cPresetManager::cPresetManager(panels::Panels& panels, std::function<QString()> selectedFunction)
    : m_panels(panels)
    , m_selectedFunction(std::move(selectedFunction))
    , m_records(recordsOf(panels))
{
}

void cPresetManager::registerActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cPresetManager::*action)()) {
        actions.add(
            QStringLiteral("cPresetManager"),
            name,
            [this, action](const controls::Sender&) { (this->*action)(); }
        );
    };
    add(QStringLiteral("hAddPreset"), &cPresetManager::hAddPreset);
    add(QStringLiteral("hLoadPreset"), &cPresetManager::hLoadPreset);
    add(QStringLiteral("hRemovePreset"), &cPresetManager::hRemovePreset);
    add(QStringLiteral("hApplySelectedPreset"), &cPresetManager::hApplySelectedPreset);
    add(QStringLiteral("closePresetsSheetObjC"), &cPresetManager::closePresetsSheetObjC);
}

const PresetRecord* cPresetManager::recordOfSelectedFunction() const
{
    const auto found = m_records.constFind(m_selectedFunction());
    return found == m_records.constEnd() ? nullptr : &*found;
}

void cPresetManager::hAddPreset()
{
    platform::log(QStringLiteral("myFunc: ") + m_selectedFunction());
    const PresetRecord* record = recordOfSelectedFunction();
    if (!record)
        return;
    addValuesToDB(*record);
    listPresetsOf(record->process);
}

void cPresetManager::hLoadPreset()
{
    const PresetRecord* record = recordOfSelectedFunction();
    if (!record)
        return;
    m_panels.wwPresetsWindow.sheet.open();
    listPresetsOf(record->process);
}

void cPresetManager::hRemovePreset()
{
    auto& sheet = m_panels.wwPresetsWindow;
    const int row = sheet.myPresetsTableView.selectedRow();
    if (row < 0)
        return;
    const QString name = sheet.thePresetsData.value(row, QStringLiteral("nmPreset"));
    const QString process = sheet.thePresetsData.value(row, QStringLiteral("nmProces"));
    dbViewController().removePresetFromDatabase(
        QStringLiteral("Presets"), QStringLiteral("NameOfPreset"), name
    );
    sheet.thePresetsData.removeAllObjects();
    listPresetsOf(process);
}

void cPresetManager::hApplySelectedPreset()
{
    const auto& sheet = m_panels.wwPresetsWindow;
    const int row = sheet.myPresetsTableView.selectedRow();
    if (row < 0)
        return;
    const PresetRecord* record = recordOfSelectedFunction();
    if (!record)
        return;
    const QString name = sheet.thePresetsData.value(row, QStringLiteral("nmPreset"));
    loadValuesFromDB(
        *record, dbViewController().getSelectedPreset(QStringLiteral("Presets"), name)
    );
}

void cPresetManager::closePresetsSheetObjC() { m_panels.wwPresetsWindow.sheet.close(); }

QString cPresetManager::addValuesToDB(const PresetRecord& record)
{
    const QString name = m_panels.wwPresetsWindow.tfInputPDM.stringValue();
    const std::optional<QString> taken = dbViewController().checkPresetNameFromTableNamed(
        QStringLiteral("Presets"),
        QStringLiteral("NameOfPreset"),
        name,
        QStringLiteral("Process"),
        record.process
    );
    const QString stored = taken == name ? name + QStringLiteral("_[x]") : name;
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
}

void cPresetManager::listPresetsOf(const QString& process)
{
    hUpdateLoadPresetsTableView(QStringLiteral("Presets"), QStringLiteral("Process"), process);
}

void cPresetManager::hUpdateLoadPresetsTableView(
    const QString& table, const QString& column, const QString& value
)
{
    const auto rows = dbViewController().checkForActionType(table, column, value);
    if (!rows)
        return;
    const QString separator = QStringLiteral("|");
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

QString cPresetManager::hGetTWMActionsToStore() const
{
    return chainText(m_panels.vwWatermark.cActionsTWMArrayController);
}

void cPresetManager::hLoadTWMActions(const QString& chain)
{
    loadChain(chain, m_panels.vwWatermark.cActionsTWMArrayController);
}

void cPresetManager::hAlertWindow(const QString&, const QString&, const QString&) const { }

} // namespace brenvaldo::presets
