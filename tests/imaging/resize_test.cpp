// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <platform/containers/type_identifier.h>
#include <platform/metadata/metadata_reader.h>

#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

#include <limits>
#include <map>

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;
using brenvaldo::platform::containers::MetadataBlocks;
using brenvaldo::platform::graphics::Image;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::platform::metadata::readMetadataBlocks;

namespace {

enum MaximumTypeIndex { Width = 0, Height = 1, LongestSide = 2, Percentage = 3 };

constexpr int stretched = 0;
constexpr int covering = 1;

OutputTail jpegToPng()
{
    return {
        .outputType = u"public.png"_s,
        .compressionLevel = u"9"_s,
        .fileExtension = u"jpg"_s,
        .fileExtensionNSStr = {},
        .fileUTI = u"public.jpeg"_s,
        .myFileType = u"public.png"_s,
    };
}

OutputTail jpegTail()
{
    OutputTail tail = jpegToPng();
    tail.outputType = u"original file type"_s;
    tail.myFileType = u"public.jpeg"_s;
    return tail;
}

/// Resizes as a run does: what the operation answers is saved at once.
class SavingHandling
{
public:
    ResultWord hScalePhotosPercentage(
        const SourceAndBase& photo, int value, int maximumType, const OutputTail& tail
    )
    {
        return m_handling.finish(
            DVImageHandling::hScalePhotosPercentage(photo, value, maximumType, tail)
        );
    }

    ResultWord hScalePhotosWidthAndHeight(
        const SourceAndBase& photo, PixelSize box, int aspectState, const OutputTail& tail
    )
    {
        return m_handling.finish(
            m_handling.hScalePhotosWidthAndHeight(photo, box, aspectState, tail)
        );
    }

    [[nodiscard]] ResultWord storeResult() const { return m_handling.storeResult(); }

private:
    DVImageHandling m_handling;
};

/// A folder with one photo, `source`, and its target "out".
class Resizing
{
public:
    explicit Resizing(const PhotoBuilder& photo)
        : Resizing(photo.bytes())
    {
    }
    explicit Resizing(const QByteArray& photo)
        : m_source(m_folder.write(u"source"_s, photo))
    {
    }

    [[nodiscard]] SourceAndBase photo() const
    {
        return {.source = m_source, .destinationBase = m_folder.path(u"out"_s)};
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.path(name); }

    [[nodiscard]] bool hasOutput() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).size() > 1;
    }

    [[nodiscard]] PixelSize outputSize() const
    {
        return openedPhoto(path(u"out.png"_s)).header().storedSize;
    }

    [[nodiscard]] QImage output() const { return storedPixels(path(u"out.png"_s)); }

private:
    TemporaryFolder m_folder;
    QString m_source;
};

PhotoBuilder greyPhoto(int width, int height)
{
    return PhotoBuilder().size(width, height).solid({90, 90, 90});
}

/// The bytes of a grey photo; made once for all tests, since large ones take their time.
const QByteArray& greyPhoto(PixelSize size)
{
    static std::map<std::pair<int, int>, QByteArray> photos;
    QByteArray& photo = photos[{size.width, size.height}];
    if (photo.isEmpty())
        photo = greyPhoto(size.width, size.height).bytes();
    return photo;
}

PhotoBuilder photoWithCorners(int width, int height)
{
    return PhotoBuilder().format(PhotoFormat::Png).size(width, height).corners();
}

struct MaximumRun
{
    const char* name;
    PixelSize photo;
    int value;
    MaximumTypeIndex type;
    PixelSize expected;
};

void PrintTo(const MaximumRun& maximumRun, std::ostream* out) { *out << maximumRun.name; }

class ResizeToMaximum : public testing::TestWithParam<MaximumRun>
{
};

constexpr MaximumRun maximumRuns[] = {
    {"LongestSideOfALandscape", {4000, 3000}, 1000, LongestSide, {1000, 750}},
    {"LongestSideOfAPortrait", {3000, 4000}, 1000, LongestSide, {750, 1000}},
    {"LongestSideOfASquare", {1000, 1000}, 100, LongestSide, {100, 100}},
    {"Percentage", {4000, 3000}, 33, Percentage, {1320, 990}},
    {"Width", {47, 33}, 10, Width, {10, 7}},
    {"Height", {47, 33}, 10, Height, {14, 10}},
    {"Enlarges", {47, 33}, 470, Width, {470, 330}},
};

struct FixedCase
{
    const char* name;
    PixelSize photo;
    PixelSize box;
    int aspectState;
};

