// SPDX-License-Identifier: GPL-3.0-or-later
#include "output_panels.h"

namespace brenvaldo::panels {

ShowPreviewPanel::ShowPreviewPanel()
    : PanelView(QStringLiteral("vwShowPreview"))
    , cbShowPreview(QStringLiteral("cbShowPreview"), QStringLiteral("Show preview"))
{
    cbShowPreview.addAction(QStringLiteral("cCollectionViewController.hCheckboxPreviewTouched"));
    setLayout({{Row{.fields = {{.control = &cbShowPreview}}}}});
}

ApplyOnPanel::ApplyOnPanel()
    : PanelView(QStringLiteral("vwApplyOn"))
    , pubPhotoOrientation(
          QStringLiteral("pubPhotoOrientation"),
          {QStringLiteral("All photos"),
           QStringLiteral("Landscape photos"),
           QStringLiteral("Portrait photos"),
           QStringLiteral("Square photos")}
      )
{
    setLayout(
        {{Row{.label = QStringLiteral("Apply on"), .fields = {{.control = &pubPhotoOrientation}}}}}
    );
}

FileTypePanel::FileTypePanel()
    : PanelView(QStringLiteral("vwFileType"))
    , pubFileType(
          QStringLiteral("pubFileType"),
          {QStringLiteral("original file type"),
           QStringLiteral("png"),
           QStringLiteral("tiff"),
           QStringLiteral("bmp"),
           QStringLiteral("gif"),
           QStringLiteral("jpeg"),
           QStringLiteral("jp2"),
           QStringLiteral("heic"),
           QStringLiteral("pdf")}
      )
    , pubJPEGCompressionLevel(
          QStringLiteral("pubJPEGCompressionLevel"),
          {QStringLiteral("1"),
           QStringLiteral("2"),
           QStringLiteral("3"),
           QStringLiteral("4"),
           QStringLiteral("5"),
           QStringLiteral("6"),
           QStringLiteral("7"),
           QStringLiteral("8"),
           QStringLiteral("9"),
           QStringLiteral("10")},
          8
      )
{
    setLayout({{Row{
        .label = QStringLiteral("File type"),
        .fields
        = {{.control = &pubFileType},
           {.control = &pubJPEGCompressionLevel,
            .unit = QStringLiteral("Quality"),
            .accessibleName = QStringLiteral("JPEG quality"),
            .width = Field::Width::Narrow}}}}});
}

MainDestinationPanel::MainDestinationPanel()
    : PanelView(QStringLiteral("vwMainDestination"))
    , tfImageDestinationFolder(QStringLiteral("tfImageDestinationFolder"))
    , btnChooseDestination(
          QStringLiteral("btnChooseDestination"),
          QStringLiteral("Choose\u2026"),
          QStringLiteral("cGUIcontrols.hChooseScalingDestinationFolder")
      )
    , btnShowDestination(
          QStringLiteral("btnShowDestination"),
          QStringLiteral("Show"),
          QStringLiteral("cGUIcontrols.hShowDestinationFolderInFinder")
      )
{
    setLayout({{Row{
        .label = QStringLiteral("Destination"),
        .fields
        = {{.control = &tfImageDestinationFolder,
            .accessibleName = QStringLiteral("Destination folder")},
           {.control = &btnChooseDestination, .width = Field::Width::Narrow},
           {.control = &btnShowDestination, .width = Field::Width::Narrow}}}}});
}

} // namespace brenvaldo::panels
