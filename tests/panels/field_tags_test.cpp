// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/common_titles.h>
#include <panels/panels.h>

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
        TagRange{"Tint", {u"vwAddTint"_qs}, 400, 499},
        TagRange{"Watermark", {u"vwWatermark"_qs}, 200, 399},
        TagRange{"Framing", {u"vwFraming"_qs}, 151, 199},
        TagRange{"Roundings", {u"vwRoundings"_qs}, 101, 150},
        TagRange{"Rotation", {u"vwRotatePhotos"_qs}, 81, 100},
        TagRange{
            "Crop",
            {u"dvVCUiCropWxHView"_qs, u"dvVCUiCropMinusView"_qs, u"dvVCUiCropPositionView"_qs},
            71,
            80},
        TagRange{
            "Filters",
            {u"vwFiltersScreenView"_qs,
             u"vwFiltersGaussianView"_qs,
             u"vwFiltersPosterizeView"_qs,
             u"vwFiltersUnsharpView"_qs},
            51,
            70}
    ),
    test::CaseName{}
);

TEST_P(HexFields, CarryTheTagOfTheirColourWell)
{
    const panels::Panels panels;

    const controls::Control* field = panels.control(QString::fromLatin1(GetParam().field));
    const controls::Control* well = panels.control(QString::fromLatin1(GetParam().well));

    ASSERT_NE(field, nullptr);
    EXPECT_NE(dynamic_cast<const controls::ColorWell*>(well), nullptr);
    EXPECT_EQ(field->tag(), GetParam().tag);
    EXPECT_EQ(field->actions(), QStringList{u"cColorWellHandling.controlTextDidEndEditing"_qs});
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
