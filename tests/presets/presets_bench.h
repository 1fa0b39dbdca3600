// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_file.h"

#include <controls/action_registry.h>
#include <platform/foundation/literals.h>
#include <presets/code_record.h>
#include <presets/exif_record.h>
#include <presets/gallery_record.h>
#include <presets/image_records.h>
#include <presets/preset_manager.h>
#include <presets/renaming_records.h>
#include <presets/sorting_records.h>
#include <presets/upload_record.h>
#include <presets/watermark_records.h>

namespace brenvaldo::test {

/// The records of the functions that have one, by function id; those of renaming by process.
inline QHash<QString, presets::PresetRecord> recordsOf(panels::Panels& panels)
{
    return {
        {u"textWM"_s, presets::textWatermarkRecord(panels)},
        {u"imageWM"_s, presets::imageWatermarkRecord(panels)},
        {u"addTint"_s, presets::tintRecord(panels)},
        {u"framing"_s, presets::framingRecord(panels)},
        {u"roundings"_s, presets::roundingsRecord(panels)},
        {u"profileConversion"_s, presets::profileRecord(panels)},
        {u"rotatePhotos"_s, presets::rotationRecord(panels)},
        {u"resizePhotos"_s, presets::resizeRecord(panels)},
        {u"cropPhotos"_s, presets::cropRecord(panels)},
        {u"filters"_s, presets::filterRecord(panels)},
        {u"batchQR"_s, presets::codeRecord(panels)},
        {u"htmlExport"_s, presets::galleryRecord(panels)},
        {u"batchExifUC"_s, presets::exifRecord(panels)},
        {u"batchArchive"_s, presets::archiveRecord(panels)},
        {u"batchUploadPhotos"_s, presets::uploadRecord(panels)},
        {u"manSort"_s, presets::manSortRecord(panels)},
        {u"batchSort"_s, presets::batchSortRecord(panels)},
        {u"Strip"_s, presets::stripRecord(panels)},
        {u"Replace"_s, presets::replaceRecord(panels)},
        {u"Prefix"_s, presets::prefixRecord(panels)},
        {u"Postfix"_s, presets::postfixRecord(panels)},
        {u"Numbering"_s, presets::numberingRecord(panels)},
    };
}

/// The controls, a new presets file and the manager between them.
struct PresetsBench
{
    PresetsBench()
    {
        presets::dbViewController().linkToPresetsDB();
        manager.registerActions(actions);
        panels.vwWatermark.cbFontList.setTitles({u"DejaVu Sans"_s, u"Liberation Serif"_s});
    }

    PresetFile file;
    panels::Panels panels;
    QString function = u"textWM"_s;
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
        return actions.send(u"cPresetManager."_s + QString::fromLatin1(action));
    }

    [[nodiscard]] QStringList listed(const QString& column = u"nmPreset"_s) const
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
            .getSelectedPreset(u"Presets"_s, name)
            .value_or(presets::PresetValues())
            .value(u"StrField%1"_s.arg(position));
    }
};

} // namespace brenvaldo::test
