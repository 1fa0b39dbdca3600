// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/dv_watermark.h>

#include <panels/watermark_panel.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/graphics/image_source.h>
#include <platform/metadata/metadata_reader.h>
#include <support/color_profiles.h>
#include <support/exif_block.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QFileInfo>

using namespace brenvaldo;
using namespace brenvaldo::watermark;
using test::PhotoBuilder;
using test::PhotoFormat;
using test::PhotoModel;

namespace {

class TextWatermark : public testing::Test
{
protected:
    TextWatermark()
    {
        panel.cbFontList.setTitles({QStringLiteral("DejaVu Sans Mono")});
        panel.tvWaterMarkText.setStringValue(QStringLiteral("\u2588\u2588"));
        panel.tfFontSize.setStringValue(QStringLiteral("20"));
        panel.tfFontTransparancy.setStringValue(QStringLiteral("0"));
        panel.scWaterMarkPos.setSelectedSegment(4);
    }

    ~TextWatermark() override { platform::setLogSink({}); }

    QString run(const QStringList& photos, const QString& outputType = QStringLiteral("public.png"))
    {
        return mark.setWatermarkText(
            {.photos = photos,
             .destination = folder.path(),
             .outputType = outputType,
             .compressionLevel = QStringLiteral("9"),
             .fileNameText = {},
             .photoProperty = 0},
            [this](const MarkedPhoto& photo) { done.append(photo); }
        );
    }

    QString darkPhoto(const QString& name)
    {
        return PhotoBuilder().size(120, 80).solid({10, 20, 30}).write(sources.path(name));
    }

    test::TemporaryFolder sources;
    test::TemporaryFolder folder;
    panels::WatermarkPanel panel;
    controls::ProgressIndicator bar{QStringLiteral("bar")};
    QString chainPrefix;
    QList<MarkedPhoto> done;
    DVWatermark mark{
        {.panel = panel,
         .bar = bar,
         .outputName
         = [this](const QString& path) { return chainPrefix + platform::lastPathComponent(path); },
         .previewPhoto = [](const QString& path) -> std::optional<platform::Image> {
             const auto source = platform::ImageSource::open(path);
             if (!source)
                 return std::nullopt;
             return source->uprightImage(
                 {.access = platform::ImageSource::Access::Random, .atLeast = {}}
             );
         }}};
};

} // namespace

TEST_F(TextWatermark, WritesAMarkedFileAPhoto)
{
    const QString first = darkPhoto(QStringLiteral("a.jpg"));
    const QString second = darkPhoto(QStringLiteral("b.jpg"));

    EXPECT_EQ(run({first, second}), QStringLiteral("b.jpg"));

    ASSERT_EQ(done.size(), 2);
    EXPECT_EQ(done.at(1).source, second);
    EXPECT_EQ(done.at(1).target, folder.path(QStringLiteral("b.png")));
    EXPECT_EQ(done.at(1).word, QStringLiteral("OK"));
    const QImage result = test::storedPixels(done.at(1).target);
    EXPECT_EQ(result.pixel(60, 40), qRgb(255, 255, 255));
    EXPECT_NEAR(qRed(result.pixel(2, 2)), 10, 3);
}

TEST_F(TextWatermark, UsesTheNameAfterTheChainOfActions)
{
    chainPrefix = QStringLiteral("new_");

    EXPECT_EQ(run({darkPhoto(QStringLiteral("a.jpg"))}), QStringLiteral("new_a.jpg"));

    EXPECT_TRUE(QFileInfo::exists(folder.path(QStringLiteral("new_a.png"))));
}

TEST_F(TextWatermark, KeepsTheOriginalFileType)
{
    run({darkPhoto(QStringLiteral("a.jpeg"))}, QStringLiteral("original file type"));

    EXPECT_EQ(done.value(0).target, folder.path(QStringLiteral("a.jpg")));
    EXPECT_TRUE(QFileInfo::exists(done.value(0).target));
}

TEST_F(TextWatermark, WithoutATextEndsTheRun)
{
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged.append(line); });
    panel.tvWaterMarkText.setStringValue({});

    EXPECT_EQ(run({darkPhoto(QStringLiteral("a.jpg"))}), QStringLiteral("IOFailure"));

    EXPECT_TRUE(logged.contains(QStringLiteral("no watermark text")));
    EXPECT_EQ(done.value(0).word, QStringLiteral("IOFailure"));
    EXPECT_FALSE(QFileInfo::exists(folder.path(QStringLiteral("a.png"))));
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TextWatermark, OfPlaceholdersThatResolveToNothingGoesOn)
{
    panel.tvWaterMarkText.setStringValue(QStringLiteral("<[IMGCD]>"));

    EXPECT_EQ(run({darkPhoto(QStringLiteral("a.jpg"))}), QStringLiteral("a.jpg"));

    EXPECT_NEAR(qRed(test::storedPixels(done.value(0).target).pixel(60, 40)), 10, 3);
}

