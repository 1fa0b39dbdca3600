// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/file_handling.h>
#include <files/keep_number.h>
#include <files/ns_string_handling.h>

#include <platform/foundation/exceptions.h>

#include <support/log_lines.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDateTime>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;
using brenvaldo::platform::RangeError;
using brenvaldo::test::LogLines;
using brenvaldo::test::TemporaryFolder;

namespace {

using Text = cNSStringHandling;

/// Settings that leave a name as it is, with its extension kept.
StripSettings nothingToStrip()
{
    return {
        .count = {},
        .side = u"0"_s,
        .character = {},
        .start = {},
        .stop = {},
        .fragment = {},
        .removeMode = u"0"_s,
        .allowedMode = u"0"_s,
        .preserve = u"1"_s};
}

QString stripped(
    const QString& name,
    QString StripSettings::*setting,
    const QString& value,
    const QString& preserve
)
{
    StripSettings settings = nothingToStrip();
    settings.*setting = value;
    settings.preserve = preserve;
    return Text::hFileNameStripper(name, settings);
}

struct FragmentCase
{
    const char16_t* mode;
    const char16_t* preserve;
    const char16_t* name;
    const char16_t* result;
};

class StripFragment : public testing::TestWithParam<FragmentCase>
{
};

QString text(const char16_t* literal) { return QString::fromUtf16(literal); }

/// "é" as one character, and as "e" with an accent that follows.
const QString composed = u"\u00e9"_s;
const QString decomposed = u"e\u0301"_s;

ReplaceSettings nothingToReplace()
{
    return {
        .caseMode = u"0"_s,
        .start = u"0"_s,
        .stop = u"0"_s,
        .character = {},
        .find = {},
        .replacement = {}};
}

/// A file of a known modification date, "15-Nov-2026T10-44-33".
class NameAffixes : public testing::Test
{
protected:
    NameAffixes()
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadWrite)
            || !file.setFileTime(
                QDateTime({2026, 11, 15}, {10, 44, 33}), QFileDevice::FileModificationTime
            ))
            qFatal("the date can't be set");
        creation = cNSFileHandling().hGetCreationDateFile({.path = path, .mode = u"0"_s});
    }

    TemporaryFolder folder;
    QString path = folder.write(u"a.txt"_s, "12345");
    QString creation;
    const QString modification = u"15-Nov-2026T10-44-33"_s;
};

} // namespace

TEST(StripCount, DropsAtTheStartOrTheEnd)
{
    StripSettings settings = nothingToStrip();
    settings.count = u"3"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpg"_s, settings), u"d.jpg"_s);
    settings.side = u"1"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpg"_s, settings), u"a.jpg"_s);
    settings.side = u"7"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpg"_s, settings), u"a.jpg"_s);
}

TEST(StripCount, NeverEmptiesAName)
{
    EXPECT_EQ(stripped(u"abc.jpg"_s, &StripSettings::count, u"3"_s, u"1"_s), u"abc.jpg"_s);
    EXPECT_EQ(stripped(u"abc.jpg"_s, &StripSettings::count, u"9"_s, u"1"_s), u"abc.jpg"_s);
    EXPECT_EQ(stripped(u"abc.jpg"_s, &StripSettings::count, u"6"_s, u"0"_s), u"g"_s);
}

TEST(StripCount, TellsNotSetByTheText)
{
    for (const QString& count : {u""_s, u"0"_s, u"00"_s, u"x"_s})
        EXPECT_EQ(stripped(u"abcd.jpg"_s, &StripSettings::count, count, u"1"_s), u"abcd.jpg"_s);
}

TEST(StripCount, RaisesBelowZero)
{
    EXPECT_THROW(stripped(u"abcd.jpg"_s, &StripSettings::count, u"-1"_s, u"1"_s), RangeError);
}

