// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_info_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

PhotoInfoPanel::PhotoInfoPanel()
    : PanelView(u"vwPhotoInfo"_qs)
{
    setLayout({
        {Heading{u"Photo"_qs}},
        {textRow(u"File"_qs, tfActiveFilePath)},
        {Heading{u"Properties"_qs}},
        {Table{
            .table = &myPropertyTreeView,
            .columns
            = {{.key = u"key"_qs, .title = u"Property"_qs},
               {.key = u"val"_qs, .title = u"Value"_qs}},
            .accessibleName = u"Properties of the selected photo"_qs,
            .emptyText = u"Select a photo to see its properties."_qs}},
    });
}

} // namespace brenvaldo::panels
