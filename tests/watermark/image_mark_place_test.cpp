// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_fixture.h"

#include <support/case_name.h>
#include <support/geometry_printing.h>
#include <support/text_printing.h>

using namespace brenvaldo;
using test::ImageWatermark;

namespace {

struct PlaceCase
{
    const char* name;
    int anchor;
    QRect area;

    friend void PrintTo(const PlaceCase& row, std::ostream* out) { *out << row.name; }
};

class MarkPlace : public ImageWatermark, public testing::WithParamInterface<PlaceCase>
{
};

} // namespace

TEST_P(MarkPlace, IsThatOfItsAnchorAndOffsets)
{
    panel.scImageWaterMarkPos.setSelectedSegment(GetParam().anchor);
    panel.tfImageXOffset.setStringValue(u"7"_s);
    panel.tfImageYOffset.setStringValue(u"4"_s);

    EXPECT_EQ(markedArea(marked()), GetParam().area);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MarkPlace,
    testing::Values(
        PlaceCase{"TopLeft", 0, {7, 4, 20, 10}},
        PlaceCase{"TopCentre", 1, {46, 4, 20, 10}},
        PlaceCase{"TopRight", 2, {93, 4, 20, 10}},
        PlaceCase{"MiddleLeft", 3, {7, 37, 20, 10}},
        PlaceCase{"Centre", 4, {57, 31, 20, 10}},
        PlaceCase{"MiddleRight", 5, {93, 37, 20, 10}},
        PlaceCase{"BottomLeft", 6, {7, 66, 20, 10}},
        PlaceCase{"BottomCentre", 7, {46, 66, 20, 10}},
        PlaceCase{"BottomRight", 8, {93, 66, 20, 10}}
    ),
    test::CaseName()
);

TEST_F(ImageWatermark, StandsOutOfThePhotoWithNegativeOffsets)
{
    panel.tfImageXOffset.setStringValue(u"-15"_s);
    panel.tfImageYOffset.setStringValue(u"-3"_s);

    EXPECT_EQ(markedArea(marked()), QRect(0, 0, 5, 7));
}

TEST_F(ImageWatermark, OutsideOfThePhotoLeavesNoMark)
{
    panel.tfImageXOffset.setStringValue(u"2000000000"_s);

    EXPECT_EQ(markedArea(marked()), QRect());
    EXPECT_EQ(done.value(0).word, u"OK"_s);
}

TEST_F(ImageWatermark, AtAPlaceThatIsNoneLeavesNoMark)
{
    QStringList titles;
    for (int index = 0; index < 11; ++index)
        titles.append(QString::number(index));
    panel.scImageWaterMarkPos.setTitles(titles);
    panel.scImageWaterMarkPos.setSelectedSegment(9);

    EXPECT_EQ(markedArea(marked()), QRect());
    EXPECT_EQ(done.value(0).word, u"OK"_s);
}

TEST_F(ImageWatermark, ByAnOperationThatIsNoneLeavesNoMark)
{
    QStringList titles;
    for (int index = 0; index < 12; ++index)
        titles.append(QString::number(index));
    panel.pubRenderMethod.setTitles(titles);
    panel.pubRenderMethod.selectItemAtIndex(11);

    EXPECT_EQ(markedArea(marked()), QRect());
    panel.cbPatternCheck.setState(1);
    EXPECT_EQ(markedArea(marked()), QRect());
    EXPECT_EQ(done.last().word, u"OK"_s);
}

namespace {

struct SizeCase
{
    const char* name;
    int row;
    const char* percent;
    QSize size;

    friend void PrintTo(const SizeCase& row, std::ostream* out) { *out << row.name; }
};

class MarkSize : public ImageWatermark, public testing::WithParamInterface<SizeCase>
{
};

} // namespace

TEST_P(MarkSize, FollowsRowAndPercent)
{
    panel.mxImageScaleProperty.selectRow(GetParam().row);
    panel.tfImageScalePC.setStringValue(QString::fromLatin1(GetParam().percent));

    EXPECT_EQ(markedArea(marked()), QRect(QPoint(), GetParam().size));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MarkSize,
    testing::Values(
        SizeCase{"Zero", 0, "0", {20, 10}},
        SizeCase{"Hundred", 0, "100", {20, 10}},
        SizeCase{"Half", 0, "50", {10, 5}},
        SizeCase{"Twice", 0, "200", {40, 20}},
        SizeCase{"TenThousandIsAsItStands", 0, "10000", {20, 10}},
        SizeCase{"HalfOfTheWidth", 1, "50", {60, 30}},
        SizeCase{"HalfOfTheHeight", 2, "50", {80, 40}},
        SizeCase{"OwnSize", 3, "50", {20, 10}},
        SizeCase{"LargerThanThePhoto", 0, "1000", {120, 80}}
    ),
    test::CaseName()
);

