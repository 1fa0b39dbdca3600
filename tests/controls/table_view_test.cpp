// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/containers.h>
#include <platform/foundation/literals.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

class TableView : public testing::Test
{
protected:
    TableView() { rows.setObjects({{u"a"_s}, {u"b"_s}}); }

    controls::ArrayController rows{u"rows"_s, {u"name"_s}};
    controls::TableView table{u"table"_s, rows};
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

    rows.addObject({u"c"_s});
    EXPECT_EQ(table.selectedRow(), 1);

    rows.removeAllObjects();
    EXPECT_EQ(table.selectedRow(), -1);
}