TEST(StripCharacter, RemovesTheWholeText)
{
    EXPECT_EQ(
        stripped(u"a_b__c_d.jpg"_s, &StripSettings::character, u"__"_s, u"1"_s), u"a_bc_d.jpg"_s
    );
    EXPECT_EQ(stripped(u"aXbx.Xx"_s, &StripSettings::character, u"X"_s, u"1"_s), u"abx.Xx"_s);
    EXPECT_EQ(stripped(u"aXbx.Xx"_s, &StripSettings::character, u"X"_s, u"0"_s), u"abx.x"_s);
}

TEST(StripV2, TakesAListOfTexts)
{
    StripSettings settings = nothingToStrip();
    settings.character = u"a;b,c~d"_s;
    EXPECT_EQ(Text::hFileNameStripperV2(u"ab,c~dx.jpg"_s, settings, u"0"_s), u"x.jpg"_s);
    EXPECT_EQ(Text::hFileNameStripperV2(u"a;bxc~d.jpg"_s, settings, u"1"_s), u"x.jpg"_s);
    EXPECT_EQ(Text::hFileNameStripperV2(u"da;b,cx.jpg"_s, settings, u"2"_s), u"x.jpg"_s);
    settings.character = u"b;;ac"_s;
    EXPECT_EQ(Text::hFileNameStripperV2(u"abcx.jpg"_s, settings, u"0"_s), u"x.jpg"_s);
}

TEST(StripRange, TakesTheSecondNumberAsALength)
{
    StripSettings settings = nothingToStrip();
    settings.start = u"3"_s;
    settings.stop = u"5"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"abcdefghij"_s, settings), u"abghij."_s);
    EXPECT_EQ(Text::hFileNameStripper(u"abcdefgcdefh.x"_s, settings), u"abgh.x"_s);
    settings.start = u"1"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"abcdefghij.x"_s, settings), u"efghij.x"_s);
}

TEST(StripRange, RaisesBeyondTheEnd)
{
    StripSettings settings = nothingToStrip();
    settings.start = u"8"_s;
    settings.stop = u"9"_s;
    EXPECT_THROW(Text::hFileNameStripper(u"abcdefghij.jpg"_s, settings), RangeError);
}

TEST(StripRange, IsLeftOutUnlessBothNumbersAreSetAndInOrder)
{
    struct Case
    {
        QString start;
        QString stop;
        QString result;
    };
    const QList<Case> cases{
        {u""_s, u"3"_s, u"abcdef.x"_s},
        {u"0"_s, u"3"_s, u"abcdef.x"_s},
        {u"1"_s, u""_s, u"abcdef.x"_s},
        {u"-5"_s, u"0"_s, u"abcdef.x"_s},
        {u"3"_s, u"2"_s, u"abcdef.x"_s},
        {u"2"_s, u"2"_s, u"acdef.x"_s},
        {u"1"_s, u"6"_s, u"abcdef.x"_s},
        {u"1"_s, u"5"_s, u"ef.x"_s}};
    for (const Case& each : cases) {
        StripSettings settings = nothingToStrip();
        settings.start = each.start;
        settings.stop = each.stop;
        EXPECT_EQ(Text::hFileNameStripper(u"abcdef.x"_s, settings), each.result)
            << each.start.toStdString() << " to " << each.stop.toStdString();
    }
}

TEST(StripRange, MeasuresTheBaseThoughItCutsTheWholeName)
{
    StripSettings settings = nothingToStrip();
    settings.preserve = u"0"_s;
    settings.start = u"1"_s;
    settings.stop = u"3"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"abc.jpeg"_s, settings), u"abc.jpeg"_s);
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpeg"_s, settings), u"cd.jpeg"_s);
    // The count has shortened the name, not the length that is measured.
    settings.count = u"6"_s;
    settings.stop = u"4"_s;
    EXPECT_THROW(Text::hFileNameStripper(u"abcde.jp"_s, settings), RangeError);
}

