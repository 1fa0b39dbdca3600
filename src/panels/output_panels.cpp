// SPDX-License-Identifier: GPL-3.0-or-later
#include "output_panels.h"

namespace brenvaldo::panels {

ShowPreviewPanel::ShowPreviewPanel()
    : PanelView(u"vwShowPreview"_qs)
    , cbShowPreview(u"cbShowPreview"_qs, u"Show preview"_qs)
{
    cbShowPreview.addAction(u"cCollectionViewController.hCheckboxPreviewTouched"_qs);
    setLayout({{Row{.fields = {{.control = &cbShowPreview}}}}});
}

ApplyOnPanel::ApplyOnPanel()
    : PanelView(u"vwApplyOn"_qs)
    , pubPhotoOrientation(
          u"pubPhotoOrientation"_qs,
          {u"All photos"_qs, u"Landscape photos"_qs, u"Portrait photos"_qs, u"Square photos"_qs}
      )
{
    setLayout({{Row{.label = u"Apply on"_qs, .fields = {{.control = &pubPhotoOrientation}}}}});
}

FileTypePanel::FileTypePanel()
    : PanelView(u"vwFileType"_qs)
    , pubFileType(
          u"pubFileType"_qs,
          {u"original file type"_qs,
           u"png"_qs,
           u"tiff"_qs,
           u"bmp"_qs,
           u"gif"_qs,
           u"jpeg"_qs,
           u"jp2"_qs,
           u"heic"_qs,
           u"pdf"_qs}
      )
    , pubJPEGCompressionLevel(
          u"pubJPEGCompressionLevel"_qs,
          {u"1"_qs,
           u"2"_qs,
           u"3"_qs,
           u"4"_qs,
           u"5"_qs,
           u"6"_qs,
           u"7"_qs,
           u"8"_qs,
           u"9"_qs,
           u"10"_qs},
          8
      )
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
    , tfImageDestinationFolder(u"tfImageDestinationFolder"_qs)
    , btnChooseDestination(
          u"btnChooseDestination"_qs,
          u"Choose\u2026"_qs,
          u"cGUIcontrols.hChooseScalingDestinationFolder"_qs
      )
    , btnShowDestination(
          u"btnShowDestination"_qs, u"Show"_qs, u"cGUIcontrols.hShowDestinationFolderInFinder"_qs
      )
{
    setLayout({{Row{
        .label = u"Destination"_qs,
        .fields
        = {{.control = &tfImageDestinationFolder, .accessibleName = u"Destination folder"_qs},
           {.control = &btnChooseDestination, .width = Field::Width::Narrow},
           {.control = &btnShowDestination, .width = Field::Width::Narrow}}}}});
}

} // namespace brenvaldo::panels
