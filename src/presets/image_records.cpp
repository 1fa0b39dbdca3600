// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_records.h"

#include "image_record_parts.h"
#include "load_effects.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::presets {

namespace {

using Use = RecordField::Use;
using When = RecordField::When;

/// The label of the selected tab; a label that no tab has leaves the tab.
OtherForm tabForm(controls::TabView& tabs)
{
    const auto restore = [&tabs](const QString& label) {
        for (int index = 0; index < tabs.tabs().size(); ++index) {
            if (tabs.tabs()[index].label == label)
                tabs.selectIndex(index);
        }
    };
    return {.stored = [&tabs] { return tabs.selectedLabel(); }, .restore = restore};
}

/// A text whose empty value comes back as "0".
OtherForm zeroWhenEmptyForm(controls::TextField& field)
{
    const auto restore
        = [&field](const QString& text) { field.setStringValue(text.isEmpty() ? u"0"_s : text); };
    return {.stored = [&field] { return field.stringValue(); }, .restore = restore};
}

LoadEffect writesTextInto(controls::TextField& field)
{
    return [&field](const QString& text) { field.setStringValue(text); };
}

/// Puts one view into the holder when the number is 0 and another otherwise.
LoadEffect
showsView(controls::Holder& holder, const panels::PanelView& atZero, const panels::PanelView& other)
{
    return [&holder, &atZero, &other](const QString& text) {
        holder.replaceViews((platform::intValue(text) == 0 ? atZero : other).name());
    };
}

When whenZero(int position) { return {.position = position, .is = When::Is::OneOf, .values = {0}}; }

When whenNotZero(int position)
{
    return {.position = position, .is = When::Is::NoneOf, .values = {0}};
}

} // namespace

PresetRecord tintRecord(panels::Panels& panels)
{
    auto& tint = panels.vwAddTint;
    auto& destination = panels.vwMainDestination.tfImageDestinationFolder;
    auto& orientation = panels.vwApplyOn.pubPhotoOrientation;
    auto& files = panels.vwFileType;
    return editRecord(
        u"addTint"_s,
        {
            {3, FolderForm{&destination}},
            {4, TextForm{&tint.tfAddTintHexValue}},
            {5, IndexForm{&tint.pubAddTintAngle}},
            {6, TextForm{&tint.tfAddTintOpacity}},
            {7, IndexForm{&tint.pubAddTintRenderMethod}},
            {8, IndexForm{&tint.scAddTintPosition}},
            {9, TextForm{&tint.tfAddTintPosX}},
            {10, TextForm{&tint.tfAddTintPosY}},
            {11, StateForm{&tint.cbAddTintDuoTone}},
            {12, StateForm{&tint.cbAddTintGradient}, enablesWhen(1, {&tint.pubAddTintAngle})},
            {13,
             StateForm{&tint.cbAddTintOrigSize},
             disablesWhen(1, {&tint.tfAddTintWidth, &tint.tfAddTintHeight})},
            {14, TextForm{&tint.tfAddTintWidth}},
            {15, TextForm{&tint.tfAddTintHeight}},
            {16, TextForm{&tint.tfAddTintPercentage}},
            {17, IndexForm{&tint.pubAddTintPercentageOrient}},
            {18, TextForm{&tint.tfAddTintPixels}},
            {19, tabForm(tint.tbvFrameType)},
            {20, ColorForm{&tint.cwAddTint}},
            // The output choices are read from where no tint preset has them: a load resets them.
            {.position = 33, .form = IndexForm{&orientation}, .use = Use::OnlyRead},
            {.position = 35, .form = IndexForm{&files.pubFileType}, .use = Use::OnlyRead},
            {.position = 36,
             .form = IndexForm{&files.pubJPEGCompressionLevel},
             .use = Use::OnlyRead},
            {.position = 21, .form = IndexForm{&orientation}, .use = Use::OnlyWritten},
            {.position = 23, .form = IndexForm{&files.pubFileType}, .use = Use::OnlyWritten},
            {.position = 24,
             .form = IndexForm{&files.pubJPEGCompressionLevel},
             .use = Use::OnlyWritten},
        }
    );
}

PresetRecord framingRecord(panels::Panels& panels)
{
    auto& framing = panels.vwFraming;
    return editRecord(
        u"framing"_s,
        withCommonFields(
            {
                {4, TextForm{&framing.tfFramingThickness}},
                {5, TextForm{&framing.tfFramingInset}},
                {6, IndexForm{&framing.pubFramingType}},
                {7, IndexForm{&framing.pubFramingRenderMethod}},
                {8, TextForm{&framing.tfFramingOpacity}},
                {9, TextForm{&framing.tfFramingHEXvalue}},
                // The archive's text also lands in a field of the tint panel.
                {10,
                 ColorForm{&framing.myNSColorWellObjFraming},
                 writesTextInto(panels.vwAddTint.tfAddTintPosY)},
                {11, IndexForm{&framing.pubFramingGradientAngle}},
                {12,
                 StateForm{&framing.cbFramingGradient},
                 enablesWhen(1, {&framing.pubFramingGradientAngle})},
            },
            panels
        )
    );
}