TEST_P(StripFragment, RemovesWhatStandsAtIt)
{
    const FragmentCase& fragmentCase = GetParam();
    const LogLines log;
    StripSettings settings = nothingToStrip();
    settings.fragment = u"-"_s;
    settings.removeMode = text(fragmentCase.mode);
    settings.preserve = text(fragmentCase.preserve);
    EXPECT_EQ(
        Text::hFileNameStripper(text(fragmentCase.name), settings), text(fragmentCase.result)
    );
}

INSTANTIATE_TEST_SUITE_P(
    Modes,
    StripFragment,
    testing::Values(
        FragmentCase{u"0", u"1", u"ab-cd-ab.jpg", u"-cd-.jpg"},
        FragmentCase{u"1", u"1", u"ab-cd-ef.jpg", u"ab-cd-.jpg"},
        FragmentCase{u"2", u"1", u"ab-cd-ef.jpg", u"cd-ef.jpg"},
        FragmentCase{u"3", u"1", u"ab-cd-ef.jpg", u"ab-cd.jpg"},
        FragmentCase{u"0", u"1", u"abcd.jpg", u"abcd.jpg"},
        FragmentCase{u"1", u"1", u"abcd.jpg", u"abcd.jpg"},
        FragmentCase{u"2", u"1", u"abcd.jpg", u"abcd.jpg"},
        FragmentCase{u"3", u"1", u"abcd.jpg", u"abcd.jpg"},
        FragmentCase{u"3", u"1", u"-cd.jpg", u"-cd.jpg"},
        FragmentCase{u"3", u"0", u"-cd.jpg", u""},
        FragmentCase{u"0", u"0", u"abcd.jpg", u"abcd.jpg"},
        FragmentCase{u"1", u"0", u"abcd.jpg", u"abcd.jpg"},
        FragmentCase{u"2", u"0", u"ab-", u"ab-"},
        FragmentCase{u"0", u"0", u"ab-cd.jpg", u"-cd.jpg"},
        FragmentCase{u"1", u"0", u"ab-cd.jpg", u"ab-"},
        FragmentCase{u"2", u"0", u"ab-cd.jpg", u"cd.jpg"},
        FragmentCase{u"3", u"0", u"ab-cd.jpg", u"ab"}
    )
);

