// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::imaging::DVImageHandling;

TEST(FileNamePrePostFixConstruct, PutsWidthAndHeightIntoTheirPlaces)
{
    const QString name = DVImageHandling::hFileNamePrePostFixConstruct(
        u"thumb_<[IMGW]>x<[IMGH]>_"_s, {.width = u"640"_s, .height = u"480"_s}
    );

    EXPECT_EQ(name, u"thumb_640x480_"_s);
}

TEST(FileNamePrePostFixConstruct, ReplacesEveryOccurrenceAndNoOtherToken)
{
    const QString name = DVImageHandling::hFileNamePrePostFixConstruct(
        u"<[IMGW]><[IMGW]><[NAME]><[imgh]>"_s, {.width = u"1"_s, .height = u"2"_s}
    );

    EXPECT_EQ(name, u"11<[NAME]><[imgh]>"_s);
}
