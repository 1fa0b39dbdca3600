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
        .side = u"0"_qs,
        .character = {},
        .start = {},
        .stop = {},
        .fragment = {},
        .removeMode = u"0"_qs,
        .allowedMode = u"0"_qs,
        .preserve = u"1"_qs};
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
const QString composed = u"\u00e9"_qs;
const QString decomposed = u"e\u0301"_qs;

ReplaceSettings nothingToReplace()
{
    return {
        .caseMode = u"0"_qs,
        .start = u"0"_qs,
        .stop = u"0"_qs,
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
        creation = cNSFileHandling().hGetCreationDateFile({.path = path, .mode = u"0"_qs});
    }

    TemporaryFolder folder;
    QString path = folder.write(u"a.txt"_qs, "12345");
    QString creation;
    const QString modification = u"15-Nov-2026T10-44-33"_qs;
};

} // namespace

TEST(StripCount, DropsAtTheStartOrTheEnd)
{
    StripSettings settings = nothingToStrip();
    settings.count = u"3"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpg"_qs, settings), u"d.jpg"_qs);
    settings.side = u"1"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpg"_qs, settings), u"a.jpg"_qs);
    settings.side = u"7"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpg"_qs, settings), u"a.jpg"_qs);
}

TEST(StripCount, NeverEmptiesAName)
{
    EXPECT_EQ(stripped(u"abc.jpg"_qs, &StripSettings::count, u"3"_qs, u"1"_qs), u"abc.jpg"_qs);
    EXPECT_EQ(stripped(u"abc.jpg"_qs, &StripSettings::count, u"9"_qs, u"1"_qs), u"abc.jpg"_qs);
    EXPECT_EQ(stripped(u"abc.jpg"_qs, &StripSettings::count, u"6"_qs, u"0"_qs), u"g"_qs);
}

TEST(StripCount, TellsNotSetByTheText)
{
    for (const QString& count : {u""_qs, u"0"_qs, u"00"_qs, u"x"_qs})
        EXPECT_EQ(stripped(u"abcd.jpg"_qs, &StripSettings::count, count, u"1"_qs), u"abcd.jpg"_qs);
}

TEST(StripCount, RaisesBelowZero)
{
    EXPECT_THROW(stripped(u"abcd.jpg"_qs, &StripSettings::count, u"-1"_qs, u"1"_qs), RangeError);
}

TEST(StripCharacter, RemovesTheWholeText)
{
    EXPECT_EQ(
        stripped(u"a_b__c_d.jpg"_qs, &StripSettings::character, u"__"_qs, u"1"_qs), u"a_bc_d.jpg"_qs
    );
    EXPECT_EQ(stripped(u"aXbx.Xx"_qs, &StripSettings::character, u"X"_qs, u"1"_qs), u"abx.Xx"_qs);
    EXPECT_EQ(stripped(u"aXbx.Xx"_qs, &StripSettings::character, u"X"_qs, u"0"_qs), u"abx.x"_qs);
}

TEST(StripV2, TakesAListOfTexts)
{
    StripSettings settings = nothingToStrip();
    settings.character = u"a;b,c~d"_qs;
    EXPECT_EQ(Text::hFileNameStripperV2(u"ab,c~dx.jpg"_qs, settings, u"0"_qs), u"x.jpg"_qs);
    EXPECT_EQ(Text::hFileNameStripperV2(u"a;bxc~d.jpg"_qs, settings, u"1"_qs), u"x.jpg"_qs);
    EXPECT_EQ(Text::hFileNameStripperV2(u"da;b,cx.jpg"_qs, settings, u"2"_qs), u"x.jpg"_qs);
    settings.character = u"b;;ac"_qs;
    EXPECT_EQ(Text::hFileNameStripperV2(u"abcx.jpg"_qs, settings, u"0"_qs), u"x.jpg"_qs);
}

