// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_info_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

PhotoInfoPanel::PhotoInfoPanel()
    : PanelView(u"vwPhotoInfo"_s)
{
    setLayout({
        {Heading{u"Photo"_s}},
        {textRow(u"File"_s, tfActiveFilePath)},
        {Heading{u"Properties"_s}},
        {Table{
            .table = &myPropertyTreeView,
            .columns
            = {{.key = u"key"_s, .title = u"Property"_s}, {.key = u"val"_s, .title = u"Value"_s}},
            .accessibleName = u"Properties of the selected photo"_s,
            .emptyText = u"Select a photo to see its properties."_s}},
    });
}

} // namespace brenvaldo::panels
