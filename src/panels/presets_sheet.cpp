// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_sheet.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

PresetsSheet::PresetsSheet()
    : PanelView(u"wwPresetsWindow"_s)
{
    setLayout({
        {Heading{u"Keep the present settings"_s}},
        {Row{
            .label = u"Name"_s,
            .fields
            = {{.control = &tfInputPDM}, {.control = &btnAddPreset, .width = Field::Width::Narrow}},
            .hint = u"Later you get all values of this function back with one click."_s}},
        {Heading{u"Presets"_s}},
        {Table{
            .table = &myPresetsTableView,
            .columns
            = {{.key = u"nmPreset"_s, .title = u"Name"_s},
               {.key = u"nmProces"_s, .title = u"Function"_s}},
            .accessibleName = u"Presets of this function"_s,
            .emptyText
            = u"No presets yet. Set the values of the function, type a name above and save them."_s,
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
