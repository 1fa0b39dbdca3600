// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_record.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

namespace {

PresetRecord recordOfCodes(const QString& process, panels::Panels& panels)
{
    panels::CodePanel& codes = panels.vwQRBarCode;
    return {
        .process = process,
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

} // namespace

PresetRecord codeRecord(panels::Panels& panels) { return recordOfCodes(u"batchQR"_s, panels); }

PresetRecord archiveRecord(panels::Panels& panels)
{
    return recordOfCodes(u"batchArchive"_s, panels);
}

} // namespace brenvaldo::presets
