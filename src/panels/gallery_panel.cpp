// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

GalleryPanel::GalleryPanel()
    : PanelView(u"vwHtmlExport"_s)
{
    pubPhotoGalleryModel.addAlias(u"pubTemplateChoice"_s);
    pubPhotoGalleryModel.addAction(u"cGUIcontrols.hChooseHTMLExportTemplate"_s);
    tfHTMLfileName.addAlias(u"tfHtmlFileName"_s);
    setLayout({
        {Row{.label = u"Template"_s, .fields = {{.control = &pubPhotoGalleryModel}}}},
        {textRow(u"Page name"_s, tfHTMLfileName)},
    });
}

} // namespace brenvaldo::panels
