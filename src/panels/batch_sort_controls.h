// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/range_controls.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The criteria of sorting, and what happens to the files that meet all of them.
struct BatchSortControls
{
    BatchSortControls();

    controls::CheckBox cbImagePropChoice{u"cbImagePropChoice"_s, u"By the picture"_s};
    controls::PopUpButton pubImageProp{
        u"pubImageProp"_s,
        {u"EXIF user comment"_s, u"Width in pixels"_s, u"Height in pixels"_s, u"Colour profile"_s}};
    controls::PopUpButton pubImagePropSelector{
        u"pubImagePropSelector"_s, {u"contains"_s, u"begins with"_s, u"ends with"_s, u"is"_s}};
    controls::TextField tfImagePropVar{u"tfImagePropVar"_s};

    controls::CheckBox cbFileNameChoice{u"cbFileNameChoice"_s, u"By the name"_s};
    controls::PopUpButton pubFileName{u"pubFileName"_s, {u"File name"_s, u"Extension"_s}};
    controls::PopUpButton pubFileNameSelector{
        u"pubFileNameSelector"_s, {u"contains"_s, u"begins with"_s, u"ends with"_s, u"is"_s}};
    controls::TextField tfFileNameVar{u"tfFileNameVar"_s};

    controls::CheckBox cbFileTagChoice{u"cbFileTagChoice"_s, u"By the label"_s};
    controls::PopUpButton pubFileTagIsNot{u"pubFileTagIsNot"_s, {u"is"_s, u"is not"_s}};
    /// In the order of the label numbers.
    controls::PopUpButton pubFileTag{
        u"pubFileTag"_s,
        {u"None"_s,
         u"Grey"_s,
         u"Green"_s,
         u"Purple"_s,
         u"Blue"_s,
         u"Yellow"_s,
         u"Red"_s,
         u"Orange"_s}};

    controls::PopUpButton pubFileHandlingSelector{
        u"pubFileHandlingSelector"_s,
        {u"Copy"_s, u"Move"_s, u"Make an alias"_s, u"Move to the trash"_s}};
    controls::TextField tfBatchSortDestFolder{u"tfBatchSortDestFolder"_s};
    controls::Button btnChooseDestFolder{
        u"btnChooseDestFolder"_s, u"Choose\u2026"_s, u"DVFileSorterRoutine.btnChooseDestFolder"_s};
    controls::Button btnShowBatchDestinationFolder{
        u"btnShowBatchDestinationFolder"_s,
        u"Show"_s,
        u"DVFileSorterRoutine.hShowBatchDestinationFolder"_s};
    controls::Button btnChooseFiles{
        u"btnChooseFiles"_s, u"Choose files & sort\u2026"_s, u"DVFileSorterRoutine.hSortFiles"_s};
    controls::ProgressIndicator showSortProgress{u"showSortProgress"_s};

    [[nodiscard]] Layout batchSortPage();

private:
    void giveAliases();
    void disableValues();
};

} // namespace brenvaldo::panels
