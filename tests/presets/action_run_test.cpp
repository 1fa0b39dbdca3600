// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/keep_number.h>
#include <presets/action_run.h>

#include <platform/foundation/exceptions.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using brenvaldo::files::cKeepNumber;
using brenvaldo::platform::RangeError;
using brenvaldo::presets::renamedByActions;

namespace {

/// A row with name, padding, the action, the mark, and these fields.
QString row(const QString& action, const QStringList& fields)
{
    return (QStringList{u"My action"_qs, u"     "_qs, action, u"Brenvaldo9"_qs} + fields)
        .join(u'\t');
}

QString
renamed(const QString& name, const QStringList& rows, const QString& path = u"/x/none.jpg"_qs)
{
    QList<QStringList> list;
    for (const QString& each : rows)
        list.append({each});
    return renamedByActions(path, name, list);
}

QString numbering(const QString& digits)
{
    return row(u"Numbering"_qs, {u"5"_qs, u"<"_qs, u">"_qs, digits, u"0"_qs, u"1"_qs});
}

} // namespace

TEST(ActionRun, GivesNothingWithoutActions) { EXPECT_EQ(renamed(u"a.jpg"_qs, {}), u""_qs); }

TEST(ActionRun, ReadsEachFieldOfStrip)
{
    // count 1 at the end, "x" out, range 1 to 3, first piece at "-" with it, letters only,
    // preserved
    const QString strip = row(
        u"Strip"_qs,
        {u"1"_qs, u"1"_qs, u"x"_qs, u"1"_qs, u"3"_qs, u"-"_qs, u"2"_qs, u"2"_qs, u"1"_qs}
    );
    EXPECT_EQ(renamed(u"abxc-d1e2.jpg"_qs, {strip}), u"de.jpg"_qs);
}

TEST(ActionRun, ReadsTheSeparatorOfStripV2BehindItsList)
{
    const QString strip = row(
        u"StripV2"_qs,
        {u"1"_qs, u"1"_qs, u"x,y"_qs, u"1"_qs, u"1"_qs, u"3"_qs, u"-"_qs, u"2"_qs, u"2"_qs, u"1"_qs}
    );
    EXPECT_EQ(renamed(u"abxyc-d1e2.jpg"_qs, {strip}), u"de.jpg"_qs);
}

TEST(ActionRun, ReadsEachFieldOfReplace)
{
    const QString replace
        = row(u"Replace"_qs, {u"2"_qs, u"1"_qs, u"3"_qs, u"_"_qs, u"C"_qs, u"see"_qs});
    EXPECT_EQ(renamed(u"abcd.jpg"_qs, {replace}), u"_seeD.JPG"_qs);
}

TEST(ActionRun, ReadsTextsOfPrefixAndPostfix)
{
    const QString prefix = row(u"Prefix"_qs, {u"pre-"_qs, u""_qs, u"0"_qs, u"0"_qs});
    const QString postfix = row(u"Postfix"_qs, {u"-post"_qs, u""_qs, u"0"_qs, u"0"_qs, u"1"_qs});
    const QString behind = row(u"Postfix"_qs, {u"-post"_qs, u""_qs, u"0"_qs, u"0"_qs, u"0"_qs});
    EXPECT_EQ(renamed(u"a.jpg"_qs, {prefix, postfix}), u"pre-a-post.jpg"_qs);
    EXPECT_EQ(renamed(u"a.jpg"_qs, {behind, prefix}), u"pre-a.jpg-post"_qs);
}

TEST(ActionRun, ReadsEachFieldOfNumbering)
{
    cKeepNumber::sharedNumber().myNumberString = u"0"_qs;
    EXPECT_EQ(renamed(u"a.jpg"_qs, {numbering(u"3"_qs)}), u"a<001>.jpg"_qs);
    const QString before
        = row(u"Numbering"_qs, {u"5"_qs, u"p"_qs, u"q"_qs, u"2"_qs, u"1"_qs, u"1"_qs});
    EXPECT_EQ(renamed(u"a.jpg"_qs, {before}), u"p02qa.jpg"_qs);
}

TEST(ActionRun, AdvancesTheNumberAtEachNumbering)
{
    cKeepNumber::sharedNumber().myNumberString = u"0"_qs;
    const QStringList twice{numbering(u"2"_qs), numbering(u"2"_qs)};
    EXPECT_EQ(renamed(u"a.jpg"_qs, twice), u"a<01><02>.jpg"_qs);
    EXPECT_EQ(renamed(u"a.jpg"_qs, twice), u"a<03><04>.jpg"_qs);
}

TEST(ActionRun, TakesAnUnknownActionForNumbering)
{
    cKeepNumber::sharedNumber().myNumberString = u"0"_qs;
    const QString unknown
        = row(u"strip"_qs, {u"1"_qs, u"<"_qs, u">"_qs, u"2"_qs, u"0"_qs, u"1"_qs});
    EXPECT_EQ(renamed(u"a.jpg"_qs, {unknown}), u"a<01>.jpg"_qs);
}

TEST(ActionRun, RaisesWhereFieldsAreMissing)
{
    struct Needs
    {
        QString action;
        int fields;
    };
    const QList<Needs> all{
        {u"Strip"_qs, 9},
        {u"StripV2"_qs, 10},
        {u"Replace"_qs, 6},
        {u"Prefix"_qs, 4},
        {u"Postfix"_qs, 5},
        {u"Numbering"_qs, 6}};
    for (const Needs& needs : all) {
        const QStringList enough(needs.fields, u"0"_qs);
        EXPECT_NO_THROW(renamed(u"abc.jpg"_qs, {row(needs.action, enough)}))
            << needs.action.toStdString();
        EXPECT_THROW(renamed(u"abc.jpg"_qs, {row(needs.action, enough.mid(1))}), RangeError)
            << needs.action.toStdString();
    }
    EXPECT_THROW(renamed(u"abc.jpg"_qs, {u"only a name"_qs}), RangeError);
}

TEST(ActionRun, MisreadsAFieldThatHoldsATab)
{
    const QString strip = row(
        u"Strip"_qs,
        {u""_qs, u"0"_qs, u"x\ty"_qs, u"0"_qs, u"0"_qs, u""_qs, u"0"_qs, u"0"_qs, u"1"_qs}
    );
    // "y" is read as the start, the fragment as the stop, and so on; preserve reads as "0".
    EXPECT_EQ(renamed(u"xyz.x"_qs, {strip}), u"yz."_qs);
}
