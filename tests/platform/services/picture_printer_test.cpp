// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/services/picture_printer.h>

#include <support/geometry_printing.h>

#include <gtest/gtest.h>

#include <QPrinter>

using namespace brenvaldo::platform::services;

namespace {

QPageLayout layoutFor(const QSize& picture)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageMargins(QMarginsF(20, 20, 20, 20));
    prepareFullPage(printer, picture);
    return printer.pageLayout();
}

} // namespace

TEST(PrintedPage, LiesAsThePictureDoes)
{
    EXPECT_EQ(layoutFor({400, 300}).orientation(), QPageLayout::Landscape);
    EXPECT_EQ(layoutFor({300, 400}).orientation(), QPageLayout::Portrait);
}

TEST(PrintedPage, HasNoMargins)
{
    EXPECT_EQ(layoutFor({400, 300}).margins(), QMarginsF(0, 0, 0, 0));
    EXPECT_EQ(layoutFor({400, 300}).mode(), QPageLayout::FullPageMode);
}

TEST(PlaceOnPage, FitsThePictureIntoTheMiddle)
{
    EXPECT_EQ(placeOnPage({400, 200}, {1000, 1000}), QRectF(0, 250, 1000, 500));
    EXPECT_EQ(placeOnPage({200, 400}, {1000, 1000}), QRectF(250, 0, 500, 1000));
    EXPECT_EQ(placeOnPage({10, 10}, {300, 100}), QRectF(100, 0, 100, 100));
}