void PrintTo(const FixedCase& fixedCase, std::ostream* out) { *out << fixedCase.name; }

class ResizeToBox : public testing::TestWithParam<FixedCase>
{
};

constexpr FixedCase fixedCases[] = {
    {"LandscapeCovering", {4000, 3000}, {1000, 1000}, covering},
    {"PortraitCovering", {3000, 4000}, {1000, 500}, covering},
    {"PortraitStretched", {3000, 4000}, {1000, 500}, stretched},
    {"EnlargedCovering", {47, 33}, {200, 200}, covering},
    {"EnlargedStretched", {47, 33}, {200, 200}, stretched},
};

Image pictureOfDensity(const TemporaryFolder& folder, double dotsPerInch)
{
    const auto image = openedPhoto(PhotoBuilder()
                                       .format(PhotoFormat::Png)
                                       .size(120, 60)
                                       .corners()
                                       .dotsPerInch(dotsPerInch)
                                       .write(folder.path(u"picture.png"_s)))
                           .image();
    if (!image)
        qFatal("a photo of a test can't be decoded");
    return *image;
}

} // namespace

TEST_P(ResizeToMaximum, WritesThePhotoAtItsNewSize)
{
    const MaximumRun& row = GetParam();
    const Resizing files(greyPhoto(row.photo));
    SavingHandling handling;

    const ResultWord word
        = handling.hScalePhotosPercentage(files.photo(), row.value, row.type, jpegToPng());

    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(handling.storeResult(), ResultWord::Ok);
    EXPECT_EQ(files.outputSize(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ResizeToMaximum, testing::ValuesIn(maximumRuns), CaseName());

TEST(ResizeToMaximum, MeasuresAndWritesTheUprightPhoto)
{
    const Resizing files(PhotoBuilder().size(400, 300).corners().orientation(6));
    SavingHandling handling;

    const ResultWord word = handling.hScalePhotosPercentage(files.photo(), 40, Height, jpegToPng());

    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(files.outputSize(), (PixelSize{30, 40}));
    EXPECT_EQ(cornerColors(files.output()), "BRWG");
}

TEST(ResizeToMaximum, LeavesTheSourcesMetadataUncorrected)
{
    const Resizing files(greyPhoto(400, 300).exif(exifBlock({.orientation = 6, .make = "Maker"})));
    SavingHandling handling;

    const ResultWord word
        = handling.hScalePhotosPercentage(files.photo(), 50, Percentage, jpegTail());

    const auto before = readMetadataBlocks(files.photo().source);
    const auto after = readMetadataBlocks(files.path(u"out.jpg"_s));
    ASSERT_TRUE(before && after);
    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(after->exif, before->exif);
    EXPECT_EQ(openedPhoto(files.path(u"out.jpg"_s)).header().orientation, 6);
    EXPECT_EQ(openedPhoto(files.path(u"out.jpg"_s)).header().storedSize, (PixelSize{150, 200}));
}

TEST(ResizeToMaximum, WritesNothingAndAnswersOkForAValueOfZero)
{
    const Resizing files(greyPhoto(40, 30));
    SavingHandling handling;

    for (const MaximumTypeIndex type : {Width, Height, LongestSide, Percentage})
        EXPECT_EQ(
            handling.hScalePhotosPercentage(files.photo(), 0, type, jpegToPng()), ResultWord::Ok
        );

    EXPECT_FALSE(files.hasOutput());
}

TEST(ResizeToMaximum, WritesNothingAndAnswersOkForAnUnreadablePhoto)
{
    const TemporaryFolder folder;
    const SourceAndBase photo{
        .source = folder.write(u"note.jpg"_s, "this is no photo"),
        .destinationBase = folder.path(u"out"_s)};
    SavingHandling handling;

    for (const MaximumTypeIndex type : {Width, Height, LongestSide, Percentage})
        EXPECT_EQ(handling.hScalePhotosPercentage(photo, 100, type, jpegToPng()), ResultWord::Ok);

    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"note.jpg"_s});
}

TEST(ResizeToMaximum, WritesNothingAndAnswersOkForASizeBeyondAllContexts)
{
    const Resizing files(greyPhoto(40, 30));
    SavingHandling handling;

    EXPECT_EQ(
        handling.hScalePhotosPercentage(files.photo(), 1'000'000, Width, jpegToPng()),
        ResultWord::Ok
    );
    EXPECT_FALSE(files.hasOutput());
}

