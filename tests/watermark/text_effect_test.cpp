// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/text_effect.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::watermark;

namespace {

struct EffectCase
{
    const char* name;
    int index;
    TextEffect effect;
    TextFill fill;
    const char* texture;
    bool castsGlyphShadow = false;
    bool hasReliefColor = false;

    friend void PrintTo(const EffectCase& row, std::ostream* out) { *out << row.name; }
};

class TextEffects : public testing::TestWithParam<EffectCase>
{
};

} // namespace

TEST_P(TextEffects, FollowTheTable)
{
    const EffectCase& row = GetParam();

    const TextEffect effect = textEffectOfIndex(row.index);

    EXPECT_EQ(effect, row.effect);
    const TextEffectTraits& traits = traitsOf(effect);
    EXPECT_EQ(traits.fill, row.fill);
    EXPECT_EQ(QString::fromUtf16(traits.texture), QString::fromLatin1(row.texture));
    EXPECT_EQ(traits.isRelief(), *row.texture != '\0');
    EXPECT_EQ(traits.castsGlyphShadow, row.castsGlyphShadow);
    EXPECT_EQ(traits.hasReliefColor, row.hasReliefColor);
    EXPECT_EQ(traits.fillsWithPhoto(), row.index == 7 || row.index == 8);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextEffects,
    testing::Values(
        EffectCase{"Plain", 0, TextEffect::Plain, TextFill::Color, "", true},
        EffectCase{"First", 1, TextEffect::Relief1, TextFill::White, "texture1"},
        EffectCase{"Second", 2, TextEffect::Relief2, TextFill::White, "texture2"},
        EffectCase{"Third", 3, TextEffect::Relief3, TextFill::White, "texture3"},
        EffectCase{"Fourth", 4, TextEffect::Relief4, TextFill::White, "texture4"},
        EffectCase{"Fifth", 5, TextEffect::Relief5, TextFill::White, "texture5"},
        EffectCase{
            "ColouredBall", 6, TextEffect::ColoredRelief, TextFill::White, "texture6", false, true},
        EffectCase{"Photo", 7, TextEffect::Photo, TextFill::Photo, "", true},
        EffectCase{"NoirPhotoHasNoGlyphShadow", 8, TextEffect::NoirPhoto, TextFill::NoirPhoto, ""},
        EffectCase{"Ninth", 9, TextEffect::Relief8, TextFill::White, "texture8"},
        EffectCase{"Beyond", 12, TextEffect::Relief8, TextFill::White, "texture8"},
        EffectCase{"None", -1, TextEffect::Relief8, TextFill::White, "texture8"}
    ),
    brenvaldo::test::CaseName()
);
