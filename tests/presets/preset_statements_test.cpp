// SPDX-License-Identifier: GPL-3.0-or-later
#include <presets/preset_statements.h>

#include "support/text_printing.h"

#include <gtest/gtest.h>

using namespace brenvaldo;

TEST(PresetStatements, NameTheColumnsInOrder)
{
    const QStringList presets = presets::presetColumns();
    const QStringList bookmarks = presets::bookmarkColumns();

    ASSERT_EQ(presets.size(), 102);
    EXPECT_EQ(presets[2], u"Action"_qs);
    EXPECT_EQ(presets[3], u"StrField3"_qs);
    EXPECT_EQ(presets.last(), u"StrField101"_qs);
    ASSERT_EQ(bookmarks.size(), 102);
    EXPECT_EQ(bookmarks.first(), u"StrField0"_qs);
}

TEST(PresetStatements, DeclareTheMiddleColumnsAsIntegers)
{
    const QString text = presets::createTableStatement(u"Presets"_qs, presets::presetColumns());

    EXPECT_TRUE(text.startsWith(
        u"Create table if not exists 'Presets' (ID INTEGER PRIMARY KEY AUTOINCREMENT, "_qs
    ));
    EXPECT_TRUE(text.endsWith(u");"_qs));
    EXPECT_TRUE(text.contains(u"'StrField20' Text, 'StrField21' Integer"_qs));
    EXPECT_TRUE(text.contains(u"'StrField41' Integer, 'StrField42' Text"_qs));
    EXPECT_EQ(text.count(u"' Integer"_qs), 21);
    EXPECT_EQ(text.count(u"' Text"_qs), 81);
}

TEST(PresetStatements, InsertWithOneBlankBehindTheSecondCommaOnly)
{
    const QStringList columns = {u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs};
    const QStringList values = {u"1"_qs, u""_qs, u"it''s"_qs, u"|"_qs};

    EXPECT_EQ(
        presets::insertStatement(u"Presets"_qs, columns, values),
        u"Insert or replace into 'Presets' ('a','b', 'c','d') values ('1','', 'it''s','|')"_qs
    );
}

TEST(PresetStatements, SelectAndDeleteWithValuesAsTheyStand)
{
    EXPECT_EQ(
        presets::selectStatement(
            u"*"_qs, u"Presets"_qs, {{u"NameOfPreset"_qs, u"A"_qs}, {u"Process"_qs, u"TextWM"_qs}}
        ),
        u"SELECT * FROM Presets WHERE NameOfPreset = 'A' AND Process = 'TextWM'"_qs
    );
    EXPECT_EQ(presets::selectStatement(u"*"_qs, u"Presets"_qs), u"SELECT * FROM Presets"_qs);
    EXPECT_EQ(
        presets::deleteStatement(u"Presets"_qs, {u"NameOfPreset"_qs, u"it's"_qs}),
        u"DELETE FROM Presets WHERE NameOfPreset = 'it's'"_qs
    );
}