TEST(ResizeToMaximum, FailsForAPhotoThatIsDamagedInside)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const SourceAndBase photo{
        .source = folder.write(u"half.jpg"_s, whole.left(whole.size() / 2)),
        .destinationBase = folder.path(u"out"_s)};
    SavingHandling handling;

    EXPECT_EQ(
        handling.hScalePhotosPercentage(photo, 100, LongestSide, jpegToPng()), ResultWord::Failed
    );
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"half.jpg"_s});
}

TEST(ResizeToMaximum, AnswersTheWordOfTheWriter)
{
    const Resizing files(greyPhoto(40, 30));
    OutputTail tail = jpegToPng();
    SavingHandling handling;

    tail.myFileType = u"com.adobe.pdf"_s;
    EXPECT_EQ(
        handling.hScalePhotosPercentage(files.photo(), 10, Width, tail), ResultWord::NotSupported
    );
    tail.myFileType = u"com.canon.cr2-raw-image"_s;
    EXPECT_EQ(handling.hScalePhotosPercentage(files.photo(), 10, Width, tail), ResultWord::Failed);
    EXPECT_FALSE(files.hasOutput());
}

TEST(Resize, DoesNotSupportAPhotoshopOrPdfFileThatKeepsItsType)
{
    const TemporaryFolder folder;
    OutputTail tail = jpegToPng();

    for (const QString& type : {u"com.adobe.photoshop-image"_s, u"com.adobe.pdf"_s}) {
        SavingHandling handling;
        tail.myFileType = type;
        const SourceAndBase photo{
            .source = folder.write(u"source"_s, "8BPS"), .destinationBase = folder.path(u"out"_s)};
        EXPECT_EQ(
            handling.hScalePhotosPercentage(photo, 50, Percentage, tail), ResultWord::NotSupported
        );
        EXPECT_EQ(handling.storeResult(), ResultWord::NotSupported);
        SavingHandling other;
        EXPECT_EQ(
            other.hScalePhotosWidthAndHeight(photo, {10, 10}, covering, tail),
            ResultWord::NotSupported
        );
        EXPECT_EQ(other.storeResult(), ResultWord::NotSupported);
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"source"_s});
}

TEST(ResizeToMaximum, KeepsDepthColorsAndTransparency)
{
    const Resizing files(PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .model(PhotoModel::RgbAlpha)
                             .depth(16)
                             .size(40, 30)
                             .solid({200, 100, 50, 128}));
    SavingHandling handling;

    const ResultWord word
        = handling.hScalePhotosPercentage(files.photo(), 50, Percentage, jpegToPng());

    const auto header = openedPhoto(files.path(u"out.png"_s)).header();
    const QColor middle = files.output().convertToFormat(QImage::Format_ARGB32).pixelColor(10, 7);
    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(header.bitsPerComponent, 16);
    EXPECT_TRUE(header.hasAlpha);
    EXPECT_EQ(middle.alpha(), 128);
    EXPECT_NEAR(middle.red(), 200, 2);
}

TEST_P(ResizeToBox, WritesExactlyTheBox)
{
    const FixedCase& row = GetParam();
    const Resizing files(greyPhoto(row.photo));
    SavingHandling handling;

    const ResultWord word
        = handling.hScalePhotosWidthAndHeight(files.photo(), row.box, row.aspectState, jpegToPng());

    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(files.outputSize(), row.box);
}

INSTANTIATE_TEST_SUITE_P(Rows, ResizeToBox, testing::ValuesIn(fixedCases), CaseName());

TEST(ResizeToBox, CutsTheExcessOffEquallyOnBothSides)
{
    // Scaled to 80 x 40; 20 columns go at either side: a block of red is 20 columns wide.
    const auto stripes = [](int x, int /*y*/) {
        return x < 40       ? Samples{255, 0, 0}
            : x >= 160 - 40 ? Samples{0, 0, 255}
                            : Samples{0, 255, 0};
    };
    const Resizing files(PhotoBuilder().format(PhotoFormat::Png).size(160, 80).pixels(stripes));
    SavingHandling handling;

    const ResultWord word
        = handling.hScalePhotosWidthAndHeight(files.photo(), {44, 40}, covering, jpegToPng());

    const QImage output = files.output();
    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(output.pixelColor(0, 20), QColor(255, 0, 0));
    EXPECT_EQ(output.pixelColor(43, 20), QColor(0, 0, 255));
    EXPECT_EQ(output.pixelColor(3, 20), QColor(0, 255, 0));
    EXPECT_EQ(output.pixelColor(40, 20), QColor(0, 255, 0));
}

