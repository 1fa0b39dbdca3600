// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_sheet.h"

namespace brenvaldo::panels {

PresetsSheet::PresetsSheet()
    : PanelView(QStringLiteral("wwPresetsWindow"))
    , sheet(name())
    , tfInputPDM(QStringLiteral("tfInputPDM"))
    , btnAddPreset(
          QStringLiteral("btnAddPreset"),
          QStringLiteral("Save"),
          QStringLiteral("cPresetManager.hAddPreset")
      )
    , thePresetsData(
          QStringLiteral("thePresetsData"),
          {QStringLiteral("nmPreset"), QStringLiteral("nmProces"), QStringLiteral("nmbrAction")}
      )
    , myPresetsTableView(QStringLiteral("myPresetsTableView"), thePresetsData)
    , btnApplyPreset(
          QStringLiteral("btnApplyPreset"),
          QStringLiteral("Use these settings"),
          QStringLiteral("cPresetManager.hApplySelectedPreset")
      )
    , btnRemovePreset(
          QStringLiteral("btnRemovePreset"),
          QStringLiteral("Remove"),
          QStringLiteral("cPresetManager.hRemovePreset")
      )
    , btnClosePresets(
          QStringLiteral("btnClosePresets"),
          QStringLiteral("Close"),
          QStringLiteral("cPresetManager.closePresetsSheetObjC")
      )
    , my2ndView(QStringLiteral("my2ndView"))
{
    setLayout({
        {Heading{QStringLiteral("Keep the present settings")}},
        {Row{
            .label = QStringLiteral("Name"),
            .fields
            = {{.control = &tfInputPDM}, {.control = &btnAddPreset, .width = Field::Width::Narrow}},
            .hint
            = QStringLiteral("Later you get all values of this function back with one click.")}},
        {Heading{QStringLiteral("Presets")}},
        {Table{
            .table = &myPresetsTableView,
            .columns
            = {{.key = QStringLiteral("nmPreset"), .title = QStringLiteral("Name")},
               {.key = QStringLiteral("nmProces"), .title = QStringLiteral("Function")}},
            .accessibleName = QStringLiteral("Presets of this function"),
            .emptyText = QStringLiteral(
                "No presets yet. Set the values of the function, type a name above and save them."
            ),
            .useButton = &btnApplyPreset,
            .removeButton = &btnRemovePreset}},
        {Row{
            .fields
            = {{.control = &btnApplyPreset},
               {.control = &btnRemovePreset},
               {.control = &btnClosePresets}}}},
    });
}

} // namespace brenvaldo::panels
