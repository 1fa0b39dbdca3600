// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/unit_rules.h>

#include <support/case_name.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using brenvaldo::test::CaseName;

namespace {

struct UnitCase
{
    const char* name;
    float value;
    QString unit;
    float dotsPerInch;
    int expected;
};

void PrintTo(const UnitCase& unitCase, std::ostream* out) { *out << unitCase.name; }

class PixelsOf : public testing::TestWithParam<UnitCase>
{
};

const UnitCase unitCases[] = {
    {"Pixel", 12.9F, u"pixel"_s, 300, 12},
    {"NegativePixel", -12.9F, u"pixel"_s, 300, -12},
    {"Millimetre", 10.0F, u"mm"_s, 300, 118}, // 118.11
    {"MillimetreTruncates", 9.99F, u"mm"_s, 300, 117}, // 117.99
    {"Centimetre", 1.0F, u"cm"_s, 300, 118},
    {"CentimetreTruncates", 0.5F, u"cm"_s, 72, 14}, // 14.17
    {"CentimetreGainsInSinglePrecision", 12.7F, u"cm"_s, 72, 360}, // 359.99
    {"Inch", 2.0F, u"inch"_s, 300, 600},
    {"InchLosesInSinglePrecision", 1.0F, u"inch"_s, 72, 71},
    {"PicaRoundsDown", 1.0F, u"pica"_s, 300, 50}, // 49.81
    {"PicaRounds", 1.0F, u"pica"_s, 72, 12}, // 11.95
    {"PicaNarrowsBeforeItRounds", 388.375F, u"pica"_s, 79, 5095}, // 5094.4999
    {"NegativePicaRounds", -1.0F, u"pica"_s, 72, -12},
    {"Punt", 13.0F, u"punt"_s, 300, 54}, // 54.17
    {"PuntLosesInSinglePrecision", 12.0F, u"punt"_s, 300, 49},
    {"PuntTruncates", 1.0F, u"punt"_s, 300, 4}, // 4.17
    {"UnknownUnit", 12.9F, u"foot"_s, 300, 12},
    {"UnitOfAnotherCase", 12.9F, u"MM"_s, 300, 12},
};

} // namespace

TEST_P(PixelsOf, FollowsTheTable)
{
    const UnitCase& row = GetParam();

    EXPECT_EQ(pixelsOf(row.value, row.unit, row.dotsPerInch), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, PixelsOf, testing::ValuesIn(unitCases), CaseName());

TEST(NeedsResolution, IsFalseForPixelsAlone)
{
    EXPECT_FALSE(needsResolution(u"pixel"_s));
    EXPECT_TRUE(needsResolution(u"mm"_s));
    EXPECT_TRUE(needsResolution(u"foot"_s));
}
