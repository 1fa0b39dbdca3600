// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/drawing_file.h>
#include <platform/codecs/image_destination.h>
#include <platform/foundation/literals.h>

#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using platform::codecs::openDrawing;

TEST(DrawingFile, HasTheSizeThatAnSvgStates)
{
    const test::TemporaryFolder folder;
    const QString path = folder.write(
        u"logo.svg"_s,
        "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'>"
        "<rect width='15' height='20' fill='rgb(200,40,20)'/></svg>"
    );

    const auto drawing = openDrawing(path);

    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->pixelSize(), (platform::graphics::PixelSize{30, 20}));
    EXPECT_EQ(drawing->dotsPerInch(), 72);
    EXPECT_EQ(drawing->toQImage().pixel(5, 5), qRgb(200, 40, 20));
    EXPECT_EQ(qAlpha(drawing->toQImage().pixel(25, 5)), 0);
}

TEST(DrawingFile, MayBeAPdf)
{
    const test::TemporaryFolder folder;
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString path = folder.path(u"logo.pdf"_s);
    ASSERT_TRUE(platform::codecs::encode(
        platform::graphics::Image::fromQImage(picture), platform::codecs::FileFormat::Pdf, {}, path
    ));

    const auto drawing = openDrawing(path);

    ASSERT_TRUE(drawing);
    const QImage shown = drawing->toQImage();
    const QColor middle = shown.pixelColor(shown.width() / 2, shown.height() / 2);
    EXPECT_GT(middle.red(), 240);
    EXPECT_LT(middle.green(), 20);
}

TEST(DrawingFile, IsNothingElse)
{
    const test::TemporaryFolder folder;

    EXPECT_FALSE(openDrawing(test::PhotoBuilder().write(folder.path(u"a.jpg"_s))));
    EXPECT_FALSE(openDrawing(folder.write(u"a.txt"_s, "a text")));
    EXPECT_FALSE(openDrawing(folder.write(u"empty.svg"_s, {})));
    EXPECT_FALSE(openDrawing(folder.path(u"none.svg"_s)));
}

TEST(DrawingFile, IsNotMadeOfADamagedFile)
{
    const test::TemporaryFolder folder;

    EXPECT_FALSE(openDrawing(folder.write(
        u"cut.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'><rect wid"
    )));
    EXPECT_FALSE(openDrawing(folder.write(u"cut.pdf"_s, "%PDF-1.4\n1 0 obj")));
}

TEST(DrawingFile, IsNotAbsurdlyLarge)
{
    const test::TemporaryFolder folder;

    EXPECT_FALSE(openDrawing(folder.write(
        u"large.svg"_s,
        "<svg xmlns='http://www.w3.org/2000/svg' width='20000' height='20000'></svg>"
    )));
}
