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
#include <platform/codecs/image_source.h>

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

void shadowedMark(panels::WatermarkPanel& panel)
{
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowRadius.setStringValue(u"9"_s);
}

void embossed(panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(2); }

void tiled(panels::WatermarkPanel& panel)
{
    panel.cbTextPatternCheck.setState(1);
    panel.tfXOffset.setStringValue(u"5"_s);
}

constexpr std::array looks{
    Look{"Plain", [](panels::WatermarkPanel&) {}},
    Look{"Tiled", tiled},
    Look{"Shadowed", shadowedMark},
    Look{"Embossed", embossed},
    Look{
        "EmbossedAndTiledWithShadow",
        [](panels::WatermarkPanel& panel) {
            embossed(panel);
            shadowedMark(panel);
            tiled(panel);
        }},
    Look{"Turned", [](panels::WatermarkPanel& panel) { panel.tfWMAngle.setStringValue(u"33"_s); }},
    Look{
        "Transparent",
        [](panels::WatermarkPanel& panel) { panel.tfFontTransparancy.setStringValue(u"60"_s); }},
    Look{
        "FilledWithThePhoto",
        [](panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(7); }},
    Look{
        "FilledWithTheBlackAndWhitePhoto",
        [](panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(8); }},
};

/// What further settings make of the plain look.
constexpr std::array settings{
    Look{
        "EmbossedInAColour",
        [](panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(6); }},
    Look{
        "EmbossedInAnotherColour",
        [](panels::WatermarkPanel& panel) {
            panel.pubWatermarkTextEffect.selectItemAtIndex(6);
            panel.cwEmbossColor.setColor({.red = 1, .green = 0, .blue = 0.2});
        }},
    Look{
        "EmbossedWithTheLastRelief",
        [](panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(9); }},
    Look{
        "EmbossedAndTiled",
        [](panels::WatermarkPanel& panel) {
            embossed(panel);
            tiled(panel);
        }},
    Look{
        "ShadowedInAColour",
        [](panels::WatermarkPanel& panel) {
            shadowedMark(panel);
            panel.cwShadowColor.setColor({.red = 1, .green = 0, .blue = 0});
        }},
    Look{
        "ShadowedFromFar",
        [](panels::WatermarkPanel& panel) {
            shadowedMark(panel);
            panel.tfTextShadowXOffset.setStringValue(u"9"_s);
        }},
    Look{
        "ShadowedFromAbove",
        [](panels::WatermarkPanel& panel) {
            shadowedMark(panel);
            panel.tfTextShadowYOffset.setStringValue(u"-9"_s);
        }},
    Look{
        "ShadowedSharply",
        [](panels::WatermarkPanel& panel) {
            shadowedMark(panel);
            panel.tfTextShadowRadius.setStringValue(u"1"_s);
        }},
    Look{"Bold", [](panels::WatermarkPanel& panel) { panel.cbFontBold.setState(1); }},
    Look{"Italic", [](panels::WatermarkPanel& panel) { panel.cbFontItalic.setState(1); }},
    Look{
        "UnderlinedThinly",
        [](panels::WatermarkPanel& panel) { panel.pubTxtUnderline.selectItemAtIndex(1); }},
    Look{
        "UnderlinedThickly",
        [](panels::WatermarkPanel& panel) { panel.pubTxtUnderline.selectItemAtIndex(2); }},
    Look{"Outlined", [](panels::WatermarkPanel& panel) { panel.cbOutlineCheck.setState(1); }},
    Look{
        "OutlinedHeavily",
        [](panels::WatermarkPanel& panel) {
            panel.cbOutlineCheck.setState(1);
            panel.pubOutlineThickness.selectItemAtIndex(4);
        }},
    Look{"Kerned", [](panels::WatermarkPanel& panel) { panel.tfKerning.setStringValue(u"5"_s); }},
    Look{"Leaded", [](panels::WatermarkPanel& panel) { panel.tfLeading.setStringValue(u"20"_s); }},
    Look{"Centred", [](panels::WatermarkPanel& panel) { panel.scTxtAlign.setSelectedSegment(1); }},
    Look{
        "RightAligned",
        [](panels::WatermarkPanel& panel) { panel.scTxtAlign.setSelectedSegment(2); }},
    Look{
        "Coloured",
        [](panels::WatermarkPanel& panel) {
            panel.cwFontColor.setColor({.red = 0, .green = 0.2, .blue = 0.9});
        }},
    Look{
        "Smaller", [](panels::WatermarkPanel& panel) { panel.tfFontSize.setStringValue(u"40"_s); }},
    Look{
        "InAnotherFont",
        [](panels::WatermarkPanel& panel) { panel.cbFontList.selectItemAtIndex(1); }},
    Look{
        "OfAnotherText",
        [](panels::WatermarkPanel& panel) {
            panel.tvWaterMarkText.setStringValue(u"Mark <[IMGH]>\nof it"_s);
        }},
    Look{
        "AtTheTop",
        [](panels::WatermarkPanel& panel) { panel.scWaterMarkPos.setSelectedSegment(1); }},
    Look{
        "MovedRight",
        [](panels::WatermarkPanel& panel) { panel.tfXOffset.setStringValue(u"7"_s); }},
    Look{"MovedUp", [](panels::WatermarkPanel& panel) { panel.tfYOffset.setStringValue(u"7"_s); }},
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

/// A mark of two lines of different lengths in the middle.
void showPlainMark(panels::WatermarkPanel& panel)
{
    panel.cbFontList.setTitles({u"DejaVu Sans"_s, u"DejaVu Serif"_s});
    panel.tvWaterMarkText.setStringValue(u"Mark <[IMGW]>\nof it"_s);
    panel.tfFontSize.setStringValue(u"48"_s);
    panel.scWaterMarkPos.setSelectedSegment(4);
}

class PreviewAgreement : public testing::TestWithParam<std::tuple<Kind, Look>>
{
protected:
    PreviewAgreement()
    {
        showPlainMark(panel);
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
        return builder.write(folder.path(u"photo."_s + type()));
    }

    static QString type() { return QString::fromLatin1(std::get<Kind>(GetParam()).type); }

    /// All samples of a picture, whatever its depth and colour model, as the bytes of a file.
    QByteArray samplesOf(const platform::graphics::Image& image) const
    {
        const QString path = folder.path(u"samples.tiff"_s);
        if (!platform::codecs::encode(image, platform::codecs::FileFormat::Tiff, {}, path))
            return {};
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    platform::graphics::Image written(const QString& path)
    {
        const QString target = folder.path(u"out/"_s);
        QDir().mkpath(target);
        test::SavingSink sink;
        mark.setWatermarkText(
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

    std::optional<platform::graphics::Image> shown(const QString& path)
    {
        return workspace::composed(photos.photo(path), mark.setWatermarkTextPreview(path));
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

TEST(Preview, HasALookOfItsOwnForEachSetting)
{
    const test::TemporaryFolder folder;
    const QString photo = test::PhotoBuilder()
                              .size(320, 200)
                              .gradient()
                              .format(test::PhotoFormat::Png)
                              .write(folder.path(u"photo.png"_s));
    QList<QPair<std::string, QImage>> seen;
    const auto look = [&](const Look& chosen) {
        panels::WatermarkPanel panel;
        controls::ProgressIndicator bar{u"bar"_s};
        workspace::PreviewPhotos photos;
        watermark::DVWatermark mark{
            {.panel = panel,
             .bar = bar,
             .outputName = platform::lastPathComponent,
             .previewPhoto = [&photos](const QString& path) { return photos.photo(path); }}};
        showPlainMark(panel);
        chosen.choose(panel);
        const QImage shown = mark.setWatermarkTextPreview(photo)->toQImage();
        for (const auto& [name, image] : seen)
            EXPECT_GT(test::largestDifference(shown, image), 8) << chosen.name << ", " << name;
        seen.append({chosen.name, shown});
    };

    for (const Look& chosen : looks)
        look(chosen);
    for (const Look& chosen : settings)
        look(chosen);
}
