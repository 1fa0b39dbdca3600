// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Whether the big preview shows the function's effect.
struct ShowPreviewPanel : PanelView
{
    ShowPreviewPanel();

    controls::CheckBox cbShowPreview{u"cbShowPreview"_qs, u"Show preview"_qs};
};

/// Which of the ticked photos a run takes.
struct ApplyOnPanel : PanelView
{
    ApplyOnPanel();

    controls::PopUpButton pubPhotoOrientation{
        u"pubPhotoOrientation"_qs,
        {u"All photos"_qs, u"Landscape photos"_qs, u"Portrait photos"_qs, u"Square photos"_qs}};
};

/// Type and quality of the files that a run writes.
struct FileTypePanel : PanelView
{
    FileTypePanel();

    controls::PopUpButton pubFileType{
        u"pubFileType"_qs,
        {u"original file type"_qs,
         u"png"_qs,
         u"tiff"_qs,
         u"bmp"_qs,
         u"gif"_qs,
         u"jpeg"_qs,
         u"jp2"_qs,
         u"heic"_qs,
         u"pdf"_qs}};
    controls::PopUpButton pubJPEGCompressionLevel{
        u"pubJPEGCompressionLevel"_qs,
        {u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs, u"5"_qs, u"6"_qs, u"7"_qs, u"8"_qs, u"9"_qs, u"10"_qs},
        8};
};

/// Folder that a run writes to.
struct MainDestinationPanel : PanelView
{
    MainDestinationPanel();

    controls::TextField tfImageDestinationFolder{u"tfImageDestinationFolder"_qs};
    controls::Button btnChooseDestination{
        u"btnChooseDestination"_qs,
        u"Choose\u2026"_qs,
        u"cGUIcontrols.hChooseScalingDestinationFolder"_qs};
    controls::Button btnShowDestination{
        u"btnShowDestination"_qs, u"Show"_qs, u"cGUIcontrols.hShowDestinationFolderInFinder"_qs};
};

} // namespace brenvaldo::panels