TEST(StripRange, TakesTheSecondNumberAsALength)
{
    StripSettings settings = nothingToStrip();
    settings.start = u"3"_qs;
    settings.stop = u"5"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"abcdefghij"_qs, settings), u"abghij."_qs);
    EXPECT_EQ(Text::hFileNameStripper(u"abcdefgcdefh.x"_qs, settings), u"abgh.x"_qs);
    settings.start = u"1"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"abcdefghij.x"_qs, settings), u"efghij.x"_qs);
}

TEST(StripRange, RaisesBeyondTheEnd)
{
    StripSettings settings = nothingToStrip();
    settings.start = u"8"_qs;
    settings.stop = u"9"_qs;
    EXPECT_THROW(Text::hFileNameStripper(u"abcdefghij.jpg"_qs, settings), RangeError);
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
        {u""_qs, u"3"_qs, u"abcdef.x"_qs},
        {u"0"_qs, u"3"_qs, u"abcdef.x"_qs},
        {u"1"_qs, u""_qs, u"abcdef.x"_qs},
        {u"-5"_qs, u"0"_qs, u"abcdef.x"_qs},
        {u"3"_qs, u"2"_qs, u"abcdef.x"_qs},
        {u"2"_qs, u"2"_qs, u"acdef.x"_qs},
        {u"1"_qs, u"6"_qs, u"abcdef.x"_qs},
        {u"1"_qs, u"5"_qs, u"ef.x"_qs}};
    for (const Case& each : cases) {
        StripSettings settings = nothingToStrip();
        settings.start = each.start;
        settings.stop = each.stop;
        EXPECT_EQ(Text::hFileNameStripper(u"abcdef.x"_qs, settings), each.result)
            << each.start.toStdString() << " to " << each.stop.toStdString();
    }
}

TEST(StripRange, MeasuresTheBaseThoughItCutsTheWholeName)
{
    StripSettings settings = nothingToStrip();
    settings.preserve = u"0"_qs;
    settings.start = u"1"_qs;
    settings.stop = u"3"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"abc.jpeg"_qs, settings), u"abc.jpeg"_qs);
    EXPECT_EQ(Text::hFileNameStripper(u"abcd.jpeg"_qs, settings), u"cd.jpeg"_qs);
    // The count has shortened the name, not the length that is measured.
    settings.count = u"6"_qs;
    settings.stop = u"4"_qs;
    EXPECT_THROW(Text::hFileNameStripper(u"abcde.jp"_qs, settings), RangeError);
}

TEST_P(StripFragment, RemovesWhatStandsAtIt)
{
    const FragmentCase& fragmentCase = GetParam();
    const LogLines log;
    StripSettings settings = nothingToStrip();
    settings.fragment = u"-"_qs;
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
        FragmentCase{u"0", u"0", u"ab-cd.jpg", u"-cd.jpg"},
        FragmentCase{u"1", u"0", u"ab-cd.jpg", u"ab-"},
        FragmentCase{u"2", u"0", u"ab-cd.jpg", u"cd.jpg"},
        FragmentCase{u"3", u"0", u"ab-cd.jpg", u"ab"}
    )
);

TEST(StripFragmentLog, TellsThePieceWhereTheExtensionIsKept)
{
    const LogLines log;
    StripSettings settings = nothingToStrip();
    settings.fragment = u"-"_qs;
    settings.removeMode = u"1"_qs;
    Text::hFileNameStripper(u"ab-cd.jpg"_qs, settings);
    EXPECT_EQ(log.lines(), QStringList{u"cd"_qs});
    settings.preserve = u"0"_qs;
    Text::hFileNameStripper(u"ab-cd.jpg"_qs, settings);
    EXPECT_EQ(log.lines().size(), 1);
}

