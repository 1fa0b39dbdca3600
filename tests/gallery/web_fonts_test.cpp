// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/web_fonts.h>

#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

TEST(FontLine, NamesTheNineFontsWithoutSerifs)
{
    EXPECT_EQ(fontLine(u"Catamaran"_s), u"font-family: 'Catamaran', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Exo"_s), u"font-family: 'Exo', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Exo 2"_s), u"font-family: 'Exo 2', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Kanit"_s), u"font-family: 'Kanit', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Libre Franklin"_s), u"font-family: 'Libre Franklin', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Raleway"_s), u"font-family: 'Raleway', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Roboto"_s), u"font-family: 'Roboto', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Rubik"_s), u"font-family: 'Rubik', sans-serif;"_s);
    EXPECT_EQ(fontLine(u"Taviraj"_s), u"font-family: 'Taviraj', sans-serif;"_s);
}

TEST(FontLine, NamesTrirongForAnyOtherTitle)
{
    EXPECT_EQ(fontLine(u"Trirong"_s), u"font-family: 'Trirong', serif;"_s);
    EXPECT_EQ(fontLine(u"exo"_s), u"font-family: 'Trirong', serif;"_s);
    EXPECT_EQ(fontLine({}), u"font-family: 'Trirong', serif;"_s);
}

TEST(FontLink, AsksTheFontServiceForAllWeights)
{
    EXPECT_EQ(
        fontLink(u"Libre Franklin"_s),
        u"<link href=\"https://fonts.googleapis.com/css?family=Libre+Franklin:300,400,500,700,900\" rel=\"stylesheet\">\n"_s
    );
    EXPECT_EQ(
        fontLink(u"Times"_s),
        u"<link href=\"https://fonts.googleapis.com/css?family=Trirong:300,400,500,700,900\" rel=\"stylesheet\">\n"_s
    );
}

TEST(FontWeight, IsThatOfItsTitle)
{
    EXPECT_EQ(fontWeight(u"Light"_s), u"300"_s);
    EXPECT_EQ(fontWeight(u"Regular"_s), u"400"_s);
    EXPECT_EQ(fontWeight(u"Medium"_s), u"500"_s);
    EXPECT_EQ(fontWeight(u"Bold"_s), u"700"_s);
    EXPECT_EQ(fontWeight(u"Black"_s), u"900"_s);
    EXPECT_EQ(fontWeight({}), u"900"_s);
}

TEST(FontWeight, OfBoldFileNamesIsThatOfBlackOnes)
{
    EXPECT_EQ(fileNameWeight(u"Light"_s), u"300"_s);
    EXPECT_EQ(fileNameWeight(u"Regular"_s), u"400"_s);
    EXPECT_EQ(fileNameWeight(u"Medium"_s), u"500"_s);
    EXPECT_EQ(fileNameWeight(u"Bold"_s), u"900"_s);
    EXPECT_EQ(fileNameWeight(u"Black"_s), u"900"_s);
}

TEST(AlignmentWord, IsRightForAllButTheFirstTwo)
{
    EXPECT_EQ(alignmentWord(0), u"left"_s);
    EXPECT_EQ(alignmentWord(1), u"center"_s);
    EXPECT_EQ(alignmentWord(2), u"right"_s);
    EXPECT_EQ(alignmentWord(-1), u"right"_s);
}
