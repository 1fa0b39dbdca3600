// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Web galleries: the template and the name of the pages.
struct GalleryPanel : PanelView
{
    GalleryPanel();

    controls::PopUpButton pubPhotoGalleryModel{
        u"pubPhotoGalleryModel"_qs,
        {u"Table, light"_qs, u"Table, dark"_qs, u"Grid"_qs, u"Table, large photos"_qs}};
    controls::TextField tfHTMLfileName{u"tfHTMLfileName"_qs};
};

} // namespace brenvaldo::panels
