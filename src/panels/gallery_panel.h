// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Web galleries: the template and the name of the pages.
struct GalleryPanel : PanelView
{
    GalleryPanel();

    controls::PopUpButton pubPhotoGalleryModel;
    controls::TextField tfHTMLfileName;
};

} // namespace brenvaldo::panels