TEST(StripWithoutFragment, LeavesTheNameInEachMode)
{
    const LogLines log;
    StripSettings settings = nothingToStrip();
    for (const QString& preserve : {u"1"_s, u"0"_s}) {
        settings.preserve = preserve;
        for (const QString& mode : {u"0"_s, u"1"_s, u"2"_s, u"3"_s}) {
            settings.removeMode = mode;
            EXPECT_EQ(Text::hFileNameStripper(u"ab.jpg"_s, settings), u"ab.jpg"_s);
        }
    }
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST(StripFragmentLog, TellsThePieceWhereTheExtensionIsKept)
{
    const LogLines log;
    StripSettings settings = nothingToStrip();
    settings.fragment = u"-"_s;
    settings.removeMode = u"1"_s;
    Text::hFileNameStripper(u"ab-cd.jpg"_s, settings);
    EXPECT_EQ(log.lines(), QStringList{u"cd"_s});
    settings.preserve = u"0"_s;
    Text::hFileNameStripper(u"ab-cd.jpg"_s, settings);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(StripAllowed, KeepsLettersMarksAndDigits)
{
    const auto allowed = [](const QString& name, const QString& mode, const QString& preserve) {
        return stripped(name, &StripSettings::allowedMode, mode, preserve);
    };
    EXPECT_EQ(allowed(u"a1-é_9 b.jpg"_s, u"1"_s, u"1"_s), u"a1é9b.jpg"_s);
    EXPECT_EQ(allowed(u"a1-é_9 b.jpg"_s, u"2"_s, u"1"_s), u"aéb.jpg"_s);
    EXPECT_EQ(allowed(u"a1-é_9 b.jpg"_s, u"0"_s, u"1"_s), u"a1-é_9 b.jpg"_s);
    EXPECT_EQ(allowed(u"a.b"_s, u"1"_s, u"0"_s), u"ab"_s);
    EXPECT_EQ(allowed(u"..."_s, u"1"_s, u"0"_s), u"..."_s);
    EXPECT_EQ(allowed(u"123.jpg"_s, u"2"_s, u"1"_s), u"123.jpg"_s);
    EXPECT_EQ(
        allowed(u"x\u0915\u093f\U0001d49c\U0001f600"_s, u"2"_s, u"0"_s),
        u"x\u0915\u093f\U0001d49c"_s
    );
}

TEST(Strip, TakesItsStepsInOrder)
{
    const LogLines log;
    const StripSettings settings{
        .count = u"2"_s,
        .side = u"0"_s,
        .character = u"x"_s,
        .start = u"1"_s,
        .stop = u"3"_s,
        .fragment = u"-"_s,
        .removeMode = u"2"_s,
        .allowedMode = u"2"_s,
        .preserve = u"1"_s};
    // "12axbcd-e1f": count "axbcd-e1f", character "abcd-e1f", range "cd-e1f", fragment "e1f".
    EXPECT_EQ(Text::hFileNameStripper(u"12axbcd-e1f.jpg"_s, settings), u"ef.jpg"_s);
}

TEST(Strip, AnswersInFormC)
{
    EXPECT_EQ(
        Text::hFileNameStripper(decomposed + u".jpg"_s, nothingToStrip()), composed + u".jpg"_s
    );
    StripSettings whole = nothingToStrip();
    whole.preserve = u"0"_s;
    EXPECT_EQ(Text::hFileNameStripper(u"a."_s + decomposed, whole), u"a."_s + composed);
}

TEST(Replace, ChangesTheCaseOfBaseAndExtension)
{
    ReplaceSettings settings = nothingToReplace();
    const auto replaced = [&](const QString& mode) {
        settings.caseMode = mode;
        return Text::hReplaceText(u"my Photo.JpG"_s, settings);
    };
    EXPECT_EQ(replaced(u"0"_s), u"my Photo.JpG"_s);
    EXPECT_EQ(replaced(u"1"_s), u"my photo.jpg"_s);
    EXPECT_EQ(replaced(u"2"_s), u"MY PHOTO.JPG"_s);
    EXPECT_EQ(replaced(u"3"_s), u"My Photo.Jpg"_s);
    EXPECT_EQ(replaced(u"4"_s), u"my Photo.JpG"_s);
    EXPECT_EQ(Text::hReplaceText(u"ab"_s, settings), u"ab"_s);
}

TEST(Replace, ChangesEachPlaceOfTheRangesText)
{
    ReplaceSettings settings = nothingToReplace();
    settings.start = u"2"_s;
    settings.stop = u"3"_s;
    settings.character = u"_"_s;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_s, settings), u"a_x_.bc"_s);
    settings.start = u"0"_s;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_s, settings), u"abcxbc.bc"_s);
    settings.start = u"6"_s;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_s, settings), u"abcxbc.bc"_s);
    settings.start = u"5"_s;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_s, settings), u"a_x_.bc"_s);
    settings.stop = u"4"_s;
    EXPECT_THROW(Text::hReplaceText(u"abcxbc.bc"_s, settings), RangeError);
    settings.stop = u"0"_s;
    EXPECT_THROW(Text::hReplaceText(u"abcxbc.bc"_s, settings), RangeError);
}

TEST(Replace, FindsInTheBaseOnly)
{
    ReplaceSettings settings = nothingToReplace();
    settings.find = u"a"_s;
    settings.replacement = u"--"_s;
    EXPECT_EQ(Text::hReplaceText(u"aAa.a"_s, settings), u"--A--.a"_s);
    settings.caseMode = u"2"_s;
    EXPECT_EQ(Text::hReplaceText(u"aAa.a"_s, settings), u"AAA.A"_s);
    settings = nothingToReplace();
    EXPECT_EQ(Text::hReplaceText(decomposed + u".jpg"_s, settings), composed + u".jpg"_s);
}