PresetRecord roundingsRecord(panels::Panels& panels)
{
    auto& roundings = panels.vwRoundings;
    RecordFields fields = withCommonFields(
        {
            {4, IndexForm{&roundings.pubRCType}, enablesWhen(0, {&roundings.tfRCDiameter})},
            {5, TextForm{&roundings.tfRCDiameter}},
            {6, TextForm{&roundings.tfRCBorderWidth}},
            {7, IndexForm{&roundings.pubRCBorderPos}},
            {8, TextForm{&roundings.tfRCBackgroundHexColor}},
            {9, TextForm{&roundings.tfRCBorderHexColor}},
            {10, ColorForm{&roundings.cwRCBackgroundColor}},
            {11, ColorForm{&roundings.cwRCBorderColor}},
            {12,
             StateForm{&roundings.cbRCBackgroundColor},
             enablesWhen(
                 1,
                 {&roundings.cwRCBackgroundColor,
                  &roundings.tfRCBackgroundHexColor,
                  &roundings.tfRCEnlargeCanvas}
             )},
            {13,
             StateForm{&roundings.cbRCBorderColor},
             enablesWhen(
                 1,
                 {&roundings.cwRCBorderColor,
                  &roundings.tfRCBorderHexColor,
                  &roundings.tfRCBorderWidth,
                  &roundings.pubRCBorderPos}
             )},
            {15,
             StateForm{&roundings.cbRCGradient},
             enablesWhen(1, {&roundings.pubRCGradientAngle})},
            {17, zeroWhenEmptyForm(roundings.tfRCEnlargeCanvas)},
        },
        panels
    );
    fields.push_back({14, IndexForm{&roundings.pubRCGradientAngle}});
    fields.push_back({16, TextForm{&roundings.tfRCOpacity}});
    return editRecord(u"roundings"_s, std::move(fields));
}

PresetRecord profileRecord(panels::Panels& panels)
{
    auto& profile = panels.vwProfileConversion;
    return editRecord(
        u"profileConversion"_s,
        withCommonFields(
            {
                {4, IndexForm{&profile.pubCPCRenderIntent}},
                {5, IndexForm{&profile.pubInstalledICCProfiles}},
            },
            panels
        )
    );
}

PresetRecord rotationRecord(panels::Panels& panels)
{
    auto& rotation = panels.vwRotatePhotos;
    RecordFields fields = withCommonFields(
        {
            {4, TextForm{&rotation.tfRotationAngle}},
            {5, TextForm{&rotation.tfRotationBackgroundHexColor}},
            {6, TextForm{&rotation.tfRotationEnlargeCanvas}},
            {7,
             StateForm{&rotation.cbRotationBackgroundColor},
             enablesWhen(
                 1,
                 {&rotation.tfRotationEnlargeCanvas,
                  &rotation.tfRotationBackgroundHexColor,
                  &rotation.cwRotationBackgroundColor}
             )},
        },
        panels
    );
    fields.push_back(hexColorField(5, rotation.cwRotationBackgroundColor));
    return editRecord(u"rotatePhotos"_s, std::move(fields));
}

PresetRecord resizeRecord(panels::Panels& panels)
{
    constexpr int scaleType = 7;

    auto& resize = panels.vwResizePhotos;
    auto& fixed = resize.dvVCUiScaleFixView;
    auto& maximum = resize.dvVCUiScaleMaxView;
    return editRecord(
        u"resizePhotos"_s,
        withCommonFields(
            {
                {scaleType,
                 IndexForm{&resize.pubScaleType},
                 showsView(resize.dvVCUiResizeMainView, maximum, fixed)},
                {4, TextForm{&fixed.tfScaleFixWidth}, {}, whenNotZero(scaleType)},
                {5, TextForm{&fixed.tfScaleFixHeight}, {}, whenNotZero(scaleType)},
                {6, StateForm{&fixed.cbScaleAspectRatio}, {}, whenNotZero(scaleType)},
                {8, IndexForm{&maximum.pubScaleMaxType}, {}, whenZero(scaleType)},
                {9, TextForm{&maximum.tfScaleMaxVal}, {}, whenZero(scaleType)},
            },
            panels
        )
    );
}

PresetRecord cropRecord(panels::Panels& panels)
{
    constexpr int cropType = 10;

    auto& crop = panels.vwCropPhotos;
    auto& size = crop.dvVCUiCropWxHView;
    auto& minus = crop.dvVCUiCropMinusView;
    auto& place = crop.dvVCUiCropPositionView;
    return editRecord(
        u"cropPhotos"_s,
        withCommonFields(
            {
                {cropType,
                 IndexForm{&crop.pubCropType},
                 showsView(crop.dvVCUiCropTypeView, size, minus)},
                {4, IndexForm{&place.scCropPosition}},
                {5, TextForm{&place.tfXcropOffset}},
                {6, TextForm{&place.tfYcropOffset}},
                {7, TextForm{&size.tfCropWidth}, {}, whenZero(cropType)},
                {8, TextForm{&size.tfCropHeight}, {}, whenZero(cropType)},
                {9, TextForm{&minus.tfCropCutOff}, {}, whenNotZero(cropType), Use::OnlyWritten},
            },
            panels
        )
    );
}

} // namespace brenvaldo::presets
