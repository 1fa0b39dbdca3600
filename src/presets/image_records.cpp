// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_records.h"

#include "load_effects.h"

#include <platform/foundation/numbers.h>

namespace brenvaldo::presets {

namespace {

using When = RecordField::When;

/// The output choices, at the same positions in all but one of the records.
std::vector<RecordField> withOutputFields(std::vector<RecordField> fields, panels::Panels& panels)
{
    fields.push_back({21, IndexForm{&panels.vwApplyOn.pubPhotoOrientation}});
    fields.push_back({23, IndexForm{&panels.vwFileType.pubFileType}});
    fields.push_back({24, IndexForm{&panels.vwFileType.pubJPEGCompressionLevel}});
    return fields;
}

/// Puts the view of the stored mode of resizing into its holder.
LoadEffect showsScaleView(panels::ResizePanel& resize)
{
    return [&resize](const QString& text) {
        const bool fixed = platform::intValue(text) != 0;
        resize.dvVCUiResizeMainView.replaceViews(
            fixed ? resize.dvVCUiScaleFixView.name() : resize.dvVCUiScaleMaxView.name()
        );
    };
}

} // namespace

PresetRecord resizeRecord(panels::Panels& panels)
{
    constexpr int scaleType = 7;
    constexpr When maximumMode = {.position = scaleType, .is = When::Is::Zero};
    constexpr When fixedMode = {.position = scaleType, .is = When::Is::NotZero};

    auto& resize = panels.vwResizePhotos;
    auto& fixed = resize.dvVCUiScaleFixView;
    auto& maximum = resize.dvVCUiScaleMaxView;
    return {
        .process = QStringLiteral("resizePhotos"),
        .action = QStringLiteral("Edit"),
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = withOutputFields(
            {
                {3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}},
                {scaleType, IndexForm{&resize.pubScaleType}, showsScaleView(resize)},
                {4, TextForm{&fixed.tfScaleFixWidth}, {}, fixedMode},
                {5, TextForm{&fixed.tfScaleFixHeight}, {}, fixedMode},
                {6, StateForm{&fixed.cbScaleAspectRatio}, {}, fixedMode},
                {8, IndexForm{&maximum.pubScaleMaxType}, {}, maximumMode},
                {9, TextForm{&maximum.tfScaleMaxVal}, {}, maximumMode},
            },
            panels
        )};
}

} // namespace brenvaldo::presets
