// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

GalleryPanel::GalleryPanel()
    : PanelView(u"vwHtmlExport"_qs)
{
    pubPhotoGalleryModel.addAlias(u"pubTemplateChoice"_qs);
    pubPhotoGalleryModel.addAction(u"cGUIcontrols.hChooseHTMLExportTemplate"_qs);
    tfHTMLfileName.addAlias(u"tfHtmlFileName"_qs);
    setLayout({
        {Row{.label = u"Template"_qs, .fields = {{.control = &pubPhotoGalleryModel}}}},
        {textRow(u"Page name"_qs, tfHTMLfileName)},
    });
}

} // namespace brenvaldo::panels
