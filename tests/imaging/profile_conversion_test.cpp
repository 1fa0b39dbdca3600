// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_color_conversions.h>
#include <imaging/dv_image_handling.h>
#include <imaging/profile_settings.h>

#include <panels/profile_panel.h>
#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/deep_pixels.h>
#include <support/environment.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

#include <array>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using platform::graphics::ColorModel;
using platform::graphics::RenderingIntent;
using test::PhotoFormat;
using test::PhotoModel;

namespace {

// Places in the list of the profiles that are installed below.
constexpr int gray = 0;
constexpr int ink = 1;
constexpr int lab = 2;
constexpr int wide = 3;

/// A machine on which four profiles are installed, and a broken one, and a folder for photos.
class ProfileConversion : public testing::Test
{
protected:
    ProfileConversion()
    {
        QDir(folder.path()).mkpath(u"icc"_s);
        (void)folder.write(u"icc/wide.icc"_s, test::wideProfile());
        (void)folder.write(u"icc/broken.icc"_s, "broken");
        (void)folder.write(u"icc/ink.icc"_s, test::blackInkProfile());
        (void)folder.write(u"icc/gray.icc"_s, test::grayProfile());
        (void)folder.write(u"icc/lab.icc"_s, test::labProfile());
        conversions.hGetColorProfiles(panel);
    }

    ResultWord convert(const QString& path, const ProfileSettings& settings, const QString& type)
    {
        OutputTail tail;
        tail.compressionLevel = u"10"_s;
        tail.myFileType = type;
        return save(std::get<PictureToSave>(conversions.convertColorSpace(
            {.source = path, .destinationBase = folder.path(u"out"_s)}, settings, tail
        )));
    }

    [[nodiscard]] platform::graphics::Image written(const QString& name) const
    {
        return *test::openedPhoto(folder.path(name)).image();
    }

    QString photo(PhotoModel model, int depth) const
    {
        return test::PhotoBuilder()
            .format(PhotoFormat::Tiff)
            .size(20, 10)
            .model(model)
            .depth(depth)
            .solid(
                model == PhotoModel::Cmyk ? test::Samples{20, 15, 15, 20}
                                          : test::Samples{128, 128, 128}
            )
            .write(folder.path(u"a.tiff"_s));
    }

    test::TemporaryFolder folder;
    test::Environment home{"XDG_DATA_HOME", folder.path().chopped(1).toUtf8()};
    test::Environment machine{"XDG_DATA_DIRS", "/nowhere"};
    panels::ProfilePanel panel;
    DVColorConversions conversions;
};

} // namespace

TEST_F(ProfileConversion, ListsTheInstalledProfilesByNameAndSelectsTheFirst)
{
    EXPECT_EQ(
        panel.pubInstalledICCProfiles.titles(),
        (QStringList{u"gray built-in"_s, u"ink"_s, u"Lab identity built-in"_s, u"RGB built-in"_s})
    );
    EXPECT_EQ(panel.pubInstalledICCProfiles.indexOfSelectedItem(), 0);
}

TEST_F(ProfileConversion, FailsForASpaceThatNoPictureIsKeptIn)
{
    EXPECT_EQ(
        convert(photo(PhotoModel::Rgb, 8), {lab, RenderingIntent::Relative}, u"public.tiff"_s),
        ResultWord::Failed
    );
}

TEST_F(ProfileConversion, WritesTheProfileAndItsColours)
{
    const QString path = test::PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .size(20, 10)
                             .solid({255, 0, 0})
                             .write(folder.path(u"red.png"_s));
    ASSERT_EQ(convert(path, {wide, RenderingIntent::Relative}, u"public.png"_s), ResultWord::Ok);

    const auto converted = written(u"out.png"_s);
    EXPECT_EQ(converted.iccProfile(), test::wideProfile());
    const QColor shown = converted.toQImage().pixelColor(5, 5);
    EXPECT_NEAR(shown.red(), 255, 2);
    EXPECT_NEAR(shown.green(), 0, 6);
}

// Computed by the command line program of the colour engine, in relative intent.
TEST_F(ProfileConversion, WritesTheSamplesThatTheColourEngineTells)
{
    const QString path = test::PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .size(20, 10)
                             .solid({200, 100, 50})
                             .write(folder.path(u"brown.png"_s));
    const auto expectLevels = [&](int profile, const std::array<int, 3>& levels) {
        ASSERT_EQ(
            convert(path, {profile, RenderingIntent::Relative}, u"public.tiff"_s), ResultWord::Ok
        );
        const QRgba64 pixel = test::deepPixel(test::deepPixels(written(u"out.tiff"_s)), 5, 5);
        EXPECT_NEAR(pixel.red() / 257, levels[0], 1);
        EXPECT_NEAR(pixel.green() / 257, levels[1], 1);
        EXPECT_NEAR(pixel.blue() / 257, levels[2], 1);
    };

    expectLevels(wide, {177, 100, 56});
    expectLevels(gray, {110, 110, 110});
}