TEST(ResizeToBox, StretchesThePhotoWithoutTheAspectCheck)
{
    const Resizing files(photoWithCorners(300, 400));
    SavingHandling handling;
    constexpr int mixed = -1;

    for (const int state : {stretched, mixed}) {
        const ResultWord word
            = handling.hScalePhotosWidthAndHeight(files.photo(), {100, 50}, state, jpegToPng());

        EXPECT_EQ(word, ResultWord::Ok);
        EXPECT_EQ(cornerColors(files.output()), "RGBW");
    }
}

TEST(ResizeToBox, FailsForSidesFarBelowNothing)
{
    constexpr int farthest = std::numeric_limits<int>::min();
    const Resizing files(greyPhoto(40, 30));
    for (const PixelSize box : {PixelSize{farthest, 5}, PixelSize{5, farthest}}) {
        SavingHandling handling;

        EXPECT_EQ(
            handling.hScalePhotosWidthAndHeight(files.photo(), box, covering, jpegToPng()),
            ResultWord::Failed
        );
    }
    EXPECT_FALSE(files.hasOutput());
}

TEST(ResizeToBox, AnswersTheWordOfThePhotoBeforeWhenNothingCanBeDrawn)
{
    const Resizing files(greyPhoto(40, 30));
    const SourceAndBase unreadable{
        .source = files.path(u"missing.jpg"_s), .destinationBase = files.path(u"other"_s)};
    SavingHandling handling;
    const auto resize = [&](const SourceAndBase& photo, PixelSize box, int aspectState) {
        return handling.hScalePhotosWidthAndHeight(photo, box, aspectState, jpegToPng());
    };

    EXPECT_EQ(resize(unreadable, {10, 10}, stretched), ResultWord::Failed);
    EXPECT_FALSE(files.hasOutput());
    EXPECT_EQ(resize(files.photo(), {10, 10}, covering), ResultWord::Ok);

    EXPECT_EQ(resize(unreadable, {10, 10}, stretched), ResultWord::Ok);
    EXPECT_EQ(resize(unreadable, {10, 10}, covering), ResultWord::Ok);
    EXPECT_EQ(resize(files.photo(), {0, 10}, stretched), ResultWord::Ok);
}

TEST(ResizeToBox, LogsThatNothingCanBeDrawn)
{
    const Resizing files(greyPhoto(40, 30));
    const LogLines log;
    SavingHandling handling;

    EXPECT_EQ(
        handling.hScalePhotosWidthAndHeight(files.photo(), {0, 10}, stretched, jpegToPng()),
        ResultWord::Failed
    );
    EXPECT_EQ(
        log.lines(),
        QStringList(u"Failed to write %1: there is no picture of 0 x 10 pixels"_s.arg(
            files.photo().destinationBase
        ))
    );
}

TEST(ScalePictureBase, ScalesTheSizeInPoints)
{
    const TemporaryFolder folder;

    const auto half = DVImageHandling::hScalePictureBase(pictureOfDensity(folder, 72), 0.5F);
    const auto dense = DVImageHandling::hScalePictureBase(pictureOfDensity(folder, 144), 1.0F);

    ASSERT_TRUE(half && dense);
    EXPECT_EQ(half->pixelSize(), (PixelSize{60, 30}));
    EXPECT_EQ(cornerColors(half->toQImage()), "RGBW");
    EXPECT_EQ(dense->pixelSize(), (PixelSize{60, 30}));
    EXPECT_EQ(dense->dotsPerInch(), 72);
}

TEST(ScalePictureBase, TurnsThePictureAtANegativeFactor)
{
    const TemporaryFolder folder;

    const auto turned = DVImageHandling::hScalePictureBase(pictureOfDensity(folder, 72), -2.0F);

    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->pixelSize(), (PixelSize{240, 120}));
    EXPECT_EQ(cornerColors(turned->toQImage()), "WBGR");
}

TEST(ScalePictureBase, ScalesToTheNearestPixel)
{
    const TemporaryFolder folder;
    const auto scaled = DVImageHandling::hScalePictureBase(pictureOfDensity(folder, 72), 0.505F);
    ASSERT_TRUE(scaled);
    EXPECT_EQ(scaled->pixelSize(), (PixelSize{61, 30})); // of 60.6 and 30.3
}

TEST(ScalePictureBase, GivesNothingWhereNoPixelIsLeft)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(DVImageHandling::hScalePictureBase(pictureOfDensity(folder, 72), 0));
    EXPECT_FALSE(DVImageHandling::hScalePictureBase(pictureOfDensity(folder, 72), 1e9F));
}
