// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_sheet.h"

namespace brenvaldo::panels {

PresetsSheet::PresetsSheet()
    : PanelView(u"wwPresetsWindow"_qs)
{
    setLayout({
        {Heading{u"Keep the present settings"_qs}},
        {Row{
            .label = u"Name"_qs,
            .fields
            = {{.control = &tfInputPDM}, {.control = &btnAddPreset, .width = Field::Width::Narrow}},
            .hint = u"Later you get all values of this function back with one click."_qs}},
        {Heading{u"Presets"_qs}},
        {Table{
            .table = &myPresetsTableView,
            .columns
            = {{.key = u"nmPreset"_qs, .title = u"Name"_qs},
               {.key = u"nmProces"_qs, .title = u"Function"_qs}},
            .accessibleName = u"Presets of this function"_qs,
            .emptyText
            = u"No presets yet. Set the values of the function, type a name above and save them."_qs,
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
