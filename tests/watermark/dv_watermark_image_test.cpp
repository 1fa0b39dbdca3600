// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_fixture.h"

#include <platform/metadata/metadata_reader.h>
#include <support/exif_block.h>
#include <support/text_printing.h>

#include <QFileInfo>

using namespace brenvaldo;
using test::ImageWatermark;
using test::PhotoBuilder;
using test::PhotoFormat;

TEST_F(ImageWatermark, WritesAMarkedFileAPhoto)
{
    const QString first = darkPhoto(u"a.jpg"_s);
    const QString second = darkPhoto(u"b.jpg"_s);

    EXPECT_EQ(run({first, second}), u"b.jpg"_s);

    ASSERT_EQ(done.size(), 2);
    EXPECT_EQ(done.at(1).source, second);
    EXPECT_EQ(done.at(1).target, folder.path(u"b.png"_s));
    EXPECT_EQ(done.at(1).word, u"OK"_s);
    const QImage result = test::storedPixels(done.at(1).target);
    EXPECT_EQ(result.pixel(5, 5), qRgb(200, 40, 20));
    EXPECT_NEAR(qRed(result.pixel(60, 40)), 10, 3);
}

TEST_F(ImageWatermark, UsesTheNameAfterTheChainOfActions)
{
    chainPrefix = u"new_"_s;

    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s)}), u"new_a.jpg"_s);

    EXPECT_TRUE(QFileInfo::exists(folder.path(u"new_a.png"_s)));
}

TEST_F(ImageWatermark, KeepsTheOriginalFileTypeAndTheMetadata)
{
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .exif(test::exifBlock({.make = "Maker"}))
                              .write(sources.path(u"a.jpg"_s));

    run({photo}, u"original file type"_s);

    EXPECT_EQ(done.value(0).target, folder.path(u"a.jpg"_s));
    const auto before = platform::metadata::readMetadataBlocks(photo);
    const auto after = platform::metadata::readMetadataBlocks(done.value(0).target);
    ASSERT_TRUE(before && after);
    EXPECT_EQ(after->exif, before->exif);
}

TEST_F(ImageWatermark, WithoutAnImageEndsTheRun)
{
    panel.tfWaterMarkImageFilePath.setStringValue({});

    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s), darkPhoto(u"b.jpg"_s)}), u"IOFailure"_s);

    ASSERT_EQ(done.size(), 1);
    EXPECT_EQ(done.at(0).word, u"IOFailure"_s);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"a.png"_s)));
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(ImageWatermark, WithoutPhotosFails) { EXPECT_EQ(run({}), u"IOFailure"_s); }

namespace {

struct BadImage
{
    const char* name;
    QByteArray (*bytes)();

    friend void PrintTo(const BadImage& row, std::ostream* out) { *out << row.name; }
};

QByteArray logoBytes() { return PhotoBuilder().size(80, 60).format(PhotoFormat::Png).bytes(); }

QByteArray damaged()
{
    return PhotoBuilder().size(300, 300).format(PhotoFormat::Png).bytes().left(3000);
}

/// States more pixels than any image may have.
QByteArray huge()
{
    QByteArray bytes = logoBytes();
    return bytes.replace(16, 8, QByteArray::fromHex("0001000000010000"));
}

class BadMark : public ImageWatermark, public testing::WithParamInterface<BadImage>
{
};

} // namespace