TEST_F(ImageWatermark, UpsideDownForANegativeScale)
{
    QImage image = solidImage(20, 10, Qt::white);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::red);
    image.setPixelColor(0, 1, Qt::red);
    image.setPixelColor(1, 1, Qt::red);
    useImage(image);
    panel.tfImageScalePC.setStringValue(u"-100"_s);

    const QImage result = marked();

    EXPECT_EQ(result.pixel(19, 9), qRgb(255, 0, 0));
    EXPECT_EQ(result.pixel(0, 0), qRgb(255, 255, 255));
}

TEST_F(ImageWatermark, TooLargeToBeDrawnLeavesNoMark)
{
    useImage(solidImage(2, 1, Qt::red));
    panel.mxImageScaleProperty.selectRow(0);
    panel.tfImageScalePC.setStringValue(u"2000000000"_s);

    EXPECT_EQ(markedArea(marked()), QRect());
    EXPECT_EQ(done.value(0).word, u"OK"_s);
}

TEST_F(ImageWatermark, KeepsItsPixelsWhateverTheResolutions)
{
    const QString photo = test::PhotoBuilder()
                              .size(120, 80)
                              .solid({100, 100, 100})
                              .dotsPerInch(300)
                              .format(test::PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));

    run({photo});

    EXPECT_EQ(markedArea(test::storedPixels(folder.path(u"a.png"_s))), QRect(0, 0, 20, 10));
}

TEST_F(ImageWatermark, TurnsAboutItsMiddleAndGrows)
{
    panel.tfImageWMAngle.setStringValue(u"90"_s);
    EXPECT_EQ(markedArea(marked()), QRect(0, 0, 10, 20));

    panel.tfImageWMAngle.setStringValue(u"45"_s);
    const QImage slanting = marked();
    const QRect area = markedArea(slanting);
    EXPECT_NEAR(area.width(), 22, 1);
    EXPECT_NEAR(area.height(), 22, 1);
    EXPECT_EQ(slanting.pixel(11, 11), qRgb(200, 40, 20));
    EXPECT_EQ(slanting.pixel(2, 2), qRgb(100, 100, 100));
}

TEST_F(ImageWatermark, TurnsCounterClockwise)
{
    QImage image = solidImage(20, 10, Qt::white);
    for (int y = 0; y < 10; ++y) {
        for (int x = 10; x < 20; ++x)
            image.setPixelColor(x, y, Qt::red);
    }
    useImage(image);
    panel.tfImageWMAngle.setStringValue(u"90"_s);

    const QImage result = marked();

    EXPECT_EQ(result.pixel(5, 3), qRgb(255, 0, 0));
    EXPECT_EQ(result.pixel(5, 16), qRgb(255, 255, 255));
}

TEST_F(ImageWatermark, IsUprightByItsOrientation)
{
    const QString path = test::PhotoBuilder()
                             .size(30, 12)
                             .solid({200, 40, 20})
                             .orientation(6)
                             .quality(100)
                             .write(sources.path(u"logo.jpg"_s));
    panel.tfWaterMarkImageFilePath.setStringValue(path);

    EXPECT_EQ(markedArea(marked()), QRect(0, 0, 12, 30));
}

TEST_F(ImageWatermark, StandsUprightOnAPhotoWithAnOrientation)
{
    const QString photo = test::PhotoBuilder()
                              .size(80, 120)
                              .solid({100, 100, 100})
                              .orientation(6)
                              .format(test::PhotoFormat::Tiff)
                              .write(sources.path(u"a.tif"_s));
    panel.scImageWaterMarkPos.setSelectedSegment(8);

    const auto shown = mark.setWatermarkImagePreview(photo);

    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->width(), 120);
    EXPECT_EQ(markedArea(shown->toQImage()), QRect(100, 70, 20, 10));
}