TEST(StripAllowed, KeepsLettersMarksAndDigits)
{
    const auto allowed = [](const QString& name, const QString& mode, const QString& preserve) {
        return stripped(name, &StripSettings::allowedMode, mode, preserve);
    };
    EXPECT_EQ(allowed(u"a1-é_9 b.jpg"_qs, u"1"_qs, u"1"_qs), u"a1é9b.jpg"_qs);
    EXPECT_EQ(allowed(u"a1-é_9 b.jpg"_qs, u"2"_qs, u"1"_qs), u"aéb.jpg"_qs);
    EXPECT_EQ(allowed(u"a1-é_9 b.jpg"_qs, u"0"_qs, u"1"_qs), u"a1-é_9 b.jpg"_qs);
    EXPECT_EQ(allowed(u"a.b"_qs, u"1"_qs, u"0"_qs), u"ab"_qs);
    EXPECT_EQ(allowed(u"..."_qs, u"1"_qs, u"0"_qs), u"..."_qs);
    EXPECT_EQ(allowed(u"123.jpg"_qs, u"2"_qs, u"1"_qs), u"123.jpg"_qs);
    EXPECT_EQ(
        allowed(u"x\u0915\u093f\U0001d49c\U0001f600"_qs, u"2"_qs, u"0"_qs),
        u"x\u0915\u093f\U0001d49c"_qs
    );
}

TEST(Strip, TakesItsStepsInOrder)
{
    const LogLines log;
    const StripSettings settings{
        .count = u"2"_qs,
        .side = u"0"_qs,
        .character = u"x"_qs,
        .start = u"1"_qs,
        .stop = u"3"_qs,
        .fragment = u"-"_qs,
        .removeMode = u"2"_qs,
        .allowedMode = u"2"_qs,
        .preserve = u"1"_qs};
    // "12axbcd-e1f": count "axbcd-e1f", character "abcd-e1f", range "cd-e1f", fragment "e1f".
    EXPECT_EQ(Text::hFileNameStripper(u"12axbcd-e1f.jpg"_qs, settings), u"ef.jpg"_qs);
}

TEST(Strip, AnswersInFormC)
{
    EXPECT_EQ(
        Text::hFileNameStripper(decomposed + u".jpg"_qs, nothingToStrip()), composed + u".jpg"_qs
    );
    StripSettings whole = nothingToStrip();
    whole.preserve = u"0"_qs;
    EXPECT_EQ(Text::hFileNameStripper(u"a."_qs + decomposed, whole), u"a."_qs + composed);
}

TEST(Replace, ChangesTheCaseOfBaseAndExtension)
{
    ReplaceSettings settings = nothingToReplace();
    const auto replaced = [&](const QString& mode) {
        settings.caseMode = mode;
        return Text::hReplaceText(u"my Photo.JpG"_qs, settings);
    };
    EXPECT_EQ(replaced(u"0"_qs), u"my Photo.JpG"_qs);
    EXPECT_EQ(replaced(u"1"_qs), u"my photo.jpg"_qs);
    EXPECT_EQ(replaced(u"2"_qs), u"MY PHOTO.JPG"_qs);
    EXPECT_EQ(replaced(u"3"_qs), u"My Photo.Jpg"_qs);
    EXPECT_EQ(replaced(u"4"_qs), u"my Photo.JpG"_qs);
    EXPECT_EQ(Text::hReplaceText(u"ab"_qs, settings), u"ab"_qs);
}

TEST(Replace, ChangesEachPlaceOfTheRangesText)
{
    ReplaceSettings settings = nothingToReplace();
    settings.start = u"2"_qs;
    settings.stop = u"3"_qs;
    settings.character = u"_"_qs;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_qs, settings), u"a_x_.bc"_qs);
    settings.start = u"0"_qs;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_qs, settings), u"abcxbc.bc"_qs);
    settings.start = u"6"_qs;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_qs, settings), u"abcxbc.bc"_qs);
    settings.start = u"5"_qs;
    EXPECT_EQ(Text::hReplaceText(u"abcxbc.bc"_qs, settings), u"a_x_.bc"_qs);
    settings.stop = u"4"_qs;
    EXPECT_THROW(Text::hReplaceText(u"abcxbc.bc"_qs, settings), RangeError);
    settings.stop = u"0"_qs;
    EXPECT_THROW(Text::hReplaceText(u"abcxbc.bc"_qs, settings), RangeError);
}

