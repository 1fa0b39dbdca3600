// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos_album_sheet.h"

#include "common_rows.h"

namespace brenvaldo::panels {

PhotosAlbumSheet::PhotosAlbumSheet()
    : PanelView(u"wwPhotosAlbumWindow"_s)
{
    setLayout({
        {textRow(u"Album"_s, tfPhotosAlbumName)},
        {Row{.fields = {{.control = &btnCreateAlbum}, {.control = &btnCancelAlbum}}}},
    });
}

} // namespace brenvaldo::panels