TEST(Replace, TrimsInFormC)
{
    EXPECT_EQ(Text::hTrimReplace(decomposed + u"b"_s, u"x"_s, u"1"_s, u"2"_s), u"xb"_s);
    EXPECT_THROW(Text::hTrimReplace(u"ab"_s, u"x"_s, u"3"_s, u"2"_s), RangeError);
}

TEST_F(NameAffixes, PrefixHasTheTextBehindEachValue)
{
    PrefixSettings settings{
        .text = u"_"_s, .metadataKey = {}, .creationDate = u"0"_s, .modificationDate = u"0"_s};
    EXPECT_EQ(Text::hAddPrefix(path, u"n.x"_s, settings), u"_n.x"_s);
    settings.modificationDate = u"1"_s;
    EXPECT_EQ(Text::hAddPrefix(path, u"n.x"_s, settings), modification + u"_n.x"_s);
    settings.creationDate = u"1"_s;
    EXPECT_EQ(
        Text::hAddPrefix(path, u"n.x"_s, settings), creation + u"_"_s + modification + u"_n.x"_s
    );
    settings.metadataKey = u"FSSize"_s;
    EXPECT_EQ(
        Text::hAddPrefix(path, u"n.x"_s, settings), creation + u"_"_s + modification + u"_5_n.x"_s
    );
    settings.metadataKey = u"FSTypeCode"_s;
    EXPECT_EQ(
        Text::hAddPrefix(path, u"n.x"_s, settings), creation + u"_"_s + modification + u"_n.x"_s
    );
}

TEST_F(NameAffixes, PrefixNeedsNoText)
{
    PrefixSettings settings{
        .text = {}, .metadataKey = {}, .creationDate = u"0"_s, .modificationDate = u"0"_s};
    EXPECT_EQ(Text::hAddPrefix(path, u"n"_s, settings), u"n"_s);
    EXPECT_EQ(Text::hAddPrefix(path, decomposed, settings), composed);
    settings.creationDate = u"1"_s;
    EXPECT_EQ(Text::hAddPrefix(path, u"n.x"_s, settings), creation + u"n.x"_s);
    EXPECT_EQ(Text::hAddPrefix(path + u"?"_s, u"n.x"_s, settings), u"n.x"_s);
}

TEST_F(NameAffixes, PostfixHasTheTextBeforeEachValue)
{
    PostfixSettings settings{
        .text = u"_"_s,
        .metadataKey = {},
        .creationDate = u"1"_s,
        .modificationDate = u"0"_s,
        .beforeExtension = u"1"_s};
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_s, settings), u"n_"_s + creation + u".x"_s);
    settings.modificationDate = u"1"_s;
    settings.metadataKey = u"FSName"_s;
    EXPECT_EQ(
        Text::hAddPostfix(path, u"n.x"_s, settings),
        u"n_"_s + creation + u"_"_s + modification + u"_a.txt.x"_s
    );
}

TEST_F(NameAffixes, PostfixBeginsWithTheTextInAnyCase)
{
    PostfixSettings settings{
        .text = u"_"_s,
        .metadataKey = {},
        .creationDate = u"0"_s,
        .modificationDate = u"1"_s,
        .beforeExtension = u"1"_s};
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_s, settings), u"n__"_s + modification + u".x"_s);
    settings.modificationDate = u"0"_s;
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_s, settings), u"n_.x"_s);
    settings.metadataKey = u"FSSize"_s;
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_s, settings), u"n__5.x"_s);
    EXPECT_EQ(Text::hAddPostfix(path + u"?"_s, u"n.x"_s, settings), u"n_.x"_s);
}

