// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The sheet that asks for the name of a new album of the photo library.
struct PhotosAlbumSheet : PanelView
{
    PhotosAlbumSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfPhotosAlbumName{u"tfPhotosAlbumName"_s};
    controls::Button btnCreateAlbum{
        u"btnCreateAlbum"_s, u"Create"_s, u"cPhotosLink.okClosePhotosAlbumSheetObjC"_s};
    controls::Button btnCancelAlbum{
        u"btnCancelAlbum"_s, u"Cancel"_s, u"cPhotosLink.cancelClosePhotosAlbumSheetObjC"_s};
};

} // namespace brenvaldo::panels
