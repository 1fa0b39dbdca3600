// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_record.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

PresetRecord codeRecord(panels::Panels& panels)
{
    panels::CodePanel& codes = panels.vwQRBarCode;
    return {
        .process = u"batchQR"_s,
        .action = u"FileManagement"_s,
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = {
            {3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}},
            {4, TextForm{&codes.tfQRDestination}},
            {5, TextForm{&codes.tfQRtext}},
            {6, TextForm{&codes.tfQRName}},
            {7, TextForm{&codes.tfQRSize}},
            {8, IndexForm{&codes.pubCodeType}},
        }};
}

} // namespace brenvaldo::presets
