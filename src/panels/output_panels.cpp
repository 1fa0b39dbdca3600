// SPDX-License-Identifier: GPL-3.0-or-later
#include "output_panels.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

ShowPreviewPanel::ShowPreviewPanel()
    : PanelView(u"vwShowPreview"_s)
{
    cbShowPreview.addAlias(u"cbCropPreview"_s);
    cbShowPreview.addAlias(u"cbAddFilterPreview"_s);
    cbShowPreview.addAction(u"cCollectionViewController.hCheckboxPreviewTouched"_s);
    setLayout({{Row{.fields = {{.control = &cbShowPreview}}}}});
}

ApplyOnPanel::ApplyOnPanel()
    : PanelView(u"vwApplyOn"_s)
{
    setLayout({{Row{.label = u"Apply on"_s, .fields = {{.control = &pubPhotoOrientation}}}}});
}

FileTypePanel::FileTypePanel()
    : PanelView(u"vwFileType"_s)
{
    setLayout({{Row{
        .label = u"File type"_s,
        .fields
        = {{.control = &pubFileType},
           {.control = &pubJPEGCompressionLevel,
            .unit = u"Quality"_s,
            .accessibleName = u"JPEG quality"_s,
            .width = Field::Width::Narrow}}}}});
}

MainDestinationPanel::MainDestinationPanel()
    : PanelView(u"vwMainDestination"_s)
{
    setLayout({{Row{
        .label = u"Destination"_s,
        .fields
        = {{.control = &tfImageDestinationFolder, .accessibleName = u"Destination folder"_s},
           {.control = &btnChooseDestination, .width = Field::Width::Narrow},
           {.control = &btnShowDestination, .width = Field::Width::Narrow}}}}});
}

} // namespace brenvaldo::panels
