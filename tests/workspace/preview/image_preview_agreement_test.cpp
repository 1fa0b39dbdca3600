// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/watermark_panel.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <support/color_profiles.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/saving_sink.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <watermark/dv_watermark.h>
#include <workspace/preview/photo_preview.h>

#include <platform/codecs/image_destination.h>

#include <gtest/gtest.h>

#include <QDir>

#include <array>

using namespace brenvaldo;
using test::PhotoModel;

namespace {

struct KindOfPhoto
{
    const char* name;
    PhotoModel model;
    int depth;
    bool hasProfile = false;
    const char* type = "png";
};

constexpr std::array kindsOfPhotos{
    KindOfPhoto{"Rgb8", PhotoModel::Rgb, 8},
    KindOfPhoto{"WideRgb8", PhotoModel::Rgb, 8, true},
    KindOfPhoto{"Gray8", PhotoModel::Gray, 8},
    KindOfPhoto{"GrayAlpha16", PhotoModel::GrayAlpha, 16},
    KindOfPhoto{"RgbAlpha8", PhotoModel::RgbAlpha, 8},
    KindOfPhoto{"WideRgb16", PhotoModel::Rgb, 16, true},
    KindOfPhoto{"RgbAlpha16", PhotoModel::RgbAlpha, 16},
    KindOfPhoto{.name = "Cmyk8", .model = PhotoModel::Cmyk, .depth = 8, .type = "tiff"},
};

struct LookOfImage
{
    const char* name;
    void (*choose)(panels::WatermarkPanel& panel);
};

void shadowedImage(panels::WatermarkPanel& panel)
{
    panel.cbImageShadowCheck.setState(1);
    panel.tfImageShadowXOffset.setStringValue(u"6"_s);
    panel.tfImageShadowRadius.setStringValue(u"9"_s);
}

void repeated(panels::WatermarkPanel& panel)
{
    panel.cbPatternCheck.setState(1);
    panel.tfImageXOffset.setStringValue(u"11"_s);
    panel.tfImageYOffset.setStringValue(u"5"_s);
}

void faded(panels::WatermarkPanel& panel) { panel.cbImageFadeOut.setState(1); }

void turned(panels::WatermarkPanel& panel) { panel.tfImageWMAngle.setStringValue(u"33"_s); }

constexpr std::array looksOfImages{
    LookOfImage{"Plain", [](panels::WatermarkPanel&) {}},
    LookOfImage{
        "Translucent",
        [](panels::WatermarkPanel& panel) { panel.tfImageTransparancy.setStringValue(u"40"_s); }},
    LookOfImage{
        "Larger",
        [](panels::WatermarkPanel& panel) { panel.tfImageScalePC.setStringValue(u"170"_s); }},
    LookOfImage{"Turned", turned},
    LookOfImage{"Shadowed", shadowedImage},
    LookOfImage{"Faded", faded},
    LookOfImage{
        "FadedRoundItsMiddle",
        [](panels::WatermarkPanel& panel) {
            faded(panel);
            panel.cbCircularFadeOut.setState(1);
        }},
    LookOfImage{
        "Multiplied",
        [](panels::WatermarkPanel& panel) { panel.pubRenderMethod.selectItemAtIndex(3); }},
    LookOfImage{
        "Dotted",
        [](panels::WatermarkPanel& panel) { panel.pubWatermarkFilterType.selectItemAtIndex(3); }},
    LookOfImage{"Repeated", repeated},
    LookOfImage{
        "RepeatedAndTurned",
        [](panels::WatermarkPanel& panel) {
            repeated(panel);
            turned(panel);
        }},
    LookOfImage{
        "RepeatedFadedAndShadowed",
        [](panels::WatermarkPanel& panel) {
            repeated(panel);
            shadowedImage(panel);
            faded(panel);
        }},
};

/// A translucent disc on nothing.
QString writtenLogo(const test::TemporaryFolder& folder)
{
    return test::PhotoBuilder()
        .size(60, 40)
        .model(PhotoModel::RgbAlpha)
        .pixels([](int x, int y) {
            const int square = (x - 30) * (x - 30) + (y - 20) * (y - 20);
            return test::Samples{220, 4 * x, 6 * y, square < 360 ? 230 : 0};
        })
        .format(test::PhotoFormat::Png)
        .write(folder.path(u"logo.png"_s));
}

class MarkingBench
{
public:
    explicit MarkingBench(const LookOfImage& look)
    {
        panel.tfWaterMarkImageFilePath.setStringValue(writtenLogo(folder));
        panel.scImageWaterMarkPos.setSelectedSegment(4);
        look.choose(panel);
    }

