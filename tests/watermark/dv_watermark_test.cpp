// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_fixture.h"

#include <platform/foundation/log.h>
#include <platform/metadata/metadata_reader.h>
#include <support/exif_block.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QFileInfo>

using namespace brenvaldo;
using namespace brenvaldo::watermark;
using test::PhotoBuilder;
using test::PhotoFormat;
using test::TextWatermark;

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

TEST_F(TextWatermark, ShowsTheNameAfterTheChainOfActionsWithItsExtension)
{
    chainPrefix = QStringLiteral("new_");
    panel.tfFontSize.setStringValue(QStringLiteral("12"));
    panel.tvWaterMarkText.setStringValue(QStringLiteral("<[IMGFN]>"));
    const QString photo = darkPhoto(QStringLiteral("a.jpg"));
    const auto byPlaceholder = mark.setWatermarkTextPreview(photo);

    panel.tvWaterMarkText.setStringValue(QStringLiteral("new_a.jpg"));
    const auto byName = mark.setWatermarkTextPreview(photo);

    EXPECT_EQ(byPlaceholder->toQImage(), byName->toQImage());
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

TEST_F(TextWatermark, EndsAfterThePhotoInHandWhenTheProgramEnds)
{
    const QString first = darkPhoto(QStringLiteral("a.jpg"));
    const QString second = darkPhoto(QStringLiteral("b.jpg"));
    const auto closing = bar.changed.connect([this] {
        if (bar.doubleValue() > 0)
            bar.askToEnd();
    });

    EXPECT_EQ(run({first, second}), QStringLiteral("IOFailure"));

    ASSERT_EQ(done.size(), 1);
    EXPECT_EQ(done.first().word, QStringLiteral("OK"));
    EXPECT_TRUE(bar.isHidden());
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
    EXPECT_EQ(header.storedSize, (platform::graphics::PixelSize{80, 120}));
    EXPECT_EQ(platform::metadata::readMetadataBlocks(done.value(0).target)->exif, exif);
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

TEST_F(TextWatermark, PreviewDrawsTheMarkWhenItIsLookedAt)
{
    // The glyphs are filled with the photo, so that drawing them asks for its pixels.
    panel.pubWatermarkTextEffect.selectItemAtIndex(7);
    int timesAsked = 0;
    previewPhoto = [&timesAsked](const QString&) {
        QImage plain(120, 80, QImage::Format_RGB32);
        plain.fill(Qt::gray);
        return platform::drawing::stamped(
            platform::graphics::Image::fromQImage(plain),
            [&timesAsked] {
                ++timesAsked;
                return platform::drawing::Stamp();
            }
        );
    };

    const auto preview = mark.setWatermarkTextPreview(darkPhoto(QStringLiteral("a.jpg")));

    ASSERT_TRUE(preview.has_value());
    EXPECT_EQ(preview->pixelSize(), (platform::graphics::PixelSize{120, 80}));
    EXPECT_EQ(timesAsked, 0);
    EXPECT_FALSE(preview->toQImage().isNull());
    EXPECT_EQ(timesAsked, 1);
}

TEST_F(TextWatermark, PreviewKeepsTheSettingsOfItsMoment)
{
    const auto preview = mark.setWatermarkTextPreview(darkPhoto(QStringLiteral("a.jpg")));

    panel.tvWaterMarkText.setStringValue(QStringLiteral(" "));

    EXPECT_EQ(preview->toQImage().pixel(60, 40), qRgb(255, 255, 255));
}

TEST_F(TextWatermark, PreviewWithoutATextIsNothing)
{
    panel.tvWaterMarkText.setStringValue({});

    EXPECT_FALSE(mark.setWatermarkTextPreview(darkPhoto(QStringLiteral("a.jpg"))).has_value());
}

TEST_F(TextWatermark, IsCompressedAsTheLevelSays)
{
    const QString photo = PhotoBuilder()
                              .size(160, 120)
                              .gradient()
                              .format(PhotoFormat::Png)
                              .write(sources.path(QStringLiteral("a.png")));
    const auto written = [&](const QString& level) {
        mark.setWatermarkText(
            {.photos = {photo},
             .destination = folder.path(),
             .outputType = QStringLiteral("public.jpeg"),
             .compressionLevel = level,
             .fileNameText = {},
             .photoProperty = 0},
            sink
        );
        return QFileInfo(folder.path(QStringLiteral("a.jpg"))).size();
    };

    EXPECT_LT(written(QStringLiteral("1")), written(QStringLiteral("6")));
    EXPECT_LT(written(QStringLiteral("6")), written(QStringLiteral("10")));
}

TEST_F(TextWatermark, PreviewStopsTheBar)
{
    const QString photo = darkPhoto(QStringLiteral("a.jpg"));
    for (const QString& text : {QStringLiteral("a text"), QString()}) {
        panel.tvWaterMarkText.setStringValue(text);
        bar.setHidden(false);

        (void)mark.setWatermarkTextPreview(photo);

        EXPECT_TRUE(bar.isHidden());
    }
}
