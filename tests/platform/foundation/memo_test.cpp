// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/memo.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;

TEST(Memo, ComputesAValueOnce)
{
    Memo<int, int> memo;
    int computed = 0;
    const auto square = [&computed](int key) {
        ++computed;
        return key * key;
    };

    EXPECT_EQ(memo.value(7, square), 49);
    EXPECT_EQ(memo.value(7, square), 49);
    EXPECT_EQ(computed, 1);

    EXPECT_EQ(memo.value(8, square), 64);
    EXPECT_EQ(computed, 2);
}
