// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_file.h"

#include <controls/action_registry.h>
#include <presets/image_records.h>
#include <presets/preset_manager.h>
#include <presets/watermark_records.h>

namespace brenvaldo::test {

/// The records of the functions that have one, by function id.
inline QHash<QString, presets::PresetRecord> recordsOf(panels::Panels& panels)
{
    return {
        {u"textWM"_qs, presets::textWatermarkRecord(panels)},
        {u"imageWM"_qs, presets::imageWatermarkRecord(panels)},
        {u"addTint"_qs, presets::tintRecord(panels)},
        {u"framing"_qs, presets::framingRecord(panels)},
        {u"roundings"_qs, presets::roundingsRecord(panels)},
        {u"profileConversion"_qs, presets::profileRecord(panels)},
        {u"rotatePhotos"_qs, presets::rotationRecord(panels)},
        {u"resizePhotos"_qs, presets::resizeRecord(panels)},
        {u"cropPhotos"_qs, presets::cropRecord(panels)},
        {u"filters"_qs, presets::filterRecord(panels)},
    };
}

/// The controls, a new presets file and the manager between them.
struct PresetsBench
{
    PresetsBench()
    {
        presets::dbViewController().linkToPresetsDB();
        manager.registerActions(actions);
        panels.vwWatermark.cbFontList.setTitles({u"DejaVu Sans"_qs, u"Liberation Serif"_qs});
    }

    PresetFile file;
    panels::Panels panels;
    QString function = u"textWM"_qs;
    QHash<QString, presets::PresetRecord> records = recordsOf(panels);
    presets::cPresetManager manager{
        panels,
        [this] { return function; },
        [this]() -> const presets::PresetRecord* {
            const auto found = records.constFind(function);
            return found == records.constEnd() ? nullptr : &*found;
        }};
    controls::ActionRegistry actions;

    /// Saves the present settings under `name`, as a press of the button does.
    void save(const QString& name)
    {
        panels.wwPresetsWindow.tfInputPDM.setStringValue(name);
        press("hAddPreset");
    }

    /// Selects row `index` of the list and applies it.
    void apply(int index)
    {
        panels.wwPresetsWindow.myPresetsTableView.selectRow(index);
        press("hApplySelectedPreset");
    }

    controls::ActionRegistry::Sent press(const char* action)
    {
        return actions.send(u"cPresetManager."_qs + QString::fromLatin1(action));
    }

    [[nodiscard]] QStringList listed(const QString& column = u"nmPreset"_qs) const
    {
        const auto& list = panels.wwPresetsWindow.thePresetsData;
        QStringList values;
        for (int row = 0; row < list.arrangedObjects().size(); ++row)
            values.append(list.value(row, column));
        return values;
    }

    /// What the file keeps at `position` in the last preset of that name.
    [[nodiscard]] QString stored(const QString& name, int position) const
    {
        return presets::dbViewController()
            .getSelectedPreset(u"Presets"_qs, name)
            .value_or(presets::PresetValues())
            .value(u"StrField%1"_qs.arg(position));
    }
};

} // namespace brenvaldo::test