TEST(Replace, FindsInTheBaseOnly)
{
    ReplaceSettings settings = nothingToReplace();
    settings.find = u"a"_qs;
    settings.replacement = u"--"_qs;
    EXPECT_EQ(Text::hReplaceText(u"aAa.a"_qs, settings), u"--A--.a"_qs);
    settings.caseMode = u"2"_qs;
    EXPECT_EQ(Text::hReplaceText(u"aAa.a"_qs, settings), u"AAA.A"_qs);
    settings = nothingToReplace();
    EXPECT_EQ(Text::hReplaceText(decomposed + u".jpg"_qs, settings), composed + u".jpg"_qs);
}

TEST(Replace, TrimsInFormC)
{
    EXPECT_EQ(Text::hTrimReplace(decomposed + u"b"_qs, u"x"_qs, u"1"_qs, u"2"_qs), u"xb"_qs);
    EXPECT_THROW(Text::hTrimReplace(u"ab"_qs, u"x"_qs, u"3"_qs, u"2"_qs), RangeError);
}

TEST_F(NameAffixes, PrefixHasTheTextBehindEachValue)
{
    PrefixSettings settings{
        .text = u"_"_qs, .metadataKey = {}, .creationDate = u"0"_qs, .modificationDate = u"0"_qs};
    EXPECT_EQ(Text::hAddPrefix(path, u"n.x"_qs, settings), u"_n.x"_qs);
    settings.modificationDate = u"1"_qs;
    EXPECT_EQ(Text::hAddPrefix(path, u"n.x"_qs, settings), modification + u"_n.x"_qs);
    settings.creationDate = u"1"_qs;
    EXPECT_EQ(
        Text::hAddPrefix(path, u"n.x"_qs, settings), creation + u"_"_qs + modification + u"_n.x"_qs
    );
    settings.metadataKey = u"FSSize"_qs;
    EXPECT_EQ(
        Text::hAddPrefix(path, u"n.x"_qs, settings),
        creation + u"_"_qs + modification + u"_5_n.x"_qs
    );
    settings.metadataKey = u"FSTypeCode"_qs;
    EXPECT_EQ(
        Text::hAddPrefix(path, u"n.x"_qs, settings), creation + u"_"_qs + modification + u"_n.x"_qs
    );
}

TEST_F(NameAffixes, PrefixNeedsNoText)
{
    PrefixSettings settings{
        .text = {}, .metadataKey = {}, .creationDate = u"0"_qs, .modificationDate = u"0"_qs};
    EXPECT_EQ(Text::hAddPrefix(path, u"n"_qs, settings), u"n"_qs);
    EXPECT_EQ(Text::hAddPrefix(path, decomposed, settings), composed);
    settings.creationDate = u"1"_qs;
    EXPECT_EQ(Text::hAddPrefix(path, u"n.x"_qs, settings), creation + u"n.x"_qs);
    EXPECT_EQ(Text::hAddPrefix(path + u"?"_qs, u"n.x"_qs, settings), u"n.x"_qs);
}

TEST_F(NameAffixes, PostfixHasTheTextBeforeEachValue)
{
    PostfixSettings settings{
        .text = u"_"_qs,
        .metadataKey = {},
        .creationDate = u"1"_qs,
        .modificationDate = u"0"_qs,
        .beforeExtension = u"1"_qs};
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_qs, settings), u"n_"_qs + creation + u".x"_qs);
    settings.modificationDate = u"1"_qs;
    settings.metadataKey = u"FSName"_qs;
    EXPECT_EQ(
        Text::hAddPostfix(path, u"n.x"_qs, settings),
        u"n_"_qs + creation + u"_"_qs + modification + u"_a.txt.x"_qs
    );
}