TEST_P(BadMark, EndsTheRunAndHasNoPreview)
{
    const QString path = sources.write(u"bad.png"_s, GetParam().bytes());
    panel.tfWaterMarkImageFilePath.setStringValue(path);
    const QString photo = darkPhoto(u"a.jpg"_s);
    for (const int isPattern : {0, 1}) {
        panel.cbPatternCheck.setState(isPattern);

        EXPECT_EQ(run({photo, darkPhoto(u"b.jpg"_s)}), u"IOFailure"_s);

        EXPECT_EQ(done.last().source, photo);
        EXPECT_EQ(done.last().word, u"IOFailure"_s);
        EXPECT_FALSE(QFileInfo::exists(folder.path(u"a.png"_s)));
        EXPECT_FALSE(mark.setWatermarkImagePreview(photo));
        EXPECT_TRUE(bar.isHidden());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    BadMark,
    testing::Values(
        BadImage{"Empty", [] { return QByteArray(); }},
        BadImage{"NoImage", [] { return QByteArray("a text"); }},
        BadImage{"Damaged", damaged},
        BadImage{"Huge", huge}
    ),
    [](const auto& row) { return row.param.name; }
);

namespace {

/// More pixels than are kept decoded.
QImage vastImage()
{
    QImage image(6000, 6000, QImage::Format_Grayscale8);
    image.fill(200);
    return image;
}

} // namespace

TEST_F(ImageWatermark, MayBeVast)
{
    useImage(vastImage());
    panel.mxImageScaleProperty.selectRow(1);
    panel.tfImageScalePC.setStringValue(u"25"_s);
    const QRect area(0, 0, 30, 30);

    EXPECT_EQ(markedArea(marked()), area);
    EXPECT_EQ(markedArea(mark.setWatermarkImagePreview(grayPhoto())->toQImage()), area);
}

TEST_F(ImageWatermark, VastAndDamagedEndsTheRun)
{
    const QString path = useImage(vastImage());
    ASSERT_TRUE(QFile::resize(path, QFileInfo(path).size() / 2));
    const QString photo = grayPhoto();

    EXPECT_EQ(run({photo}), u"IOFailure"_s);

    EXPECT_EQ(done.value(0).word, u"IOFailure"_s);
    const auto shown = mark.setWatermarkImagePreview(photo);
    EXPECT_TRUE(!shown || shown->toQImage().isNull());
}

TEST_F(ImageWatermark, ThatIsGoneEndsTheRunWhereItGoes)
{
    const QString image = panel.tfWaterMarkImageFilePath.stringValue();
    const QString first = darkPhoto(u"a.jpg"_s);
    const QString second = darkPhoto(u"b.jpg"_s);
    int steps = 0;
    const auto subscription = bar.changed.connect([&] {
        if (bar.doubleValue() > 0 && ++steps == 20)
            QFile::remove(image);
    });

    EXPECT_EQ(run({first, second}), u"IOFailure"_s);

    ASSERT_EQ(done.size(), 2);
    EXPECT_EQ(done.at(0).word, u"OK"_s);
    EXPECT_EQ(done.at(1).word, u"IOFailure"_s);
    EXPECT_TRUE(QFileInfo::exists(folder.path(u"a.png"_s)));
}

TEST_F(ImageWatermark, PassesOverAPhotoThatCantBeRead)
{
    const QString broken = sources.write(u"broken.png"_s, "no photo");

    EXPECT_EQ(run({broken, darkPhoto(u"b.jpg"_s)}), u"b.jpg"_s);

    ASSERT_EQ(done.size(), 2);
    EXPECT_EQ(done.at(0).word, u"Failed"_s);
    EXPECT_EQ(done.at(1).word, u"OK"_s);
}

TEST_F(ImageWatermark, AnswersByTheLastPhotoAlone)
{
    const QString broken = sources.write(u"broken.png"_s, "no photo");

    EXPECT_EQ(run({darkPhoto(u"a.jpg"_s), broken}), u"IOFailure"_s);
}

TEST_F(ImageWatermark, TakesFifteenSteps)
{
    QList<double> values;
    const auto subscription = bar.changed.connect([&] {
        if (bar.doubleValue() > 0 && values.value(values.size() - 1) != bar.doubleValue())
            values.append(bar.doubleValue());
    });

    run({darkPhoto(u"a.jpg"_s), darkPhoto(u"b.jpg"_s)});

    EXPECT_EQ(values.size(), 30);
    EXPECT_EQ(values.value(0), 33);
    EXPECT_EQ(values.last(), 990);
}

TEST_F(ImageWatermark, ReadsTheSettingsAfreshForEachPhoto)
{
    int steps = 0;
    const auto subscription = bar.changed.connect([&] {
        if (bar.doubleValue() > 0 && ++steps == 15)
            panel.scImageWaterMarkPos.setSelectedSegment(8);
    });

    run({grayPhoto(u"a.png"_s), grayPhoto(u"b.png"_s)});

    EXPECT_EQ(markedArea(test::storedPixels(folder.path(u"a.png"_s))), QRect(0, 0, 20, 10));
    EXPECT_EQ(markedArea(test::storedPixels(folder.path(u"b.png"_s))), QRect(100, 70, 20, 10));
}

TEST_F(ImageWatermark, IsMadeReadyForEachSizeOfPhotos)
{
    panel.scImageWaterMarkPos.setSelectedSegment(8);
    panel.mxImageScaleProperty.selectRow(1);
    panel.tfImageScalePC.setStringValue(u"50"_s);

    run({grayPhoto(u"a.png"_s, {120, 80}), grayPhoto(u"b.png"_s, {80, 120})});

    EXPECT_EQ(markedArea(test::storedPixels(folder.path(u"a.png"_s))), QRect(60, 50, 60, 30));
    EXPECT_EQ(markedArea(test::storedPixels(folder.path(u"b.png"_s))), QRect(40, 100, 40, 20));
}

TEST_F(ImageWatermark, PreviewsWithoutWritingAFile)
{
    const auto shown = mark.setWatermarkImagePreview(grayPhoto());

    ASSERT_TRUE(shown);
    EXPECT_EQ(markedArea(shown->toQImage()), QRect(0, 0, 20, 10));
    EXPECT_TRUE(done.isEmpty());
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(ImageWatermark, HasNoPreviewWithoutAnImageOrAPhoto)
{
    EXPECT_FALSE(mark.setWatermarkImagePreview(sources.path(u"none.png"_s)));

    const QString photo = grayPhoto();
    panel.tfWaterMarkImageFilePath.setStringValue({});
    EXPECT_FALSE(mark.setWatermarkImagePreview(photo));
    panel.tfWaterMarkImageFilePath.setStringValue(sources.path(u"gone.png"_s));
    EXPECT_FALSE(mark.setWatermarkImagePreview(photo));
}

TEST_F(ImageWatermark, ReplacesAFadeAngleThatIsNone)
{
    panel.cbImageFadeOut.setState(1);
    panel.tfImageFadeOutAngle.setStringValue(u"400"_s);

    run({grayPhoto()});

    EXPECT_EQ(panel.tfImageFadeOutAngle.stringValue(), u"0"_s);
}

TEST_F(ImageWatermark, MayBeAScalableDrawingOrAHeic)
{
    const QString drawing = sources.write(
        u"logo.svg"_s,
        "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
        "<rect width='20' height='10' fill='rgb(200,40,20)'/></svg>"
    );
    panel.tfWaterMarkImageFilePath.setStringValue(drawing);
    EXPECT_EQ(markedArea(marked()), QRect(0, 0, 20, 10));

    const QString heic = PhotoBuilder()
                             .size(64, 64)
                             .solid({200, 40, 20})
                             .format(PhotoFormat::Heic)
                             .write(sources.path(u"logo.heic"_s));
    panel.tfWaterMarkImageFilePath.setStringValue(heic);
    const QImage result = marked();
    EXPECT_EQ(markedArea(result), QRect(0, 0, 64, 64));
    EXPECT_NEAR(qRed(result.pixel(30, 30)), 200, 6);
}