    test::TemporaryFolder folder;
    panels::WatermarkPanel panel;
    controls::ProgressIndicator bar{u"bar"_s};
    workspace::PreviewPhotos photos;
    watermark::DVWatermark mark{
        {.panel = panel,
         .bar = bar,
         .outputName = platform::lastPathComponent,
         .previewPhoto = [this](const QString& path) { return photos.photo(path); }}};
};

class ImagePreviewAgreement : public testing::TestWithParam<std::tuple<KindOfPhoto, LookOfImage>>
{
protected:
    /// A photo whose colours and opacity run over all of it.
    [[nodiscard]] QString photo() const
    {
        const KindOfPhoto& kind = std::get<KindOfPhoto>(GetParam());
        test::PhotoBuilder builder;
        builder.size(320, 200).model(kind.model).depth(kind.depth);
        builder.format(type() == u"tiff" ? test::PhotoFormat::Tiff : test::PhotoFormat::Png);
        builder.pixels([](int x, int y) {
            return test::Samples{x * 255 / 319, y * 255 / 199, (x + y) % 256, (2 * x + y) % 256, 0};
        });
        if (kind.hasProfile)
            builder.iccProfile(test::wideProfile());
        return builder.write(bench.folder.path(u"photo."_s + type()));
    }

    static QString type() { return QString::fromLatin1(std::get<KindOfPhoto>(GetParam()).type); }

    /// All samples of a picture, whatever its depth and colour model, as the bytes of a file.
    [[nodiscard]] QByteArray samplesOf(const platform::graphics::Image& image) const
    {
        const QString path = bench.folder.path(u"samples.tiff"_s);
        if (!platform::codecs::encode(image, platform::codecs::FileFormat::Tiff, {}, path))
            return {};
        return test::TemporaryFolder::read(path);
    }

    platform::graphics::Image written(const QString& path)
    {
        const QString target = bench.folder.path(u"out/"_s);
        QDir().mkpath(target);
        test::SavingSink sink;
        bench.mark.setWatermarkImage(
            {.photos = {path},
             .destination = target,
             .outputType = u"public."_s + type(),
             .compressionLevel = u"9"_s,
             .fileNameText = {},
             .photoProperty = 0},
            sink
        );
        return *test::openedPhoto(target + u"photo."_s + type()).image();
    }

    MarkingBench bench{std::get<LookOfImage>(GetParam())};
};

} // namespace

TEST_P(ImagePreviewAgreement, ShowsTheSamplesOfTheWrittenFile)
{
    const QString path = photo();

    const auto preview
        = workspace::composed(bench.photos.photo(path), bench.mark.setWatermarkImagePreview(path));

    ASSERT_TRUE(preview.has_value());
    const QByteArray samples = samplesOf(*preview);
    EXPECT_FALSE(samples.isEmpty());
    EXPECT_NE(samples, samplesOf(*bench.photos.photo(path)));
    EXPECT_EQ(samples, samplesOf(written(path)));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    ImagePreviewAgreement,
    testing::Combine(testing::ValuesIn(kindsOfPhotos), testing::ValuesIn(looksOfImages)),
    [](const auto& row) {
        return std::string(std::get<KindOfPhoto>(row.param).name)
            + std::get<LookOfImage>(row.param).name;
    }
);

TEST(ImagePreview, HasALookOfItsOwnForEachSetting)
{
    const test::TemporaryFolder folder;
    const QString photo = test::PhotoBuilder()
                              .size(320, 200)
                              .gradient()
                              .format(test::PhotoFormat::Png)
                              .write(folder.path(u"photo.png"_s));
    QList<QPair<std::string, QImage>> seen{{"Photo", test::storedPixels(photo)}};
    for (const LookOfImage& look : looksOfImages) {
        MarkingBench bench(look);
        const QImage shown = bench.mark.setWatermarkImagePreview(photo)->toQImage();
        for (const auto& [name, image] : seen)
            EXPECT_GT(test::largestDifference(shown, image), 8) << look.name << ", " << name;
        seen.append({look.name, shown});
    }
}
