// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <platform/foundation/literals.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::test;
using namespace brenvaldo::watermark;

TEST(TextMark, OnAPhotoOfOnePixelWorks)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement.anchor = 4;

    EXPECT_EQ(markedPhoto(settings, plainPhoto(1, 1)).size(), QSize(1, 1));
    settings.isTiled = true;
    EXPECT_EQ(markedPhoto(settings, plainPhoto(1, 1)).size(), QSize(1, 1));
}

TEST(TextMark, OfHugeLettersIsRenderedOnlyWhereThePhotoShowsIt)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.fontSize = 20000;
    settings.text = block().repeated(50);
    settings.placement.anchor = 4;

    const platform::graphics::Image photo = plainPhoto();
    const platform::drawing::Stamp stamp = textMark(settings, settings.text, blockFont(), photo);

    EXPECT_LE(stamp.layer.width(), photo.width());
    EXPECT_LE(stamp.layer.height(), photo.height());
}

namespace {

struct HardCase
{
    const char* name;
    QString text;
    int fontSize = 20;
    const char* font = "DejaVu Sans";
    bool isTiled = false;
    TextEffect effect = TextEffect::Plain;

    friend void PrintTo(const HardCase& row, std::ostream* out) { *out << row.name; }
};

class HardTextMark : public testing::TestWithParam<HardCase>
{
};

QString longText() { return u"watermark "_s.repeated(1000); }

} // namespace

TEST_P(HardTextMark, MarksThePhotoWithoutALargerLayerThanItNeeds)
{
    const HardCase& row = GetParam();
    TextWatermarkSettings settings = whiteBlock();
    settings.text = row.text;
    settings.fontSize = row.fontSize;
    settings.isTiled = row.isTiled;
    settings.effect = row.effect;
    settings.placement.anchor = 4;
    const platform::graphics::Image photo = plainPhoto();

    const platform::drawing::Stamp stamp
        = textMark(settings, settings.text, QFont(QString::fromLatin1(row.font)), photo);

    EXPECT_GT(changedPixels(platform::drawing::stamped(photo, stamp).toQImage()), 0);
    EXPECT_LE(qint64{stamp.layer.width()} * stamp.layer.height(), 16'000'000);
    EXPECT_LE(stamp.layer.width(), 30'000);
}

INSTANTIATE_TEST_SUITE_P(
    Cases,
    HardTextMark,
    testing::Values(
        HardCase{.name = "TenThousandCharacters", .text = longText()},
        HardCase{.name = "TenThousandCharactersTiled", .text = longText(), .isTiled = true},
        HardCase{.name = "TwoThousandPoints", .text = block(), .fontSize = 2000},
        HardCase{
            .name = "TwoThousandPointsTiled",
            .text = block().repeated(3),
            .fontSize = 2000,
            .isTiled = true},
        HardCase{
            .name = "TwoThousandPointsEmbossed",
            .text = block(),
            .fontSize = 2000,
            .effect = TextEffect::Relief1},
        HardCase{.name = "MissingFont", .text = block(), .font = "No Such Font"},
        HardCase{.name = "RightToLeft", .text = u"\u0634\u0645\u0633 1"_s},
        HardCase{.name = "Emoji", .text = u"\U0001F600"_s},
        HardCase{.name = "NegativeFontSize", .text = block().repeated(9), .fontSize = -5}
    ),
    [](const auto& row) { return row.param.name; }
);