TEST_F(NameAffixes, PostfixBeginsWithTheTextInAnyCase)
{
    PostfixSettings settings{
        .text = u"_"_qs,
        .metadataKey = {},
        .creationDate = u"0"_qs,
        .modificationDate = u"1"_qs,
        .beforeExtension = u"1"_qs};
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_qs, settings), u"n__"_qs + modification + u".x"_qs);
    settings.modificationDate = u"0"_qs;
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_qs, settings), u"n_.x"_qs);
    settings.metadataKey = u"FSSize"_qs;
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_qs, settings), u"n__5.x"_qs);
    EXPECT_EQ(Text::hAddPostfix(path + u"?"_qs, u"n.x"_qs, settings), u"n_.x"_qs);
}

TEST_F(NameAffixes, PostfixStandsBehindTheExtensionUnlessAsked)
{
    PostfixSettings settings{
        .text = u"_"_qs,
        .metadataKey = {},
        .creationDate = {},
        .modificationDate = {},
        .beforeExtension = u"0"_qs};
    EXPECT_EQ(Text::hAddPostfix(path, u"n.x"_qs, settings), u"n.x_"_qs);
    EXPECT_EQ(Text::hAddPostfix(path, decomposed + u".x"_qs, settings), composed + u".x_"_qs);
    settings.beforeExtension = u"1"_qs;
    EXPECT_EQ(Text::hAddPostfix(path, u"n"_qs, settings), u"n_"_qs);
    EXPECT_EQ(Text::hAddPostfix(path, decomposed + u".x"_qs, settings), composed + u"_.x"_qs);
}

TEST(Numbering, AdvancesBeforeItPrints)
{
    QString& number = cKeepNumber::sharedNumber().myNumberString;
    number = u"0"_qs;
    const NumberingSettings settings{
        .prefix = u"<"_qs, .postfix = u">"_qs, .digits = 3, .position = u"0"_qs};
    EXPECT_EQ(Text::hNumbering(u"n.x"_qs, settings), u"n<001>.x"_qs);
    EXPECT_EQ(Text::hNumbering(u"n.x"_qs, settings), u"n<002>.x"_qs);
    EXPECT_EQ(number, u"2"_qs);
    number = u"98"_qs;
    EXPECT_EQ(Text::hNumbering(u"n.x"_qs, settings), u"n<099>.x"_qs);
    EXPECT_EQ(Text::hNumbering(u"n.x"_qs, settings), u"n<>.x"_qs);
    EXPECT_EQ(number, u"100"_qs);
}

TEST(Numbering, DropsNumbersWithoutASparePlace)
{
    for (const int digits : {-1, 0, 1}) {
        cKeepNumber::sharedNumber().myNumberString = u"0"_qs;
        EXPECT_EQ(
            Text::hNumbering(
                u"n"_qs, {.prefix = {}, .postfix = {}, .digits = digits, .position = u"1"_qs}
            ),
            u"n"_qs
        );
    }
    cKeepNumber::sharedNumber().myNumberString = u"99"_qs;
    EXPECT_EQ(
        Text::hNumbering(u"n"_qs, {.prefix = {}, .postfix = {}, .digits = 2, .position = u"1"_qs}),
        u"n"_qs
    );
}

TEST(Numbering, StandsBehindTheBaseOrBeforeTheName)
{
    const auto numbered = [](const QString& name, const QString& position) {
        cKeepNumber::sharedNumber().myNumberString = u"6"_qs;
        return Text::hNumbering(
            name, {.prefix = u"a"_qs, .postfix = u"b"_qs, .digits = 2, .position = position}
        );
    };
    EXPECT_EQ(numbered(u"n"_qs, u"0"_qs), u"na07b."_qs);
    EXPECT_EQ(numbered(u"n.x"_qs, u"1"_qs), u"a07bn.x"_qs);
    EXPECT_EQ(numbered(decomposed + u".x"_qs, u"0"_qs), decomposed + u"a07b.x"_qs);
    EXPECT_EQ(numbered(decomposed, u"1"_qs), u"a07b"_qs + decomposed);
}

