// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_record_parts.h"

#include <imaging/ns_color_handling.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

RecordFields withCommonFields(RecordFields fields, panels::Panels& panels)
{
    fields.insert(
        fields.begin(), {3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}}
    );
    fields.push_back({21, IndexForm{&panels.vwApplyOn.pubPhotoOrientation}});
    fields.push_back({23, IndexForm{&panels.vwFileType.pubFileType}});
    fields.push_back({24, IndexForm{&panels.vwFileType.pubJPEGCompressionLevel}});
    return fields;
}

PresetRecord editRecord(const QString& process, RecordFields fields)
{
    return {
        .process = process,
        .action = u"Edit"_s,
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = std::move(fields),
    };
}

RecordField hexColorField(int position, controls::ColorWell& well)
{
    const auto restore = [&well](const QString& text) {
        well.setColor(imaging::cNSColorHandling::colorFromHexToRGB(text));
    };
    return {
        .position = position,
        .form = OtherForm{.stored = {}, .restore = restore},
        .use = RecordField::Use::OnlyRead,
    };
}

} // namespace brenvaldo::presets