TEST_F(TextWatermark, OfAnUnreadablePhotoEndsTheRun)
{
    const QString good = darkPhoto(QStringLiteral("a.jpg"));
    const QString bad = sources.write(QStringLiteral("b.jpg"), "no picture");
    const QString never = darkPhoto(QStringLiteral("c.jpg"));

    EXPECT_EQ(run({good, bad, never}), QStringLiteral("IOFailure"));

    EXPECT_EQ(done.size(), 2);
    EXPECT_TRUE(QFileInfo::exists(folder.path(QStringLiteral("a.png"))));
    EXPECT_FALSE(QFileInfo::exists(folder.path(QStringLiteral("c.png"))));
}

TEST_F(TextWatermark, OfADamagedPhotoFailsAndGoesOn)
{
    const QByteArray whole
        = PhotoBuilder().size(400, 300).gradient().format(PhotoFormat::Jpeg).bytes();
    const QString damaged = sources.write(QStringLiteral("a.jpg"), whole.left(whole.size() / 2));
    const QString good = darkPhoto(QStringLiteral("b.jpg"));

    EXPECT_EQ(run({damaged, good}), QStringLiteral("b.jpg"));

    EXPECT_EQ(done.value(0).word, QStringLiteral("Failed"));
    EXPECT_FALSE(QFileInfo::exists(folder.path(QStringLiteral("a.png"))));
    EXPECT_EQ(done.value(1).word, QStringLiteral("OK"));
}

TEST_F(TextWatermark, IntoHeicFails)
{
    EXPECT_EQ(
        run({darkPhoto(QStringLiteral("a.jpg"))}, QStringLiteral("public.heic")),
        QStringLiteral("IOFailure")
    );

    EXPECT_EQ(done.value(0).word, QStringLiteral("Failed"));
    EXPECT_FALSE(QFileInfo::exists(folder.path(QStringLiteral("a.heic"))));
}

TEST_F(TextWatermark, OnlyTheLastPhotoDecidesTheAnswer)
{
    const QString bad = darkPhoto(QStringLiteral("a.xyz"));
    const QString good = darkPhoto(QStringLiteral("b.jpg"));

    EXPECT_EQ(run({bad, good}, QStringLiteral("original file type")), QStringLiteral("b.jpg"));
    EXPECT_EQ(done.value(0).word, QStringLiteral("Failed"));
}

TEST_F(TextWatermark, DrawsUprightAndCarriesTheMetadataUnchanged)
{
    const QByteArray exif = test::exifBlock({.orientation = 6, .make = "Maker"});
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .solid({10, 20, 30})
                              .exif(exif)
                              .write(sources.path(QStringLiteral("a.jpg")));

    run({photo}, QStringLiteral("public.jpeg"));

    const auto header = test::openedPhoto(done.value(0).target).header();
    EXPECT_EQ(header.storedSize, (platform::PixelSize{80, 120}));
    EXPECT_EQ(platform::readMetadataBlocks(done.value(0).target)->exif, exif);
}

TEST_F(TextWatermark, StepsTheBarByWholeNumbersOfAnEleventhOfAPhoto)
{
    double highest = 0;
    const auto subscription
        = bar.changed.connect([&] { highest = std::max(highest, bar.doubleValue()); });

    run({darkPhoto(QStringLiteral("a.jpg"))});

    EXPECT_EQ(highest, 11 * 90);
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TextWatermark, OfNinetyOnePhotosLeavesTheBarStill)
{
    double highest = 0;
    const auto subscription
        = bar.changed.connect([&] { highest = std::max(highest, bar.doubleValue()); });
    const QString photo = PhotoBuilder().size(8, 8).write(sources.path(QStringLiteral("a.jpg")));

    run(QStringList(91, photo));

    EXPECT_EQ(done.size(), 91);
    EXPECT_EQ(highest, 0);
}

TEST_F(TextWatermark, PreviewIsTheWrittenFilePixelByPixel)
{
    panel.tfWMAngle.setStringValue(QStringLiteral("17"));
    panel.cbShadowCheck.setState(1);
    const QString photo = PhotoBuilder()
                              .size(160, 120)
                              .gradient()
                              .format(PhotoFormat::Png)
                              .write(sources.path(QStringLiteral("a.png")));
    run({photo});

    const auto preview = mark.setWatermarkTextPreview(photo);

    ASSERT_TRUE(preview.has_value());
    EXPECT_EQ(
        test::largestDifference(preview->toQImage(), test::storedPixels(done.value(0).target)), 0
    );
}

