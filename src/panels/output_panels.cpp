// SPDX-License-Identifier: GPL-3.0-or-later
#include "output_panels.h"

namespace brenvaldo::panels {

ShowPreviewPanel::ShowPreviewPanel()
    : PanelView(u"vwShowPreview"_qs)
{
    cbShowPreview.addAction(u"cCollectionViewController.hCheckboxPreviewTouched"_qs);
    setLayout({{Row{.fields = {{.control = &cbShowPreview}}}}});
}

ApplyOnPanel::ApplyOnPanel()
    : PanelView(u"vwApplyOn"_qs)
{
    setLayout({{Row{.label = u"Apply on"_qs, .fields = {{.control = &pubPhotoOrientation}}}}});
}

FileTypePanel::FileTypePanel()
    : PanelView(u"vwFileType"_qs)
{
    setLayout({{Row{
        .label = u"File type"_qs,
        .fields
        = {{.control = &pubFileType},
           {.control = &pubJPEGCompressionLevel,
            .unit = u"Quality"_qs,
            .accessibleName = u"JPEG quality"_qs,
            .width = Field::Width::Narrow}}}}});
}

MainDestinationPanel::MainDestinationPanel()
    : PanelView(u"vwMainDestination"_qs)
{
    setLayout({{Row{
        .label = u"Destination"_qs,
        .fields
        = {{.control = &tfImageDestinationFolder, .accessibleName = u"Destination folder"_qs},
           {.control = &btnChooseDestination, .width = Field::Width::Narrow},
           {.control = &btnShowDestination, .width = Field::Width::Narrow}}}}});
}

} // namespace brenvaldo::panels
