// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <controls/action_registry.h>
#include <panels/panels.h>
#include <platform/foundation/signal.h>

#include <functional>

namespace brenvaldo::presets {

/// Keeps the present settings of the selected function under a name, lists the presets of that
/// function, loads one back into the controls, and removes one.
class cPresetManager
{
public:
    /// Answers the record of the function that the user has chosen; null when it has none.
    using SelectedRecord = std::function<const PresetRecord*()>;

    /// `selectedFunction` answers the id of the function that the user has chosen.
    cPresetManager(
        panels::Panels& panels,
        std::function<QString()> selectedFunction,
        SelectedRecord selectedRecord
    );

    void registerActions(controls::ActionRegistry& actions);

    // The actions. Adding, listing and applying return at once for a function without a record. A
    // preset that can't be read at the moment changes no control.
    void hAddPreset();
    void hLoadPreset();
    void hRemovePreset();
    void hApplySelectedPreset();
    void closePresetsSheetObjC();

    /// Lists the presets whose `column` has `value`; when there are none the list stays as it is.
    void
    hUpdateLoadPresetsTableView(const QString& table, const QString& column, const QString& value);
    /// Adds one row to the list; the first of an update clears the list before.
    void hLoadToPDMTable(const QString& name, const QString& process, const QString& remainder);
    void hAlertWindow(const QString& title, const QString& text, const QString& button) const;

    /// Keeps the present settings of a function; answers the name as typed, which is not the stored
    /// one when the function has a preset of that name already.
    QString addValuesToDB(const PresetRecord& record);
    /// Gives the controls of a function the values of a preset.
    void loadValuesFromDB(const PresetRecord& record, const PresetValues& values);

    /// The controls have got the values of a preset.
    platform::Signal<> presetApplied;
    /// The settings could not be kept under that name.
    platform::Signal<const QString&> presetNotSaved;

private:
    void listPresetsOf(const QString& process);

    panels::Panels& m_panels;
    std::function<QString()> m_selectedFunction;
    SelectedRecord m_selectedRecord;
    unsigned m_myLogCounter = 0;
};

} // namespace brenvaldo::presets
