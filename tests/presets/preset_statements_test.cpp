// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <presets/preset_statements.h>

#include "support/text_printing.h"

#include <gtest/gtest.h>

using namespace brenvaldo;

TEST(PresetStatements, NameTheColumnsInOrder)
{
    const QStringList presets = presets::presetColumns();
    const QStringList bookmarks = presets::bookmarkColumns();

    ASSERT_EQ(presets.size(), 102);
    EXPECT_EQ(presets[2], u"Action"_s);
    EXPECT_EQ(presets[3], u"StrField3"_s);
    EXPECT_EQ(presets.last(), u"StrField101"_s);
    ASSERT_EQ(bookmarks.size(), 102);
    EXPECT_EQ(bookmarks.first(), u"StrField0"_s);
}

TEST(PresetStatements, DeclareTheMiddleColumnsAsIntegers)
{
    const QString text = presets::createTableStatement(u"Presets"_s, presets::presetColumns());

    EXPECT_TRUE(text.startsWith(
        u"Create table if not exists 'Presets' (ID INTEGER PRIMARY KEY AUTOINCREMENT, "_s
    ));
    EXPECT_TRUE(text.endsWith(u");"_s));
    EXPECT_TRUE(text.contains(u"'StrField20' Text, 'StrField21' Integer"_s));
    EXPECT_TRUE(text.contains(u"'StrField41' Integer, 'StrField42' Text"_s));
    EXPECT_EQ(text.count(u"' Integer"_s), 21);
    EXPECT_EQ(text.count(u"' Text"_s), 81);
}

TEST(PresetStatements, InsertWithOneBlankBehindTheSecondCommaOnly)
{
    const QStringList columns = {u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    const QStringList values = {u"1"_s, u""_s, u"it''s"_s, u"|"_s};

    EXPECT_EQ(
        presets::insertStatement(u"Presets"_s, columns, values),
        u"Insert or replace into 'Presets' ('a','b', 'c','d') values ('1','', 'it''s','|')"_s
    );
}

TEST(PresetStatements, SelectAndDeleteWithValuesAsTheyStand)
{
    EXPECT_EQ(
        presets::selectStatement(
            u"*"_s, u"Presets"_s, {{u"NameOfPreset"_s, u"A"_s}, {u"Process"_s, u"TextWM"_s}}
        ),
        u"SELECT * FROM Presets WHERE NameOfPreset = 'A' AND Process = 'TextWM'"_s
    );
    EXPECT_EQ(presets::selectStatement(u"*"_s, u"Presets"_s), u"SELECT * FROM Presets"_s);
    EXPECT_EQ(
        presets::deleteStatement(u"Presets"_s, {u"NameOfPreset"_s, u"it's"_s}),
        u"DELETE FROM Presets WHERE NameOfPreset = 'it's'"_s
    );
}
