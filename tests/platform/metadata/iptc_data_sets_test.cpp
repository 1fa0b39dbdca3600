// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/iptc_data_sets.h>
#include <support/case_name.h>
#include <support/iptc_block.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::metadata;
using brenvaldo::test::iptcDataSet;

namespace {

/// What says that the texts are UTF-8, and what starts a new block.
QByteArray utf8Mark() { return QByteArray("\x1C\x01\x5A\x00\x03\x1B%G", 8); }
QByteArray version() { return QByteArray("\x1C\x02\x00\x00\x02\x00\x04", 7); }

QByteArray changed(const QByteArray& iptc, const QList<IptcChange>& changes)
{
    return iptcWith(iptc, changes).value_or("damaged");
}

} // namespace

struct KeyCase
{
    const char* name;
    IptcKey key;
    int dataSet;

    friend void PrintTo(const KeyCase& row, std::ostream* out) { *out << row.name; }
};

class IptcKeys : public testing::TestWithParam<KeyCase>
{
};

TEST_P(IptcKeys, HaveADataSet)
{
    EXPECT_EQ(
        changed({}, {{GetParam().key, {u"value"_s}}}),
        utf8Mark() + version() + iptcDataSet(GetParam().dataSet, "value")
    );
}

INSTANTIATE_TEST_SUITE_P(
    All,
    IptcKeys,
    testing::Values(
        KeyCase{"Title", IptcKey::ObjectName, 5},
        KeyCase{"Keywords", IptcKey::Keywords, 25},
        KeyCase{"Creator", IptcKey::Byline, 80},
        KeyCase{"CreatorsTitle", IptcKey::BylineTitle, 85},
        KeyCase{"Headline", IptcKey::Headline, 105},
        KeyCase{"Source", IptcKey::Source, 115},
        KeyCase{"Copyright", IptcKey::CopyrightNotice, 116},
        KeyCase{"Caption", IptcKey::CaptionAbstract, 120}
    ),
    brenvaldo::test::CaseName{}
);

TEST(IptcWith, HasNoPlaceForUsageTerms)
{
    EXPECT_EQ(changed({}, {{IptcKey::RightsUsageTerms, {u"ask"_s}}}), QByteArray());
}

TEST(IptcWith, ReplacesEveryFormerValueAndKeepsTheOthers)
{
    const QByteArray before = utf8Mark() + iptcDataSet(25, "a") + iptcDataSet(25, "b")
        + iptcDataSet(90, "Bern") + QByteArray("\x1C\x08\x0A\0\1x", 6);

    EXPECT_EQ(
        changed(before, {{IptcKey::Keywords, {u"sea"_s, u"boat"_s}}}),
        utf8Mark() + iptcDataSet(25, "sea") + iptcDataSet(25, "boat") + iptcDataSet(90, "Bern")
            + QByteArray("\x1C\x08\x0A\0\1x", 6)
    );
}

TEST(IptcWith, TakesAKeyAway)
{
    const QByteArray before = utf8Mark() + iptcDataSet(25, "a") + iptcDataSet(90, "Bern");

    EXPECT_EQ(changed(before, {{IptcKey::Keywords, {}}}), utf8Mark() + iptcDataSet(90, "Bern"));
}

TEST(IptcWith, LeavesABlockThatNothingChangesIn)
{
    const QByteArray before = iptcDataSet(90, "Z\xFCrich");

    EXPECT_EQ(changed(before, {{IptcKey::Keywords, {}}}), before);
    EXPECT_EQ(changed({}, {{IptcKey::Keywords, {}}}), QByteArray());
}

TEST(IptcWith, ConvertsTheTextsOfOldPrograms)
{
    const QByteArray before = iptcDataSet(0, QByteArray("\0\xFC", 2)) + iptcDataSet(90, "Z\xFCrich")
        + iptcDataSet(125, "\xFC") + iptcDataSet(202, "\xFC");

    EXPECT_EQ(
        changed(before, {{IptcKey::Headline, {u"né"_s}}}),
        utf8Mark() + iptcDataSet(0, QByteArray("\0\xFC", 2)) + iptcDataSet(90, "Z\xC3\xBCrich")
            + iptcDataSet(105, "n\xC3\xA9") + iptcDataSet(125, "\xFC") + iptcDataSet(202, "\xFC")
    );
}

TEST(IptcWith, ConvertsTheLettersOfWindows)
{
    EXPECT_TRUE(changed(
                    iptcDataSet(90, "a\x80\x92\x9F\xA0"), {{IptcKey::Headline, {u"x"_s}}}
    ).contains(iptcDataSet(90, "a\xE2\x82\xAC\xE2\x80\x99\xC5\xB8\xC2\xA0")));
}

TEST(IptcWith, LeavesWhatIsSaidToBeUtf8)
{
    const QByteArray cut = iptcDataSet(90, "Z\xC3");

    EXPECT_EQ(
        changed(utf8Mark() + cut, {{IptcKey::Headline, {u"x"_s}}}),
        utf8Mark() + cut + iptcDataSet(105, "x")
    );
}

TEST(IptcWith, TakesOffThePadding)
{
    EXPECT_EQ(
        changed(
            utf8Mark() + iptcDataSet(90, "Bern") + QByteArray(3, '\0'),
            {{IptcKey::Source, {u"x"_s}}}
        ),
        utf8Mark() + iptcDataSet(90, "Bern") + iptcDataSet(115, "x")
    );
}

TEST(IptcWith, RefusesADamagedBlock)
{
    EXPECT_FALSE(iptcWith("no data set", {{IptcKey::Headline, {u"x"_s}}}));
    EXPECT_FALSE(iptcWith(iptcDataSet(90, "Bern").chopped(1), {{IptcKey::Headline, {u"x"_s}}}));
}

TEST(IptcDataSets, OfMoreThan32KHaveALongLength)
{
    for (const qsizetype length : {32767, 32768, 100000}) {
        const QString caption(length, u'x');

        const QByteArray block = changed({}, {{IptcKey::CaptionAbstract, {caption}}});

        const IptcDataSets read = readIptcDataSets(block);
        ASSERT_EQ(read.sets.size(), 3) << length;
        EXPECT_EQ(read.sets.last().number, 0x278);
        EXPECT_EQ(QString::fromUtf8(read.sets.last().value), caption);
        EXPECT_EQ(
            read.sets.last().whole.size() - read.sets.last().value.size(), length > 32767 ? 9 : 5
        );
        EXPECT_TRUE(read.rest.isEmpty());
    }
}

TEST(IptcDataSets, EndAtALengthThatNobodyCanHold)
{
    const QByteArray foreign("\x1C\x02\x78\x80\x05\0\0\0\0\1x", 11);
    const QByteArray none("\x1C\x02\x78\x80\x00x", 6);

    EXPECT_EQ(readIptcDataSets(iptcDataSet(90, "Bern") + foreign).sets.size(), 1);
    EXPECT_EQ(readIptcDataSets(iptcDataSet(90, "Bern") + none).rest, none);
}