TEST_F(NameAffixes, PostfixStandsBehindTheExtensionUnlessAsked)
{
    PostfixSettings settings{
        .text = u"_"_s,
        .metadataKey = {},
        .creationDate = {},
        .modificationDate = {},
        .beforeExtension = u"0"_s};
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_s, settings), u"n.x_"_s);
    EXPECT_EQ(Text::hAddPostfix(path, decomposed + u".x"_s, settings), composed + u".x_"_s);
    settings.beforeExtension = u"1"_s;
    EXPECT_EQ(Text::hAddPostfix(path, u"n"_s, settings), u"n_"_s);
    EXPECT_EQ(Text::hAddPostfix(path, decomposed + u".x"_s, settings), composed + u"_.x"_s);
}

TEST(Numbering, AdvancesBeforeItPrints)
{
    QString& number = cKeepNumber::sharedNumber().myNumberString;
    number = u"0"_s;
    const NumberingSettings settings{
        .prefix = u"<"_s, .postfix = u">"_s, .digits = 3, .position = u"0"_s};
    EXPECT_EQ(Text::hNumbering(u"n.x"_s, settings), u"n<001>.x"_s);
    EXPECT_EQ(Text::hNumbering(u"n.x"_s, settings), u"n<002>.x"_s);
    EXPECT_EQ(number, u"2"_s);
    number = u"98"_s;
    EXPECT_EQ(Text::hNumbering(u"n.x"_s, settings), u"n<099>.x"_s);
    EXPECT_EQ(Text::hNumbering(u"n.x"_s, settings), u"n<>.x"_s);
    EXPECT_EQ(number, u"100"_s);
}

TEST(Numbering, DropsNumbersWithoutASparePlace)
{
    for (const int digits : {-1, 0, 1}) {
        cKeepNumber::sharedNumber().myNumberString = u"0"_s;
        EXPECT_EQ(
            Text::hNumbering(
                u"n"_s, {.prefix = {}, .postfix = {}, .digits = digits, .position = u"1"_s}
            ),
            u"n"_s
        );
    }
    cKeepNumber::sharedNumber().myNumberString = u"99"_s;
    EXPECT_EQ(
        Text::hNumbering(u"n"_s, {.prefix = {}, .postfix = {}, .digits = 2, .position = u"1"_s}),
        u"n"_s
    );
}

TEST(Numbering, StandsBehindTheBaseOrBeforeTheName)
{
    const auto numbered = [](const QString& name, const QString& position) {
        cKeepNumber::sharedNumber().myNumberString = u"6"_s;
        return Text::hNumbering(
            name, {.prefix = u"a"_s, .postfix = u"b"_s, .digits = 2, .position = position}
        );
    };
    EXPECT_EQ(numbered(u"n"_s, u"0"_s), u"na07b."_s);
    EXPECT_EQ(numbered(u"n.x"_s, u"1"_s), u"a07bn.x"_s);
    EXPECT_EQ(numbered(decomposed + u".x"_s, u"0"_s), decomposed + u"a07b.x"_s);
    EXPECT_EQ(numbered(decomposed, u"1"_s), u"a07b"_s + decomposed);
}

TEST(StringHelpers, KeepTheTextWhereARangeIsOutside)
{
    EXPECT_EQ(Text::hStripString(u""_s, u"fLeft"_s, 1), u""_s);
    EXPECT_EQ(Text::hStripString(u"abc"_s, u"fLeft"_s, 2), u"c"_s);
    EXPECT_EQ(Text::hStripString(u"abc"_s, u"fRight"_s, 2), u"a"_s);
    EXPECT_EQ(Text::hStripString(u"abc"_s, u"fRight"_s, 4), u"abc"_s);
    EXPECT_EQ(Text::hStripString(u"abc"_s, u"fLeft"_s, 4), u"abc"_s);
    EXPECT_EQ(Text::hStripString(u"abc"_s, u"left"_s, 1), u"abc"_s);
    EXPECT_EQ(Text::hSubsectionString(u"abcd"_s, 1, 2), u"bc"_s);
    EXPECT_EQ(Text::hSubsectionString(u"abcd"_s, 3, 2), u"abcd"_s);
    EXPECT_EQ(Text::hInsertStringInString(u"ad"_s, u"bc"_s, 1), u"abcd"_s);
    EXPECT_EQ(Text::hInsertStringInString(u"ad"_s, u"bc"_s, 3), u"ad"_s);
}

