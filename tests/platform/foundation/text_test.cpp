// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/exceptions.h>
#include <platform/foundation/text.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
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
    {"Apostrophe", u"don't stop"_s, u"Don't Stop"_s},
    {"Dot", u"a.b"_s, u"A.b"_s},
    {"Digit", u"1st place"_s, u"1St Place"_s},
    {"HyphenAndUnderscore", u"foo-bar x_y"_s, u"Foo-Bar X_Y"_s},
    {"Accents", u"ÉCOLE élan"_s, u"École Élan"_s},
    {"FileName", u"IMG_0001 COPY"_s, u"Img_0001 Copy"_s},
    {"Brackets", u"a(b/c"_s, u"A(B/C"_s},
    {"CaretAndGraveAccent", u"a^b`c"_s, u"A^b`c"_s},
    {"CombiningMark", u"e\u0301LAN"_s, u"E\u0301lan"_s},
    {"TypographicApostrophe", u"don\u2019t"_s, u"Don\u2019t"_s},
    {"SoftHyphen", u"ab\u00ADcd"_s, u"Ab\u00ADcd"_s},
    {"BeyondTheBasicPlane", u"\U00010428\U00010400"_s, u"\U00010400\U00010428"_s},
    {"Empty", u""_s, u""_s},
};

} // namespace

TEST_P(Capitalized, StartsEveryWordWithACapital)
{
    EXPECT_EQ(capitalized(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Text, Capitalized, testing::ValuesIn(capitalizedCases), CaseName{});

TEST(CaseInsensitiveCompare, IgnoresCaseAndTheFormOfAccents)
{
    EXPECT_EQ(caseInsensitiveCompare(u"ABC"_s, u"abc"_s), 0);
    EXPECT_EQ(caseInsensitiveCompare(u"\u00E9"_s, u"E\u0301"_s), 0);
}

TEST(CaseInsensitiveCompare, SortsTheUnderscoreBeforeLetters)
{
    EXPECT_LT(caseInsensitiveCompare(u"_"_s, u"A"_s), 0);
    EXPECT_LT(caseInsensitiveCompare(u"_"_s, u"a"_s), 0);
}

TEST(CaseInsensitiveCompare, KnowsNoNumericOrder)
{
    EXPECT_GT(caseInsensitiveCompare(u"img9"_s, u"img10"_s), 0);
    EXPECT_LT(caseInsensitiveCompare(u"a"_s, u"ab"_s), 0);
}

TEST(SplitAtNewlines, SplitsAtEachNewlineCharacter)
{
    const QString text = u"a\nb\u000Bc\u000Cd\re\u0085f\u2028g\u2029h"_s;

    EXPECT_EQ(splitAtNewlines(text), u"a b c d e f g h"_s.split(u' '));
}

TEST(SplitAtNewlines, FindsAnEmptyPieceBetweenReturnAndLineFeed)
{
    EXPECT_EQ(splitAtNewlines(u"a\r\nb"_s), (QStringList{u"a"_s, u""_s, u"b"_s}));
    EXPECT_EQ(splitAtNewlines(u""_s), QStringList{u""_s});
    EXPECT_EQ(splitAtNewlines(u"a\n"_s), (QStringList{u"a"_s, u""_s}));
}

TEST(ComponentsSeparatedBy, KeepsEmptyPieces)
{
    EXPECT_EQ(
        componentsSeparatedBy(u",a,,b"_s, u","_s), (QStringList{u""_s, u"a"_s, u""_s, u"b"_s})
    );
    EXPECT_EQ(componentsSeparatedBy(u""_s, u","_s), QStringList{u""_s});
}

TEST(ComponentsSeparatedBy, LeavesTheTextWholeWithoutASeparator)
{
    EXPECT_EQ(componentsSeparatedBy(u"ab"_s, u""_s), QStringList{u"ab"_s});
}

TEST(ReplacingOccurrences, ReplacesAllAndNothingForAnEmptyTarget)
{
    EXPECT_EQ(replacingOccurrences(u"abcab"_s, u"ab"_s, u"x"_s), u"xcx"_s);
    EXPECT_EQ(replacingOccurrences(u"abc"_s, u""_s, u"x"_s), u"abc"_s);
}

TEST(ContainsText, NeverFindsTheEmptyText)
{
    EXPECT_TRUE(containsText(u"photo"_s, u"hot"_s));
    EXPECT_FALSE(containsText(u"photo"_s, u"HOT"_s));
    EXPECT_FALSE(containsText(u"photo"_s, u""_s));
    EXPECT_FALSE(containsText(u""_s, u""_s));
}

TEST(HasSuffix, IsCaseSensitiveAndFalseForTheEmptyText)
{
    EXPECT_TRUE(hasSuffix(u"a.jpg"_s, u".jpg"_s));
    EXPECT_FALSE(hasSuffix(u"a.jpg"_s, u".JPG"_s));
    EXPECT_FALSE(hasSuffix(u"a.jpg"_s, u""_s));
}

TEST(Substring, CutsUpToTheEnd)
{
    EXPECT_EQ(substringFrom(u"abc"_s, 1), u"bc"_s);
    EXPECT_EQ(substringFrom(u"abc"_s, 3), u""_s);
    EXPECT_EQ(substringTo(u"abc"_s, 3), u"abc"_s);
    EXPECT_EQ(substring(u"abc"_s, 1, 2), u"bc"_s);
    EXPECT_EQ(substring(u"abc"_s, 3, 0), u""_s);
}

TEST(Substring, RaisesARangeErrorBeyondTheEnd)
{
    EXPECT_THROW(static_cast<void>(substringFrom(u"abc"_s, 4)), RangeError);
    EXPECT_THROW(static_cast<void>(substringTo(u"abc"_s, 4)), RangeError);
    EXPECT_THROW(static_cast<void>(substring(u"abc"_s, 2, 2)), RangeError);
    EXPECT_THROW(static_cast<void>(substring(u"abc"_s, 4, 0)), RangeError);
    EXPECT_THROW(static_cast<void>(substringFrom(u"abc"_s, -1)), RangeError);
}
