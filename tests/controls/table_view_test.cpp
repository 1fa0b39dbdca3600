// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/containers.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

class TableView : public testing::Test
{
protected:
    TableView() { rows.setObjects({{u"a"_qs}, {u"b"_qs}}); }

    controls::ArrayController rows{u"rows"_qs, {u"name"_qs}};
    controls::TableView table{u"table"_qs, rows};
};

} // namespace

TEST_F(TableView, SelectsOnlyRowsThatExist)
{
    table.selectRow(1);
    table.selectRow(2);
    EXPECT_EQ(table.selectedRow(), 1);

    table.selectRow(-2);
    EXPECT_EQ(table.selectedRow(), 1);

    table.selectRow(-1);
    EXPECT_EQ(table.selectedRow(), -1);
}

TEST_F(TableView, LosesTheSelectionOfARowThatIsGone)
{
    table.selectRow(1);

    rows.addObject({u"c"_qs});
    EXPECT_EQ(table.selectedRow(), 1);

    rows.removeAllObjects();
    EXPECT_EQ(table.selectedRow(), -1);
}