TEST(StringHelpers, DoWhatTheirNamesSay)
{
    EXPECT_EQ(Text::hRemoveNonLetters(u"a1 b"_s, u"XX"_s), u"a1 b"_s);
    EXPECT_EQ(Text::hSplitString(u"a;;b"_s, u";"_s), (QStringList{u"a"_s, u""_s, u"b"_s}));
    EXPECT_EQ(Text::hReplaceStringInString(u"abab"_s, u"b"_s, u"c"_s), u"acac"_s);
    EXPECT_EQ(Text::hConcatString(u"a"_s, u"b"_s, u"c"_s), u"abc"_s);
    EXPECT_TRUE(Text::hStringContainsString(u"abc"_s, u"b"_s));
    EXPECT_TRUE(Text::hStringContainsString(u"abc"_s, u"B"_s));
    EXPECT_FALSE(Text::hStringContainsString(u"abc"_s, u"d"_s));
    EXPECT_FALSE(Text::hStringContainsString(u"abc"_s, u""_s));
    EXPECT_TRUE(Text::hStringContainsString(decomposed, composed));
    EXPECT_TRUE(Text::hStringContainsString(composed, decomposed));
    EXPECT_FALSE(Text::hStringBeginsWith(u"abc"_s, u""_s));
    EXPECT_TRUE(Text::hStringBeginsWith(u"abc"_s, u"ab"_s));
    EXPECT_FALSE(Text::hStringBeginsWith(u"abc"_s, u"bc"_s));
    EXPECT_TRUE(Text::hStringEndWith(u"abc"_s, u"bc"_s));
    EXPECT_FALSE(Text::hStringEndWith(u"abc"_s, u"ab"_s));
    EXPECT_TRUE(Text::hStringEndWith(u"abc"_s, u""_s));
    EXPECT_THROW(Text::hStringEndWith(u"abc"_s, u"_abc"_s), RangeError);
    EXPECT_EQ(Text::hRemoveWhiteSpace(u" a b\t\u00a0c "_s), u"ab\t\u00a0c"_s);
    EXPECT_EQ(Text::hReverseString(u"ab1"_s), u"1ba"_s);
}

TEST(StringHelpers, TurnTextsIntoBytesAndBack)
{
    EXPECT_EQ(
        Text::hNSDateToNSString(QDateTime({2026, 1, 5}, {10, 44, 33}, Qt::OffsetFromUTC, 7200)),
        u"2026-01-05 08:44:33 +0000"_s
    );
    EXPECT_EQ(Text::hNSDataToNSString("h\xc3\xa9"), u"hé"_s);
    EXPECT_EQ(Text::hNSDataToNSString("h\xe9"), std::nullopt);
    EXPECT_EQ(Text::hNSStringToNSData(u"abc"_s), QByteArray("abc"));
    EXPECT_EQ(Text::hNSStringToNSData(u"é"_s), std::nullopt);
    EXPECT_EQ(Text::hConvertNSdToNSstr("a\0b"), u"YQ=="_s);
    EXPECT_EQ(Text::hConvertNSdToNSstr(QByteArray("abc")), u"YWJj"_s);
    EXPECT_EQ(Text::hConvertNSstrToNSd(u"YWJj"_s), QByteArray("abc"));
    EXPECT_EQ(Text::hConvertNSstrToNSd(u"YQ=="_s), QByteArray("a"));
    EXPECT_EQ(Text::hConvertNSstrToNSd(u"YQ"_s), std::nullopt);
    EXPECT_EQ(Text::hConvertNSstrToNSd(u"!!!!"_s), std::nullopt);
}
