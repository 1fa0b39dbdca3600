// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Whether the big preview shows the function's effect.
struct ShowPreviewPanel : PanelView
{
    ShowPreviewPanel();

    controls::CheckBox cbShowPreview;
};

/// Which of the ticked photos a run takes.
struct ApplyOnPanel : PanelView
{
    ApplyOnPanel();

    controls::PopUpButton pubPhotoOrientation;
};

/// Type and quality of the files that a run writes.
struct FileTypePanel : PanelView
{
    FileTypePanel();

    controls::PopUpButton pubFileType;
    controls::PopUpButton pubJPEGCompressionLevel;
};

/// Folder that a run writes to.
struct MainDestinationPanel : PanelView
{
    MainDestinationPanel();

    controls::TextField tfImageDestinationFolder;
    controls::Button btnChooseDestination;
    controls::Button btnShowDestination;
};

} // namespace brenvaldo::panels
