// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_fixture.h"

#include <platform/foundation/literals.h>
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
    const QString first = darkPhoto(u"a.jpg"_s);
    const QString second = darkPhoto(u"b.jpg"_s);

    EXPECT_EQ(run({first, second}), u"b.jpg"_s);

    ASSERT_EQ(done.size(), 2);
    EXPECT_EQ(done.at(1).source, second);
    EXPECT_EQ(done.at(1).target, folder.path(u"b.png"_s));
    EXPECT_EQ(done.at(1).word, u"OK"_s);
    const QImage result = test::storedPixels(done.at(1).target);
    EXPECT_EQ(result.pixel(60, 40), qRgb(255, 255, 255));
    EXPECT_NEAR(qRed(result.pixel(2, 2)), 10, 3);
}

TEST_F(TextWatermark, UsesTheNameAfterTheChainOfActions)
{
    chainPrefix = u"new_"_s;

    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s)}), u"new_a.jpg"_s);

    EXPECT_TRUE(QFileInfo::exists(folder.path(u"new_a.png"_s)));
}

TEST_F(TextWatermark, ShowsTheNameAfterTheChainOfActionsWithItsExtension)
{
    chainPrefix = u"new_"_s;
    panel.tfFontSize.setStringValue(u"12"_s);
    panel.tvWaterMarkText.setStringValue(u"<[IMGFN]>"_s);
    const QString photo = darkPhoto(u"a.jpg"_s);
    const auto byPlaceholder = mark.setWatermarkTextPreview(photo);

    panel.tvWaterMarkText.setStringValue(u"new_a.jpg"_s);
    const auto byName = mark.setWatermarkTextPreview(photo);

    EXPECT_EQ(byPlaceholder->toQImage(), byName->toQImage());
}

TEST_F(TextWatermark, KeepsTheOriginalFileType)
{
    run({darkPhoto(u"a.jpeg"_s)}, u"original file type"_s);

    EXPECT_EQ(done.value(0).target, folder.path(u"a.jpg"_s));
    EXPECT_TRUE(QFileInfo::exists(done.value(0).target));
}

TEST_F(TextWatermark, WithoutATextEndsTheRun)
{
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged.append(line); });
    panel.tvWaterMarkText.setStringValue({});

    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s)}), u"IOFailure"_s);

    EXPECT_TRUE(logged.contains(u"no watermark text"_s));
    EXPECT_EQ(done.value(0).word, u"IOFailure"_s);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"a.png"_s)));
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TextWatermark, OfPlaceholdersThatResolveToNothingGoesOn)
{
    panel.tvWaterMarkText.setStringValue(u"<[IMGCD]>"_s);

    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s)}), u"a.jpg"_s);

    EXPECT_NEAR(qRed(test::storedPixels(done.value(0).target).pixel(60, 40)), 10, 3);
}

TEST_F(TextWatermark, EndsAfterThePhotoInHandWhenTheProgramEnds)
{
    const QString first = darkPhoto(u"a.jpg"_s);
    const QString second = darkPhoto(u"b.jpg"_s);
    const auto closing = bar.changed.connect([this] {
        if (bar.doubleValue() > 0)
            bar.askToEnd();
    });

    EXPECT_EQ(run({first, second}), u"IOFailure"_s);

    ASSERT_EQ(done.size(), 1);
    EXPECT_EQ(done.first().word, u"OK"_s);
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TextWatermark, OfAnUnreadablePhotoEndsTheRun)
{
    const QString good = darkPhoto(u"a.jpg"_s);
    const QString bad = sources.write(u"b.jpg"_s, "no picture");
    const QString never = darkPhoto(u"c.jpg"_s);

    EXPECT_EQ(run({good, bad, never}), u"IOFailure"_s);

    EXPECT_EQ(done.size(), 2);
    EXPECT_TRUE(QFileInfo::exists(folder.path(u"a.png"_s)));
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"c.png"_s)));
}

TEST_F(TextWatermark, OfADamagedPhotoFailsAndGoesOn)
{
    const QByteArray whole
        = PhotoBuilder().size(400, 300).gradient().format(PhotoFormat::Jpeg).bytes();
    const QString damaged = sources.write(u"a.jpg"_s, whole.left(whole.size() / 2));
    const QString good = darkPhoto(u"b.jpg"_s);

    EXPECT_EQ(run({damaged, good}), u"b.jpg"_s);

    EXPECT_EQ(done.value(0).word, u"Failed"_s);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"a.png"_s)));
    EXPECT_EQ(done.value(1).word, u"OK"_s);
}

