// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_record.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

PresetRecord exifRecord(panels::Panels& panels)
{
    panels::ExifPanel& exif = panels.vwFileManagementEXIF;
    return {
        .process = u"addExif"_s,
        .action = u"FileManagement"_s,
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = {
            {4, TextForm{&exif.tfExifUserComment}},
            {5, StateForm{&exif.cbClearBeforeAdd}},
            {6, TextForm{&exif.tfIPTCTitle}},
            {7, TextForm{&exif.tfIPTCKeyWords}},
            {8, TextForm{&exif.tfIPTCCaption}},
            {9, TextForm{&exif.tfIPTCHeadline}},
            {10, TextForm{&exif.tfIPTCCopyRight}},
            {11, TextForm{&exif.tfIPTCCopyRightTerms}},
            {12, TextForm{&exif.tfIPTCCreator}},
            {13, TextForm{&exif.tfIPTCCreatorTitle}},
            {14, TextForm{&exif.tfIPTCSourceOwner}},
        }};
}

} // namespace brenvaldo::presets
