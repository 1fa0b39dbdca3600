// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Web galleries: the template and the name of the pages.
struct GalleryPanel : PanelView
{
    GalleryPanel();

    controls::PopUpButton pubPhotoGalleryModel{
        u"pubPhotoGalleryModel"_s,
        {u"Table, light"_s, u"Table, dark"_s, u"Grid"_s, u"Table, large photos"_s}};
    controls::TextField tfHTMLfileName{u"tfHTMLfileName"_s};
};

} // namespace brenvaldo::panels