TEST_F(TextWatermark, IntoHeicFails)
{
    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s)}, u"public.heic"_s), u"IOFailure"_s);

    EXPECT_EQ(done.value(0).word, u"Failed"_s);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"a.heic"_s)));
}

TEST_F(TextWatermark, OnlyTheLastPhotoDecidesTheAnswer)
{
    const QString bad = darkPhoto(u"a.xyz"_s);
    const QString good = darkPhoto(u"b.jpg"_s);

    EXPECT_EQ(run({bad, good}, u"original file type"_s), u"b.jpg"_s);
    EXPECT_EQ(done.value(0).word, u"Failed"_s);
}

TEST_F(TextWatermark, DrawsUprightAndCarriesTheMetadataUnchanged)
{
    const QByteArray exif = test::exifBlock({.orientation = 6, .make = "Maker"});
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .solid({10, 20, 30})
                              .exif(exif)
                              .write(sources.path(u"a.jpg"_s));

    run({photo}, u"public.jpeg"_s);

    const auto header = test::openedPhoto(done.value(0).target).header();
    EXPECT_EQ(header.storedSize, (platform::graphics::PixelSize{80, 120}));
    EXPECT_EQ(platform::metadata::readMetadataBlocks(done.value(0).target)->exif, exif);
}

TEST_F(TextWatermark, StepsTheBarByWholeNumbersOfAnEleventhOfAPhoto)
{
    double highest = 0;
    const auto subscription
        = bar.changed.connect([&] { highest = std::max(highest, bar.doubleValue()); });

    run({darkPhoto(u"a.jpg"_s)});

    EXPECT_EQ(highest, 11 * 90);
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TextWatermark, OfNinetyOnePhotosLeavesTheBarStill)
{
    double highest = 0;
    const auto subscription
        = bar.changed.connect([&] { highest = std::max(highest, bar.doubleValue()); });
    const QString photo = PhotoBuilder().size(8, 8).write(sources.path(u"a.jpg"_s));

    run(QStringList(91, photo));

    EXPECT_EQ(done.size(), 91);
    EXPECT_EQ(highest, 0);
}

TEST_F(TextWatermark, PreviewIsTheWrittenFilePixelByPixel)
{
    panel.tfWMAngle.setStringValue(u"17"_s);
    panel.cbShadowCheck.setState(1);
    const QString photo = PhotoBuilder()
                              .size(160, 120)
                              .gradient()
                              .format(PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));
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

    const auto preview = mark.setWatermarkTextPreview(darkPhoto(u"a.jpg"_s));

    ASSERT_TRUE(preview.has_value());
    EXPECT_EQ(preview->pixelSize(), (platform::graphics::PixelSize{120, 80}));
    EXPECT_EQ(timesAsked, 0);
    EXPECT_FALSE(preview->toQImage().isNull());
    EXPECT_EQ(timesAsked, 1);
}

TEST_F(TextWatermark, PreviewKeepsTheSettingsOfItsMoment)
{
    const auto preview = mark.setWatermarkTextPreview(darkPhoto(u"a.jpg"_s));

    panel.tvWaterMarkText.setStringValue(u" "_s);

    EXPECT_EQ(preview->toQImage().pixel(60, 40), qRgb(255, 255, 255));
}

TEST_F(TextWatermark, PreviewWithoutATextIsNothing)
{
    panel.tvWaterMarkText.setStringValue({});

    EXPECT_FALSE(mark.setWatermarkTextPreview(darkPhoto(u"a.jpg"_s)).has_value());
}

TEST_F(TextWatermark, IsCompressedAsTheLevelSays)
{
    const QString photo = PhotoBuilder()
                              .size(160, 120)
                              .gradient()
                              .format(PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));
    const auto written = [&](const QString& level) {
        mark.setWatermarkText(
            {.photos = {photo},
             .destination = folder.path(),
             .outputType = u"public.jpeg"_s,
             .compressionLevel = level,
             .fileNameText = {},
             .photoProperty = 0},
            sink
        );
        return QFileInfo(folder.path(u"a.jpg"_s)).size();
    };

    EXPECT_LT(written(u"1"_s), written(u"6"_s));
    EXPECT_LT(written(u"6"_s), written(u"10"_s));
}

TEST_F(TextWatermark, PreviewStopsTheBar)
{
    const QString photo = darkPhoto(u"a.jpg"_s);
    for (const QString& text : {u"a text"_s, QString()}) {
        panel.tvWaterMarkText.setStringValue(text);
        bar.setHidden(false);

        (void)mark.setWatermarkTextPreview(photo);

        EXPECT_TRUE(bar.isHidden());
    }
}
