// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/panels.h>
#include <platform/foundation/literals.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

int countOfTags(const panels::Panels& panels, int first, int last)
{
    int count = 0;
    for (const controls::Control* control : panels.controls())
        count += control->tag() >= first && control->tag() <= last ? 1 : 0;
    return count;
}

} // namespace

TEST(WatermarkPanel, TellsTheTextTabByLabelAndIdentifier)
{
    const panels::Panels panels;

    EXPECT_EQ(panels.vwWatermark.tbvWatermarkType.selectedIdentifier(), u"1"_s);
    EXPECT_EQ(panels.vwWatermark.tbvWatermarkType.selectedLabel(), u"Text"_s);
}

TEST(WatermarkPanel, GivesEveryFieldATagOfItsFunction)
{
    const panels::Panels panels;

    EXPECT_EQ(countOfTags(panels, 200, 299), 11);
    EXPECT_EQ(countOfTags(panels, 300, 399), 14);
}

TEST(WatermarkPanel, KnowsItsControlsByTheirOtherNames)
{
    const panels::Panels panels;

    EXPECT_EQ(panels.control(u"pubTWMPhotoProperties"_s), &panels.vwWatermark.pubPhotoProperties);
    EXPECT_EQ(panels.control(u"cbWatermarkFont"_s), &panels.vwWatermark.cbFontList);
    EXPECT_EQ(
        panels.control(u"cActionsIWMArrayController"_s),
        &panels.vwWatermark.cActionsTWMArrayController
    );
    EXPECT_EQ(panels.control(u"tvFileName"_s), &panels.vwWatermark.tvFileName);
}

TEST(WatermarkPanel, OffersAllPhotoPropertiesAndAnchors)
{
    const panels::Panels panels;

    EXPECT_EQ(panels.vwWatermark.pubPhotoProperties.count(), 18);
    EXPECT_EQ(panels.vwWatermark.scWaterMarkPos.count(), 9);
    EXPECT_EQ(panels.vwWatermark.scImageWaterMarkPos.count(), 9);
    EXPECT_EQ(panels.vwWatermark.pubRenderMethod.count(), 11);
}

TEST(WatermarkPanel, StartsWithTheFieldsOfOffBoxesDisabled)
{
    const panels::Panels panels;

    EXPECT_FALSE(panels.vwWatermark.tfTextShadowRadius.isEnabled());
    EXPECT_FALSE(panels.vwWatermark.pubOutlineThickness.isEnabled());
    EXPECT_TRUE(panels.vwWatermark.cwEmbossColor.isHidden());
    EXPECT_FALSE(panels.vwWatermark.cwEmbossColor.isEnabled());
    EXPECT_FALSE(panels.vwWatermark.tfLineScreenAngle.isEnabled());
}
