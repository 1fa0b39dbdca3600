// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Whether the big preview shows the function's effect.
struct ShowPreviewPanel : PanelView
{
    ShowPreviewPanel();

    controls::CheckBox cbShowPreview{u"cbShowPreview"_s, u"Show preview"_s};
};

/// Which of the ticked photos a run takes.
struct ApplyOnPanel : PanelView
{
    ApplyOnPanel();

    controls::PopUpButton pubPhotoOrientation{
        u"pubPhotoOrientation"_s,
        {u"All photos"_s, u"Landscape photos"_s, u"Portrait photos"_s, u"Square photos"_s}};
};

/// Type and quality of the files that a run writes.
struct FileTypePanel : PanelView
{
    FileTypePanel();

    controls::PopUpButton pubFileType{
        u"pubFileType"_s,
        {u"original file type"_s,
         u"png"_s,
         u"tiff"_s,
         u"bmp"_s,
         u"gif"_s,
         u"jpeg"_s,
         u"jp2"_s,
         u"heic"_s,
         u"pdf"_s}};
    controls::PopUpButton pubJPEGCompressionLevel{
        u"pubJPEGCompressionLevel"_s,
        {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s},
        8};
};

/// Folder that a run writes to.
struct MainDestinationPanel : PanelView
{
    MainDestinationPanel();

    controls::TextField tfImageDestinationFolder{u"tfImageDestinationFolder"_s};
    controls::Button btnChooseDestination{
        u"btnChooseDestination"_s,
        u"Choose\u2026"_s,
        u"cGUIcontrols.hChooseScalingDestinationFolder"_s};
    controls::Button btnShowDestination{
        u"btnShowDestination"_s, u"Show"_s, u"cGUIcontrols.hShowDestinationFolderInFinder"_s};
};

} // namespace brenvaldo::panels
