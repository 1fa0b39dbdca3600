// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/keep_number.h>
#include <presets/action_run.h>

#include <platform/foundation/exceptions.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <tuple>

using namespace Qt::StringLiterals;
using brenvaldo::files::cKeepNumber;
using brenvaldo::platform::RangeError;
using brenvaldo::presets::renamedByActions;

namespace {

/// A row with name, padding, the action, the mark, and these fields.
QString row(const QString& action, const QStringList& fields)
{
    return (QStringList{u"My action"_s, u"     "_s, action, u"Brenvaldo9"_s} + fields).join(u'\t');
}

QString
renamed(const QString& name, const QStringList& rows, const QString& path = u"/x/none.jpg"_s)
{
    QList<QStringList> list;
    for (const QString& each : rows)
        list.append({each});
    return renamedByActions(path, name, list);
}

QString numbering(const QString& digits)
{
    return row(u"Numbering"_s, {u"5"_s, u"<"_s, u">"_s, digits, u"0"_s, u"1"_s});
}

} // namespace

TEST(ActionRun, GivesNothingWithoutActions) { EXPECT_EQ(renamed(u"a.jpg"_s, {}), u""_s); }

TEST(ActionRun, ReadsEachFieldOfStrip)
{
    // count 1 at the end, "x" out, range 1 to 3, first piece at "-" with it, letters only,
    // preserved
    const QString strip
        = row(u"Strip"_s, {u"1"_s, u"1"_s, u"x"_s, u"1"_s, u"3"_s, u"-"_s, u"2"_s, u"2"_s, u"1"_s});
    EXPECT_EQ(renamed(u"abxc-d1e2.jpg"_s, {strip}), u"de.jpg"_s);
}

TEST(ActionRun, ReadsTheSeparatorOfStripV2BehindItsList)
{
    const QString strip = row(
        u"StripV2"_s,
        {u"1"_s, u"1"_s, u"x,y"_s, u"1"_s, u"1"_s, u"3"_s, u"-"_s, u"2"_s, u"2"_s, u"1"_s}
    );
    EXPECT_EQ(renamed(u"abxyc-d1e2.jpg"_s, {strip}), u"de.jpg"_s);
}

TEST(ActionRun, ReadsEachFieldOfReplace)
{
    const QString replace = row(u"Replace"_s, {u"2"_s, u"1"_s, u"3"_s, u"_"_s, u"C"_s, u"see"_s});
    EXPECT_EQ(renamed(u"abcd.jpg"_s, {replace}), u"_seeD.JPG"_s);
}

TEST(ActionRun, ReadsTextsOfPrefixAndPostfix)
{
    const QString prefix = row(u"Prefix"_s, {u"pre-"_s, u""_s, u"0"_s, u"0"_s});
    const QString postfix = row(u"Postfix"_s, {u"-post"_s, u""_s, u"0"_s, u"0"_s, u"1"_s});
    const QString behind = row(u"Postfix"_s, {u"-post"_s, u""_s, u"0"_s, u"0"_s, u"0"_s});
    EXPECT_EQ(renamed(u"a.jpg"_s, {prefix, postfix}), u"pre-a-post.jpg"_s);
    EXPECT_EQ(renamed(u"a.jpg"_s, {behind, prefix}), u"pre-a.jpg-post"_s);
}

TEST(ActionRun, ReadsEachFieldOfNumbering)
{
    cKeepNumber::sharedNumber().myNumberString = u"0"_s;
    EXPECT_EQ(renamed(u"a.jpg"_s, {numbering(u"3"_s)}), u"a<001>.jpg"_s);
    const QString before = row(u"Numbering"_s, {u"5"_s, u"p"_s, u"q"_s, u"2"_s, u"1"_s, u"1"_s});
    EXPECT_EQ(renamed(u"a.jpg"_s, {before}), u"p02qa.jpg"_s);
}

TEST(ActionRun, AdvancesTheNumberAtEachNumbering)
{
    cKeepNumber::sharedNumber().myNumberString = u"0"_s;
    const QStringList twice{numbering(u"2"_s), numbering(u"2"_s)};
    EXPECT_EQ(renamed(u"a.jpg"_s, twice), u"a<01><02>.jpg"_s);
    EXPECT_EQ(renamed(u"a.jpg"_s, twice), u"a<03><04>.jpg"_s);
}

TEST(ActionRun, TakesAnUnknownActionForNumbering)
{
    cKeepNumber::sharedNumber().myNumberString = u"0"_s;
    const QString unknown = row(u"strip"_s, {u"1"_s, u"<"_s, u">"_s, u"2"_s, u"0"_s, u"1"_s});
    EXPECT_EQ(renamed(u"a.jpg"_s, {unknown}), u"a<01>.jpg"_s);
}

TEST(ActionRun, RaisesWhereFieldsAreMissing)
{
    struct Needs
    {
        QString action;
        int fields;
    };
    const QList<Needs> all{
        {u"Strip"_s, 9},
        {u"StripV2"_s, 10},
        {u"Replace"_s, 6},
        {u"Prefix"_s, 4},
        {u"Postfix"_s, 5},
        {u"Numbering"_s, 6}};
    for (const Needs& needs : all) {
        const QStringList enough(needs.fields, u"0"_s);
        EXPECT_NO_THROW(renamed(u"abc.jpg"_s, {row(needs.action, enough)}))
            << needs.action.toStdString();
        EXPECT_THROW(renamed(u"abc.jpg"_s, {row(needs.action, enough.mid(1))}), RangeError)
            << needs.action.toStdString();
    }
    EXPECT_THROW(renamed(u"abc.jpg"_s, {u"only a name"_s}), RangeError);
}

TEST(ActionRun, TellsWhyItRaises)
{
    const auto reasonOf = [](const QStringList& rows) {
        try {
            std::ignore = renamed(u"a.jpg"_s, rows);
        } catch (const RangeError& error) {
            return error.reason();
        }
        return QString();
    };
    EXPECT_EQ(reasonOf({row(u"Prefix"_s, {u"x"_s})}), u"index 5 beyond bounds [0 .. 4]"_s);
    const QString growing = row(u"Prefix"_s, {QString(70000, u'x'), u""_s, u"0"_s, u"0"_s});
    EXPECT_EQ(reasonOf({growing}), u"name of 70005 characters"_s);
}

TEST(ActionRun, RaisesWhereANameGrowsBeyondAllMeasure)
{
    const QString growing
        = row(u"Replace"_s, {u"0"_s, u"0"_s, u"0"_s, u""_s, u"a"_s, QString(100, u'a')});
    EXPECT_EQ(renamed(u"a.jpg"_s, {growing, growing}).size(), 10004);
    EXPECT_THROW(renamed(u"a.jpg"_s, QStringList(12, growing)), RangeError);
}

TEST(ActionRun, MisreadsAFieldThatHoldsATab)
{
    const QString strip = row(
        u"Strip"_s, {u""_s, u"0"_s, u"x\ty"_s, u"0"_s, u"0"_s, u""_s, u"0"_s, u"0"_s, u"1"_s}
    );
    // "y" is read as the start, the fragment as the stop, and so on; preserve reads as "0".
    EXPECT_EQ(renamed(u"xyz.x"_s, {strip}), u"yz."_s);
}