TEST_F(TextWatermark, PreviewWithoutATextIsNothing)
{
    panel.tvWaterMarkText.setStringValue({});

    EXPECT_FALSE(mark.setWatermarkTextPreview(darkPhoto(QStringLiteral("a.jpg"))).has_value());
}

namespace {

struct KindCase
{
    const char* name;
    PhotoModel model;
    int depth;
    PhotoFormat format;
    const char* outputType;

    friend void PrintTo(const KindCase& row, std::ostream* out) { *out << row.name; }
};

class MarkedPhotoKind : public TextWatermark, public testing::WithParamInterface<KindCase>
{
};

} // namespace

TEST_P(MarkedPhotoKind, KeepsItsKindAndShowsAWhiteMark)
{
    const KindCase& row = GetParam();
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .model(row.model)
                              .depth(row.depth)
                              .solid({40, 40, 40, 128, 255})
                              .format(row.format)
                              .write(sources.path(QStringLiteral("a.tif")));
    const platform::ImageHeader before = test::openedPhoto(photo).header();

    run({photo}, QString::fromLatin1(row.outputType));

    ASSERT_EQ(done.value(0).word, QStringLiteral("OK"));
    const platform::ImageHeader after = test::openedPhoto(done.value(0).target).header();
    EXPECT_EQ(after.bitsPerComponent, before.bitsPerComponent);
    EXPECT_EQ(after.colorModel, before.colorModel);
    EXPECT_EQ(after.hasAlpha, before.hasAlpha);
    const QRgb middle = test::storedPixels(done.value(0).target).pixel(60, 40);
    EXPECT_GT(qRed(middle), 245);
    EXPECT_GT(qGreen(middle), 245);
    EXPECT_GT(qBlue(middle), 245);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MarkedPhotoKind,
    testing::Values(
        KindCase{"Grey8", PhotoModel::Gray, 8, PhotoFormat::Tiff, "public.tiff"},
        KindCase{"Grey16", PhotoModel::Gray, 16, PhotoFormat::Tiff, "public.png"},
        KindCase{"Rgb16", PhotoModel::Rgb, 16, PhotoFormat::Tiff, "public.tiff"},
        KindCase{"RgbAlpha8", PhotoModel::RgbAlpha, 8, PhotoFormat::Png, "public.png"},
        KindCase{"RgbAlpha16", PhotoModel::RgbAlpha, 16, PhotoFormat::Png, "public.png"},
        KindCase{"Cmyk8", PhotoModel::Cmyk, 8, PhotoFormat::Tiff, "public.tiff"}
    ),
    [](const auto& row) { return row.param.name; }
);

namespace {

struct WideCase
{
    const char* name;
    int depth;
    PhotoModel model;

    friend void PrintTo(const WideCase& row, std::ostream* out) { *out << row.name; }
};

class MarkedWidePhoto : public TextWatermark, public testing::WithParamInterface<WideCase>
{
};

} // namespace

TEST_P(MarkedWidePhoto, KeepsItsProfileAndShowsTheColourThatWasPicked)
{
    panel.cwFontColor.setColor({.red = 0.8, .green = 0.2, .blue = 0.4});
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .model(GetParam().model)
                              .depth(GetParam().depth)
                              .solid({40, 40, 40, 255})
                              .iccProfile(test::wideProfile())
                              .format(PhotoFormat::Png)
                              .write(sources.path(QStringLiteral("a.png")));

    run({photo});

    const auto written = test::openedPhoto(done.value(0).target).image();
    ASSERT_TRUE(written.has_value());
    EXPECT_EQ(written->iccProfile(), test::wideProfile());
    EXPECT_EQ(written->bitsPerComponent(), GetParam().depth);
    const QRgb middle = written->toQImage().pixel(60, 40);
    EXPECT_NEAR(qRed(middle), 204, 2);
    EXPECT_NEAR(qGreen(middle), 51, 2);
    EXPECT_NEAR(qBlue(middle), 102, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MarkedWidePhoto,
    testing::Values(
        WideCase{"Rgb8", 8, PhotoModel::Rgb},
        WideCase{"Rgb16", 16, PhotoModel::Rgb},
        WideCase{"RgbAlpha8", 8, PhotoModel::RgbAlpha}
    ),
    [](const auto& row) { return row.param.name; }
);