TEST(StringHelpers, KeepTheTextWhereARangeIsOutside)
{
    EXPECT_EQ(Text::hStripString(u""_qs, u"fLeft"_qs, 1), u""_qs);
    EXPECT_EQ(Text::hStripString(u"abc"_qs, u"fLeft"_qs, 2), u"c"_qs);
    EXPECT_EQ(Text::hStripString(u"abc"_qs, u"fRight"_qs, 2), u"a"_qs);
    EXPECT_EQ(Text::hStripString(u"abc"_qs, u"fRight"_qs, 4), u"abc"_qs);
    EXPECT_EQ(Text::hStripString(u"abc"_qs, u"fLeft"_qs, 4), u"abc"_qs);
    EXPECT_EQ(Text::hStripString(u"abc"_qs, u"left"_qs, 1), u"abc"_qs);
    EXPECT_EQ(Text::hSubsectionString(u"abcd"_qs, 1, 2), u"bc"_qs);
    EXPECT_EQ(Text::hSubsectionString(u"abcd"_qs, 3, 2), u"abcd"_qs);
    EXPECT_EQ(Text::hInsertStringInString(u"ad"_qs, u"bc"_qs, 1), u"abcd"_qs);
    EXPECT_EQ(Text::hInsertStringInString(u"ad"_qs, u"bc"_qs, 3), u"ad"_qs);
}

TEST(StringHelpers, DoWhatTheirNamesSay)
{
    EXPECT_EQ(Text::hRemoveNonLetters(u"a1 b"_qs, u"XX"_qs), u"a1 b"_qs);
    EXPECT_EQ(Text::hSplitString(u"a;;b"_qs, u";"_qs), (QStringList{u"a"_qs, u""_qs, u"b"_qs}));
    EXPECT_EQ(Text::hReplaceStringInString(u"abab"_qs, u"b"_qs, u"c"_qs), u"acac"_qs);
    EXPECT_EQ(Text::hConcatString(u"a"_qs, u"b"_qs, u"c"_qs), u"abc"_qs);
    EXPECT_TRUE(Text::hStringContainsString(u"abc"_qs, u"b"_qs));
    EXPECT_FALSE(Text::hStringContainsString(u"abc"_qs, u"B"_qs));
    EXPECT_TRUE(Text::hStringBeginsWith(u"abc"_qs, u"ab"_qs));
    EXPECT_FALSE(Text::hStringBeginsWith(u"abc"_qs, u"bc"_qs));
    EXPECT_TRUE(Text::hStringEndWith(u"abc"_qs, u"bc"_qs));
    EXPECT_FALSE(Text::hStringEndWith(u"abc"_qs, u"ab"_qs));
    EXPECT_EQ(Text::hRemoveWhiteSpace(u" a b\t\u00a0c "_qs), u"ab\t\u00a0c"_qs);
    EXPECT_EQ(Text::hReverseString(u"ab1"_qs), u"1ba"_qs);
}

TEST(StringHelpers, TurnTextsIntoBytesAndBack)
{
    EXPECT_EQ(
        Text::hNSDateToNSString(QDateTime({2026, 1, 5}, {10, 44, 33}, Qt::OffsetFromUTC, 7200)),
        u"2026-01-05 08:44:33 +0000"_qs
    );
    EXPECT_EQ(Text::hNSDataToNSString("h\xc3\xa9"), u"hé"_qs);
    EXPECT_EQ(Text::hNSDataToNSString("h\xe9"), std::nullopt);
    EXPECT_EQ(Text::hNSStringToNSData(u"abc"_qs), QByteArray("abc"));
    EXPECT_EQ(Text::hNSStringToNSData(u"é"_qs), std::nullopt);
    EXPECT_EQ(Text::hConvertNSdToNSstr("a\0b"), u"YQ=="_qs);
    EXPECT_EQ(Text::hConvertNSdToNSstr(QByteArray("abc")), u"YWJj"_qs);
    EXPECT_EQ(Text::hConvertNSstrToNSd(u"YWJj"_qs), QByteArray("abc"));
    EXPECT_EQ(Text::hConvertNSstrToNSd(u"!!!!"_qs), std::nullopt);
}
