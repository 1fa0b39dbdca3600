// SPDX-License-Identifier: GPL-3.0-or-later
#include <metadata/edit_meta_data.h>
#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

TEST(EditMetaData, HoldsWhatItIsGiven)
{
    metadata::cEditMetaData data;
    controls::ProgressIndicator bar(u"bar"_s);
    controls::TextField field(u"field"_s);
    controls::ArrayController rows(u"rows"_s, {u"a"_s});
    controls::TableView table(u"table"_s, rows);
    EXPECT_EQ(data.myLogCounter(), 0);
    EXPECT_EQ(data.theLogTable(), nullptr);

    data.setMyEMMfiles({u"a.jpg"_s});
    data.setOcTheLogData({{u"row"_s}});
    data.setMyLogCounter(-7);
    data.setMyProgressBarke(&bar);
    data.setTfEMDuserCommentField(&field);
    data.setMyLogTableViewController(&rows);
    data.setTheLogTable(&table);

    EXPECT_EQ(data.myEMMfiles(), QStringList{u"a.jpg"_s});
    EXPECT_EQ(data.ocTheLogData(), QList<QStringList>{{u"row"_s}});
    EXPECT_EQ(data.myLogCounter(), -7);
    EXPECT_EQ(data.myProgressBarke(), &bar);
    EXPECT_EQ(data.tfEMDuserCommentField(), &field);
    EXPECT_EQ(data.myLogTableViewController(), &rows);
    EXPECT_EQ(data.theLogTable(), &table);
}
