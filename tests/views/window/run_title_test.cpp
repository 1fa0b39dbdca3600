// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <support/text_printing.h>
#include <views/window/run_title.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

TEST(RunTitleText, NamesTheCount)
{
    EXPECT_EQ(views::runTitle(0), u"Process"_s);
    EXPECT_EQ(views::runTitle(1), u"Process 1 photo"_s);
    EXPECT_EQ(views::runTitle(16), u"Process 16 photos"_s);
}
