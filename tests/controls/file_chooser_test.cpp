// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/file_chooser.h>

#include "support/text_printing.h"

#include <gtest/gtest.h>

using namespace brenvaldo::controls;

TEST(SavedName, GetsTheFirstTypeUnlessItHasAnAllowedOne)
{
    const SavePanel panel = {.allowedTypes = {u"jpeg"_qs, u"jpg"_qs}, .allowsOtherTypes = false};

    EXPECT_EQ(withAllowedType(u"/a/copy"_qs, panel), u"/a/copy.jpeg"_qs);
    EXPECT_EQ(withAllowedType(u"/a/v1.2"_qs, panel), u"/a/v1.2.jpeg"_qs);
    EXPECT_EQ(withAllowedType(u"/a/copy.jpg"_qs, panel), u"/a/copy.jpg"_qs);
    EXPECT_EQ(withAllowedType(u"/a/copy.JPEG"_qs, panel), u"/a/copy.JPEG"_qs);
}

TEST(SavedName, KeepsAnyTypeWhereOtherTypesAreAllowed)
{
    const SavePanel panel = {.allowedTypes = {u"txt"_qs}};

    EXPECT_EQ(withAllowedType(u"/a/log.csv"_qs, panel), u"/a/log.csv"_qs);
    EXPECT_EQ(withAllowedType(u"/a/log"_qs, panel), u"/a/log.txt"_qs);
    EXPECT_EQ(withAllowedType(u"/a/log"_qs, {}), u"/a/log"_qs);
}
