// SPDX-License-Identifier: GPL-3.0-or-later
#include <panels/watermark_panel.h>
#include <platform/foundation/paths.h>
#include <platform/graphics/image_destination.h>
#include <platform/graphics/image_source.h>
#include <support/color_profiles.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <watermark/dv_watermark.h>
#include <workspace/photo_preview.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <array>

using namespace brenvaldo;
using test::PhotoModel;

namespace {

struct Kind
{
    const char* name;
    PhotoModel model;
    int depth;
    bool hasProfile = false;
    const char* type = "png";
};

struct Look
{
    const char* name;
    void (*choose)(panels::WatermarkPanel& panel);
};

void shadowed(panels::WatermarkPanel& panel)
{
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowRadius.setStringValue(u"9"_qs);
}

void embossed(panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(2); }

void tiled(panels::WatermarkPanel& panel)
{
    panel.cbTextPatternCheck.setState(1);
    panel.tfXOffset.setStringValue(u"5"_qs);
}

constexpr std::array looks{
    Look{"Plain", [](panels::WatermarkPanel&) {}},
    Look{"Tiled", tiled},
    Look{"Shadowed", shadowed},
    Look{"Embossed", embossed},
    Look{
        "EmbossedAndTiledWithShadow",
        [](panels::WatermarkPanel& panel) {
            embossed(panel);
            shadowed(panel);
            tiled(panel);
        }},
    Look{"Turned", [](panels::WatermarkPanel& panel) { panel.tfWMAngle.setStringValue(u"33"_qs); }},
    Look{
        "Transparent",
        [](panels::WatermarkPanel& panel) { panel.tfFontTransparancy.setStringValue(u"60"_qs); }},
    Look{
        "FilledWithThePhoto",
        [](panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(8); }},
};

constexpr std::array kinds{
    Kind{"Rgb8", PhotoModel::Rgb, 8},
    Kind{"WideRgb8", PhotoModel::Rgb, 8, true},
    Kind{"Gray8", PhotoModel::Gray, 8},
    Kind{"RgbAlpha8", PhotoModel::RgbAlpha, 8},
    Kind{"Rgb16", PhotoModel::Rgb, 16},
    Kind{"RgbAlpha16", PhotoModel::RgbAlpha, 16},
    Kind{.name = "Cmyk8", .model = PhotoModel::Cmyk, .depth = 8, .type = "tiff"},
};

class PreviewAgreement : public testing::TestWithParam<std::tuple<Kind, Look>>
{
protected:
    PreviewAgreement()
    {
        panel.cbFontList.setTitles({u"DejaVu Sans"_qs});
        panel.tvWaterMarkText.setStringValue(u"Mark <[IMGW]>"_qs);
        panel.tfFontSize.setStringValue(u"48"_qs);
        panel.scWaterMarkPos.setSelectedSegment(4);
        std::get<Look>(GetParam()).choose(panel);
    }

    /// A photo whose colours and opacity run over all of it.
    QString photo() const
    {
        const Kind& kind = std::get<Kind>(GetParam());
        test::PhotoBuilder builder;
        builder.size(320, 200).model(kind.model).depth(kind.depth);
        builder.format(type() == u"tiff" ? test::PhotoFormat::Tiff : test::PhotoFormat::Png);
        builder.pixels([](int x, int y) {
            return test::Samples{x * 255 / 319, y * 255 / 199, (x + y) % 256, (2 * x + y) % 256, 0};
        });
        if (kind.hasProfile)
            builder.iccProfile(test::wideProfile());
        return builder.write(folder.path(u"photo."_qs + type()));
    }

    static QString type() { return QString::fromLatin1(std::get<Kind>(GetParam()).type); }

    /// All samples of a picture, whatever its depth and colour model, as the bytes of a file.
    QByteArray samplesOf(const platform::Image& image) const
    {
        const QString path = folder.path(u"samples.tiff"_qs);
        if (!platform::encode(image, platform::FileFormat::Tiff, {}, path))
            return {};
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    platform::Image written(const QString& path)
    {
        const QString target = folder.path(u"out/"_qs);
        QDir().mkpath(target);
        mark.setWatermarkText(
            {.photos = {path},
             .destination = target,
             .outputType = u"public."_qs + type(),
             .compressionLevel = u"9"_qs,
             .fileNameText = {},
             .photoProperty = 0},
            [](const watermark::MarkedPhoto&) {}
        );
        return *test::openedPhoto(target + u"photo."_qs + type()).image();
    }

    std::optional<platform::Image> shown(const QString& path)
    {
        return workspace::composed(photos.photo(path), mark.setWatermarkTextPreview(path));
    }

    test::TemporaryFolder folder;
    panels::WatermarkPanel panel;
    controls::ProgressIndicator bar{u"bar"_qs};
    workspace::PreviewPhotos photos;
    watermark::DVWatermark mark{
        {.panel = panel,
         .bar = bar,
         .outputName = platform::lastPathComponent,
         .previewPhoto = [this](const QString& path) { return photos.photo(path); }}};
};

} // namespace

TEST_P(PreviewAgreement, ShowsTheSamplesOfTheWrittenFile)
{
    const QString path = photo();

    const auto preview = shown(path);

    ASSERT_TRUE(preview.has_value());
    const QByteArray samples = samplesOf(*preview);
    EXPECT_NE(samples, samplesOf(*photos.photo(path)));
    EXPECT_EQ(samples, samplesOf(written(path)));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    PreviewAgreement,
    testing::Combine(testing::ValuesIn(kinds), testing::ValuesIn(looks)),
    [](const auto& row) {
        return std::string(std::get<Kind>(row.param).name) + std::get<Look>(row.param).name;
    }
);
