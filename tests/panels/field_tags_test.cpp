// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/common_titles.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>

#include <gtest/gtest.h>

#include "support/case_name.h"
#include "support/text_printing.h"

using namespace brenvaldo;

namespace {

struct TagRange
{
    const char* name;
    QStringList views;
    int first;
    int last;
};

void PrintTo(const TagRange& range, std::ostream* out) { *out << range.name; }

class FieldTags : public testing::TestWithParam<TagRange>
{
};

struct TaggedFields
{
    const char* name;
    int firstTag;
    QStringList fields; ///< in the order of their tags
};

void PrintTo(const TaggedFields& tagged, std::ostream* out) { *out << tagged.name; }

class WatermarkFields : public testing::TestWithParam<TaggedFields>
{
};

struct HexField
{
    const char* name;
    const char* field;
    int tag;
    const char* well; ///< the name under which the well stands in the table of tags
};

void PrintTo(const HexField& field, std::ostream* out) { *out << field.name; }

class HexFields : public testing::TestWithParam<HexField>
{
};

} // namespace

TEST_P(FieldTags, StandInTheRangeOfTheirFunction)
{
    const panels::Panels panels;
    int fields = 0;

    for (const QString& viewName : GetParam().views) {
        const panels::PanelView* view = panels.view(viewName);
        ASSERT_NE(view, nullptr) << viewName.toStdString();
        for (const controls::Control* control : view->controls()) {
            if (!control->actions().contains(panels::endEditingAction()))
                continue;
            ++fields;
            EXPECT_GE(control->tag(), GetParam().first) << control->name().toStdString();
            EXPECT_LE(control->tag(), GetParam().last) << control->name().toStdString();
        }
    }

    EXPECT_GT(fields, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Panels,
    FieldTags,
    testing::Values(
        TagRange{"Tint", {u"vwAddTint"_s}, 400, 499},
        TagRange{"Framing", {u"vwFraming"_s}, 151, 199},
        TagRange{"Roundings", {u"vwRoundings"_s}, 101, 150},
        TagRange{"Rotation", {u"vwRotatePhotos"_s}, 81, 100},
        TagRange{
            "Crop",
            {u"dvVCUiCropWxHView"_s, u"dvVCUiCropMinusView"_s, u"dvVCUiCropPositionView"_s},
            71,
            80},
        TagRange{
            "Filters",
            {u"vwFiltersScreenView"_s,
             u"vwFiltersGaussianView"_s,
             u"vwFiltersPosterizeView"_s,
             u"vwFiltersUnsharpView"_s},
            51,
            70}
    ),
    test::CaseName{}
);

TEST_P(WatermarkFields, SelectTheFunctionOfTheirTab)
{
    const panels::Panels panels;
    int tag = GetParam().firstTag;

    for (const QString& name : GetParam().fields) {
        const controls::Control* field = panels.control(name);
        ASSERT_NE(field, nullptr) << name.toStdString();
        EXPECT_EQ(field->tag(), tag++) << name.toStdString();
        EXPECT_TRUE(
            field->actions().contains(u"cCollectionViewController.controlTextDidEndEditing"_s)
        ) << name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Panels,
    WatermarkFields,
    testing::Values(
        TaggedFields{
            "Text",
            200,
            {u"tvWaterMarkText"_s,
             u"tfFontSize"_s,
             u"tfKerning"_s,
             u"tfLeading"_s,
             u"tfFontTransparancy"_s,
             u"tfXOffset"_s,
             u"tfYOffset"_s,
             u"tfWMAngle"_s,
             u"tfTextShadowXOffset"_s,
             u"tfTextShadowYOffset"_s,
             u"tfTextShadowRadius"_s}},
        TaggedFields{
            "Image",
            300,
            {u"tfImageScalePC"_s,
             u"tfImageTransparancy"_s,
             u"tfImageXOffset"_s,
             u"tfImageYOffset"_s,
             u"tfImageWMAngle"_s,
             u"tfImageShadowXOffset"_s,
             u"tfImageShadowYOffset"_s,
             u"tfImageShadowRadius"_s,
             u"tfImageFadeOutAngle"_s,
             u"tfWatermarkFilterSize"_s,
             u"tfLineScreenAngle"_s,
             u"tfCenterCircularWidth"_s,
             u"tfCenterCircularHeight"_s,
             u"tfWaterMarkImageFilePath"_s}}
    ),
    test::CaseName{}
);

TEST_P(HexFields, CarryTheTagOfTheirColorWell)
{
    const panels::Panels panels;

    const controls::Control* field = panels.control(QString::fromLatin1(GetParam().field));
    const controls::Control* well = panels.control(QString::fromLatin1(GetParam().well));

    ASSERT_NE(field, nullptr);
    EXPECT_NE(dynamic_cast<const controls::ColorWell*>(well), nullptr);
    EXPECT_EQ(field->tag(), GetParam().tag);
    EXPECT_EQ(field->actions(), QStringList{u"cColorWellHandling.controlTextDidEndEditing"_s});
}

INSTANTIATE_TEST_SUITE_P(
    Panels,
    HexFields,
    testing::Values(
        HexField{"Tint", "tfAddTintHexValue", 7, "ascNSColorWellAddTint"},
        HexField{"Framing", "tfFramingHEXvalue", 8, "myNSColorWellObjFraming"},
        HexField{"Background", "tfRCBackgroundHexColor", 9, "ascNSColorWellObjRCbackground"},
        HexField{"Border", "tfRCBorderHexColor", 10, "ascNSColorWellObjRCborder"},
        HexField{"Monochrome", "tfFilterMonochromeHexColor", 22, "ascNSColorWellObjMonochrome"},
        HexField{"Rotation", "tfRotationBackgroundHexColor", 23, "cwRotationBackgroundColor"}
    ),
    test::CaseName{}
);
