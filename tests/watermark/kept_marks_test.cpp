// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <watermark/kept_marks.h>

#include <support/photo_builder.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::watermark;
using test::PhotoBuilder;
using test::PhotoFormat;

namespace {

constexpr MarkedSize wide{.pixels = {.width = 120, .height = 80}, .dotsPerInch = 72};

class KeptMarksOfAFile : public testing::Test
{
protected:
    KeptMarksOfAFile()
    {
        settings.blendMode = platform::drawing::BlendMode::Normal;
        write(20);
    }

    void write(int width)
    {
        settings.path = PhotoBuilder()
                            .size(width, 10)
                            .format(PhotoFormat::Png)
                            .write(folder.path(u"logo.png"_s));
    }

    std::shared_ptr<const ImageMark> mark() { return marks.mark(settings, wide); }

    test::TemporaryFolder folder;
    ImageWatermarkSettings settings;
    KeptMarks marks;
};

} // namespace

TEST_F(KeptMarksOfAFile, AreMadeOnce)
{
    const auto first = mark();

    ASSERT_TRUE(first);
    EXPECT_EQ(mark(), first);
}

TEST_F(KeptMarksOfAFile, AreMadeAnewForOtherSettings)
{
    const auto first = mark();
    settings.angle = 10;

    EXPECT_NE(mark(), first);
}

TEST_F(KeptMarksOfAFile, AreMadeAnewForAPhotoOfAnotherSizeOrResolution)
{
    const auto first = mark();

    const auto other = marks.mark(settings, {.pixels = {.width = 80, .height = 120}});
    EXPECT_NE(other, first);
    EXPECT_NE(
        marks.mark(settings, {.pixels = {.width = 80, .height = 120}, .dotsPerInch = 300}), other
    );
}

TEST_F(KeptMarksOfAFile, AreMadeAnewWhenTheFileHasChanged)
{
    const auto first = mark();
    write(31);

    const auto second = mark();

    ASSERT_TRUE(second);
    EXPECT_NE(second, first);
    EXPECT_EQ(second->layers.at(0).image.width(), 31);
}

TEST_F(KeptMarksOfAFile, AreNoneOnceTheFileIsGone)
{
    EXPECT_TRUE(mark());
    EXPECT_TRUE(marks.canRead(settings.path));
    ASSERT_TRUE(QFile::remove(settings.path));

    EXPECT_FALSE(mark());
    EXPECT_FALSE(marks.canRead(settings.path));
}

TEST_F(KeptMarksOfAFile, AreGivenBack)
{
    const std::weak_ptr<const ImageMark> first = mark();
    EXPECT_FALSE(first.expired());

    marks.clear();

    EXPECT_TRUE(first.expired());
    EXPECT_TRUE(mark());
}

TEST_F(KeptMarksOfAFile, ShareTheImageAmongTheirSettings)
{
    (void)mark();
    const auto first = mark();
    settings.inset.xOffset = 5;
    const auto second = mark();

    EXPECT_NE(first, second);
    EXPECT_EQ(second->layers.at(0).topLeft.x(), 5);
}
