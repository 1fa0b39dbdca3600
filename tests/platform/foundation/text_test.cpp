// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/exceptions.h>
#include <platform/foundation/text.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;
using brenvaldo::test::CaseName;

namespace {

struct CapitalizedCase
{
    const char* name;
    QString text;
    QString expected;
};

void PrintTo(const CapitalizedCase& capitalizedCase, std::ostream* out)
{
    *out << capitalizedCase.name;
}

class Capitalized : public testing::TestWithParam<CapitalizedCase>
{
};

const CapitalizedCase capitalizedCases[] = {
    {"Apostrophe", u"don't stop"_qs, u"Don't Stop"_qs},
    {"Dot", u"a.b"_qs, u"A.b"_qs},
    {"Digit", u"1st place"_qs, u"1St Place"_qs},
    {"HyphenAndUnderscore", u"foo-bar x_y"_qs, u"Foo-Bar X_Y"_qs},
    {"Accents", u"ÉCOLE élan"_qs, u"École Élan"_qs},
    {"FileName", u"IMG_0001 COPY"_qs, u"Img_0001 Copy"_qs},
    {"Brackets", u"a(b/c"_qs, u"A(B/C"_qs},
    {"CaretAndGraveAccent", u"a^b`c"_qs, u"A^b`c"_qs},
    {"CombiningMark", u"e\u0301LAN"_qs, u"E\u0301lan"_qs},
    {"TypographicApostrophe", u"don\u2019t"_qs, u"Don\u2019t"_qs},
    {"SoftHyphen", u"ab\u00ADcd"_qs, u"Ab\u00ADcd"_qs},
    {"BeyondTheBasicPlane", u"\U00010428\U00010400"_qs, u"\U00010400\U00010428"_qs},
    {"Empty", u""_qs, u""_qs},
};

} // namespace

TEST_P(Capitalized, StartsEveryWordWithACapital)
{
    EXPECT_EQ(capitalized(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Text, Capitalized, testing::ValuesIn(capitalizedCases), CaseName{});

TEST(CaseInsensitiveCompare, IgnoresCaseAndTheFormOfAccents)
{
    EXPECT_EQ(caseInsensitiveCompare(u"ABC"_qs, u"abc"_qs), 0);
    EXPECT_EQ(caseInsensitiveCompare(u"\u00E9"_qs, u"E\u0301"_qs), 0);
}

TEST(CaseInsensitiveCompare, SortsTheUnderscoreBeforeLetters)
{
    EXPECT_LT(caseInsensitiveCompare(u"_"_qs, u"A"_qs), 0);
    EXPECT_LT(caseInsensitiveCompare(u"_"_qs, u"a"_qs), 0);
}

TEST(CaseInsensitiveCompare, KnowsNoNumericOrder)
{
    EXPECT_GT(caseInsensitiveCompare(u"img9"_qs, u"img10"_qs), 0);
    EXPECT_LT(caseInsensitiveCompare(u"a"_qs, u"ab"_qs), 0);
}

TEST(SplitAtNewlines, SplitsAtEachNewlineCharacter)
{
    const QString text = u"a\nb\u000Bc\u000Cd\re\u0085f\u2028g\u2029h"_qs;

    EXPECT_EQ(splitAtNewlines(text), u"a b c d e f g h"_qs.split(u' '));
}

TEST(SplitAtNewlines, FindsAnEmptyPieceBetweenReturnAndLineFeed)
{
    EXPECT_EQ(splitAtNewlines(u"a\r\nb"_qs), (QStringList{u"a"_qs, u""_qs, u"b"_qs}));
    EXPECT_EQ(splitAtNewlines(u""_qs), QStringList{u""_qs});
    EXPECT_EQ(splitAtNewlines(u"a\n"_qs), (QStringList{u"a"_qs, u""_qs}));
}

TEST(ComponentsSeparatedBy, KeepsEmptyPieces)
{
    EXPECT_EQ(
        componentsSeparatedBy(u",a,,b"_qs, u","_qs), (QStringList{u""_qs, u"a"_qs, u""_qs, u"b"_qs})
    );
    EXPECT_EQ(componentsSeparatedBy(u""_qs, u","_qs), QStringList{u""_qs});
}

TEST(ComponentsSeparatedBy, LeavesTheTextWholeWithoutASeparator)
{
    EXPECT_EQ(componentsSeparatedBy(u"ab"_qs, u""_qs), QStringList{u"ab"_qs});
}

TEST(ReplacingOccurrences, ReplacesAllAndNothingForAnEmptyTarget)
{
    EXPECT_EQ(replacingOccurrences(u"abcab"_qs, u"ab"_qs, u"x"_qs), u"xcx"_qs);
    EXPECT_EQ(replacingOccurrences(u"abc"_qs, u""_qs, u"x"_qs), u"abc"_qs);
}

TEST(ContainsText, NeverFindsTheEmptyText)
{
    EXPECT_TRUE(containsText(u"photo"_qs, u"hot"_qs));
    EXPECT_FALSE(containsText(u"photo"_qs, u"HOT"_qs));
    EXPECT_FALSE(containsText(u"photo"_qs, u""_qs));
    EXPECT_FALSE(containsText(u""_qs, u""_qs));
}

TEST(HasSuffix, IsCaseSensitiveAndFalseForTheEmptyText)
{
    EXPECT_TRUE(hasSuffix(u"a.jpg"_qs, u".jpg"_qs));
    EXPECT_FALSE(hasSuffix(u"a.jpg"_qs, u".JPG"_qs));
    EXPECT_FALSE(hasSuffix(u"a.jpg"_qs, u""_qs));
}

TEST(Substring, CutsUpToTheEnd)
{
    EXPECT_EQ(substringFrom(u"abc"_qs, 1), u"bc"_qs);
    EXPECT_EQ(substringFrom(u"abc"_qs, 3), u""_qs);
    EXPECT_EQ(substringTo(u"abc"_qs, 3), u"abc"_qs);
    EXPECT_EQ(substring(u"abc"_qs, 1, 2), u"bc"_qs);
    EXPECT_EQ(substring(u"abc"_qs, 3, 0), u""_qs);
}

TEST(Substring, RaisesARangeErrorBeyondTheEnd)
{
    EXPECT_THROW(static_cast<void>(substringFrom(u"abc"_qs, 4)), RangeError);
    EXPECT_THROW(static_cast<void>(substringTo(u"abc"_qs, 4)), RangeError);
    EXPECT_THROW(static_cast<void>(substring(u"abc"_qs, 2, 2)), RangeError);
    EXPECT_THROW(static_cast<void>(substring(u"abc"_qs, 4, 0)), RangeError);
    EXPECT_THROW(static_cast<void>(substringFrom(u"abc"_qs, -1)), RangeError);
}
