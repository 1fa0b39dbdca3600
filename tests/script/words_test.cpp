// SPDX-License-Identifier: GPL-3.0-or-later
#include <script/words.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::script::wordsOfLine;
using brenvaldo::test::CaseName;

namespace {

struct Line
{
    const char* name;
    QByteArray text;
    QStringList words;
};

void PrintTo(const Line& line, std::ostream* out) { *out << line.name; }

struct FaultyLine
{
    const char* name;
    QByteArray text;
    QString fault;
};

void PrintTo(const FaultyLine& line, std::ostream* out) { *out << line.name; }

} // namespace

class WordsOfLine : public testing::TestWithParam<Line>
{
};

TEST_P(WordsOfLine, ArePartedAsTheTableTells)
{
    const auto found = wordsOfLine(GetParam().text);

    EXPECT_EQ(found.words, GetParam().words);
    EXPECT_EQ(found.fault, QString());
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    WordsOfLine,
    testing::Values(
        Line{"Empty", "", {}},
        Line{"BlanksOnly", " \t ", {}},
        Line{"OneWord", "photos", {u"photos"_s}},
        Line{"BlanksAndTabs", "  set \t tfSize   12 ", {u"set"_s, u"tfSize"_s, u"12"_s}},
        Line{"CarriageReturnAtTheEnd", "photos\r", {u"photos"_s}},
        Line{"QuotedBlanks", "set tf \"a  b\"", {u"set"_s, u"tf"_s, u"a  b"_s}},
        Line{"EmptyQuotes", "set tf \"\"", {u"set"_s, u"tf"_s, QString()}},
        Line{"AllEscapes", R"("\"\\\n\r\t")", {u"\"\\\n\r\t"_s}},
        Line{"CommentLine", "# set tf 1", {}},
        Line{"CommentAfterWords", "select 1 # the second", {u"select"_s, u"1"_s}},
        Line{"CommentAfterQuotes", "open \"a\" #b", {u"open"_s, u"a"_s}},
        Line{"NumberSignInsideAWord", "open a#1.jpg", {u"open"_s, u"a#1.jpg"_s}},
        Line{
            "NumberSignInQuotes",
            "set tf \"# no comment\"",
            {u"set"_s, u"tf"_s, u"# no comment"_s}},
        Line{"QuoteInsideABareWord", "set tf 24\"", {u"set"_s, u"tf"_s, u"24\""_s}},
        Line{"BackslashInABareWord", "set tf a\\nb", {u"set"_s, u"tf"_s, u"a\\nb"_s}},
        Line{"Umlauts", "set tf \xC3\x84pfel", {u"set"_s, u"tf"_s, u"\u00C4pfel"_s}},
        Line{"ByteOrderMark", "\xEF\xBB\xBFphotos", {u"photos"_s}}
    ),
    CaseName()
);

class FaultOfLine : public testing::TestWithParam<FaultyLine>
{
};

TEST_P(FaultOfLine, IsNamed)
{
    const auto found = wordsOfLine(GetParam().text);

    EXPECT_EQ(found.fault, GetParam().fault);
    EXPECT_TRUE(found.words.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    FaultOfLine,
    testing::Values(
        FaultyLine{"OpenQuote", "set tf \"a", u"a quote is not closed"_s},
        FaultyLine{"QuoteClosedByAnEscape", R"(set tf "a\")", u"a quote is not closed"_s},
        FaultyLine{"BackslashAtTheEnd", "\"a\\", u"a quote is not closed"_s},
        FaultyLine{"UnknownEscape", R"("\x")", u"unknown escape \\x"_s},
        FaultyLine{"WordsGluedToQuotes", "\"a\"b", u"a blank is missing after a quoted word"_s},
        FaultyLine{"InvalidUtf8", "set tf \xFF", u"the line is not UTF-8"_s},
        FaultyLine{"UnfinishedUtf8", "set tf Andr\xE9", u"the line is not UTF-8"_s},
        FaultyLine{"UnfinishedLongUtf8", "set tf a\xF0\x9F\x98", u"the line is not UTF-8"_s}
    ),
    CaseName()
);
