// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/file_chooser.h>

#include "support/text_printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::controls;

TEST(SavedName, GetsTheFirstTypeUnlessItHasAnAllowedOne)
{
    const SavePanel panel = {.allowedTypes = {u"jpeg"_s, u"jpg"_s}, .allowsOtherTypes = false};

    EXPECT_EQ(withAllowedType(u"/a/copy"_s, panel), u"/a/copy.jpeg"_s);
    EXPECT_EQ(withAllowedType(u"/a/v1.2"_s, panel), u"/a/v1.2.jpeg"_s);
    EXPECT_EQ(withAllowedType(u"/a/copy.jpg"_s, panel), u"/a/copy.jpg"_s);
    EXPECT_EQ(withAllowedType(u"/a/copy.JPEG"_s, panel), u"/a/copy.JPEG"_s);
}

TEST(SavedName, KeepsAnyTypeWhereOtherTypesAreAllowed)
{
    const SavePanel panel = {.allowedTypes = {u"txt"_s}};

    EXPECT_EQ(withAllowedType(u"/a/log.csv"_s, panel), u"/a/log.csv"_s);
    EXPECT_EQ(withAllowedType(u"/a/log"_s, panel), u"/a/log.txt"_s);
    EXPECT_EQ(withAllowedType(u"/a/log"_s, {}), u"/a/log"_s);
}
