// SPDX-License-Identifier: GPL-3.0-or-later
#include <script/arguments.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::script;
using brenvaldo::test::CaseName;

namespace {

struct Index
{
    const char* name;
    QString word;
    std::optional<int> index;
};

void PrintTo(const Index& row, std::ostream* out) { *out << row.name; }

} // namespace

class IndexBelowTen : public testing::TestWithParam<Index>
{
};

TEST_P(IndexBelowTen, IsReadFromDigitsAlone)
{
    EXPECT_EQ(indexBelow(10, GetParam().word), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    IndexBelowTen,
    testing::Values(
        Index{"First", u"0"_s, 0},
        Index{"Last", u"9"_s, 9},
        Index{"BehindTheLast", u"10"_s, std::nullopt},
        Index{"Negative", u"-1"_s, std::nullopt},
        Index{"Signed", u"+1"_s, std::nullopt},
        Index{"Empty", QString(), std::nullopt},
        Index{"DigitsAndLetters", u"1a"_s, std::nullopt},
        Index{"TooLargeForANumber", u"99999999999"_s, std::nullopt}
    ),
    CaseName()
);

class ItemOfQualities : public testing::TestWithParam<Index>
{
};

TEST_P(ItemOfQualities, IsAnIndexBeforeItIsATitle)
{
    const QStringList qualities{u"1"_s, u"2"_s, u"9"_s, u"best"_s, u"=worst"_s};

    EXPECT_EQ(itemOf(qualities, GetParam().word), GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    ItemOfQualities,
    testing::Values(
        Index{"IndexThatIsATitleToo", u"1"_s, 1},
        Index{"NumberThatIsNoIndex", u"9"_s, std::nullopt},
        Index{"NumberAfterAnEqualsSign", u"=9"_s, 2},
        Index{"TitleAfterAnEqualsSign", u"=1"_s, 0},
        Index{"Title", u"best"_s, 3},
        Index{"TitleInAnotherCase", u"Best"_s, std::nullopt},
        Index{"TitleThatBeginsWithAnEqualsSign", u"=worst"_s, 4},
        Index{"UnknownTitle", u"good"_s, std::nullopt},
        Index{"Empty", QString(), std::nullopt}
    ),
    CaseName()
);

TEST(Flag, IsZeroOrOne)
{
    EXPECT_EQ(flag(u"0"_s), 0);
    EXPECT_EQ(flag(u"1"_s), 1);
    EXPECT_EQ(flag(u"2"_s), std::nullopt);
    EXPECT_EQ(flag(u"on"_s), std::nullopt);
}

TEST(AbsolutePath, StartsAtTheCurrentFolder)
{
    EXPECT_EQ(absolutePath(u"a b.jpg"_s), QDir::currentPath() + u"/a b.jpg"_s);
    EXPECT_EQ(absolutePath(u"/photos/"_s), u"/photos"_s);
    EXPECT_EQ(absolutePath(u"/photos/../a"_s), u"/a"_s);
}