TEST_F(ProfileConversion, TakesEveryModelAndDepthToEveryModel)
{
    struct Target
    {
        int index;
        QByteArray profile;
        ColorModel model;
    };
    const Target targets[]
        = {{wide, test::wideProfile(), ColorModel::Rgb},
           {gray, test::grayProfile(), ColorModel::Gray},
           {ink, test::blackInkProfile(), ColorModel::Cmyk}};
    for (const PhotoModel source : {PhotoModel::Gray, PhotoModel::Rgb, PhotoModel::Cmyk}) {
        for (const int depth : {8, 16}) {
            const QString path = photo(source, depth);
            const int before = qGray(test::storedPixels(path).pixel(5, 5));
            for (const Target& target : targets) {
                ASSERT_EQ(
                    convert(path, {target.index, RenderingIntent::Perceptual}, u"public.tiff"_s),
                    ResultWord::Ok
                );
                const auto converted = written(u"out.tiff"_s);
                EXPECT_EQ(converted.colorModel(), target.model);
                EXPECT_EQ(converted.bitsPerComponent(), depth);
                EXPECT_EQ(converted.iccProfile(), target.profile);
                EXPECT_NEAR(qGray(converted.toQImage().pixel(5, 5)), before, 20);
            }
        }
    }
}

TEST_F(ProfileConversion, WritesInksIntoAJpeg)
{
    ASSERT_EQ(
        convert(photo(PhotoModel::Rgb, 8), {ink, RenderingIntent::Relative}, u"public.jpeg"_s),
        ResultWord::Ok
    );

    EXPECT_EQ(written(u"out.jpg"_s).colorModel(), ColorModel::Cmyk);
    EXPECT_EQ(written(u"out.jpg"_s).iccProfile(), test::blackInkProfile());
}

TEST_F(ProfileConversion, ConvertsTheStoredPixelsAndPreviewsTheUprightOnes)
{
    const QString path = test::PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .size(40, 30)
                             .corners()
                             .orientation(6)
                             .write(folder.path(u"turned.png"_s));
    const ProfileSettings settings{wide, RenderingIntent::Perceptual};

    ASSERT_EQ(convert(path, settings, u"public.png"_s), ResultWord::Ok);
    EXPECT_EQ(test::storedPixels(folder.path(u"out.png"_s)).size(), QSize(40, 30));
    EXPECT_EQ(test::openedPhoto(folder.path(u"out.png"_s)).header().orientation, 6);

    const auto preview
        = conversions.convertColorSpaceToPreview(test::openedPhoto(path).uprightImage(), settings);
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->toQImage().size(), QSize(30, 40));
    EXPECT_EQ(test::cornerColors(preview->toQImage()), "BRWG");
}

TEST_F(ProfileConversion, EndsWithARangeErrorForAProfileThatIsNotInTheList)
{
    const QString path = photo(PhotoModel::Rgb, 8);

    for (const int index : {-1, 4}) {
        EXPECT_THROW(
            (void)convert(path, {index, RenderingIntent::Relative}, u"public.png"_s),
            platform::RangeError
        );
    }
}

TEST_F(ProfileConversion, FailsForAnUnreadablePhoto)
{
    const ProfileSettings settings{.profile = 0};

    EXPECT_EQ(convert(folder.path(u"gone.png"_s), settings, u"public.png"_s), ResultWord::Failed);
    EXPECT_FALSE(conversions.convertColorSpaceToPreview(std::nullopt, settings));
}

TEST(ProfileSettings, AreReadFromTheirControls)
{
    panels::ProfilePanel panel;
    panel.pubInstalledICCProfiles.setTitles({u"A"_s, u"B"_s});
    panel.pubInstalledICCProfiles.selectIndex(1);
    panel.pubCPCRenderIntent.selectIndex(2);

    EXPECT_EQ(readSettings(panel), (ProfileSettings{1, RenderingIntent::Absolute}));
    panel.pubInstalledICCProfiles.selectIndex(-1);
    EXPECT_EQ(readSettings(panel).profile, -1);
}

TEST(RenderingIntents, FollowTheirTitles)
{
    EXPECT_EQ(renderingIntent(u"perceptual"_s), RenderingIntent::Perceptual);
    EXPECT_EQ(renderingIntent(u"relative"_s), RenderingIntent::Relative);
    EXPECT_EQ(renderingIntent(u"absolute"_s), RenderingIntent::Absolute);
    EXPECT_EQ(renderingIntent(u"saturation"_s), RenderingIntent::Saturation);
    EXPECT_EQ(renderingIntent(u"Relative"_s), RenderingIntent::Saturation);
    EXPECT_EQ(renderingIntent(u""_s), RenderingIntent::Saturation);
}
