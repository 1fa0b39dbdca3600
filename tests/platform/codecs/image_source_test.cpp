// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_destination.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <QFile>
#include <QtEndian>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::graphics;
using namespace platform::codecs;
using namespace test;

struct OrientationCase
{
    const char* name;
    int tag;
    PixelSize upright;
    const char* corners; ///< of the upright picture
    int orientation;

    friend void PrintTo(const OrientationCase& row, std::ostream* out) { *out << row.name; }
};

class ImageSourceOrientation : public testing::TestWithParam<OrientationCase>
{
};

TEST_P(ImageSourceOrientation, TurnsThePixelsUpright)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(48, 32)
                             .corners()
                             .orientation(GetParam().tag)
                             .write(folder.path(u"photo.jpg"_s));

    const QImage upright = uprightPixels(path);

    EXPECT_EQ(openedPhoto(path).header().uprightSize, GetParam().upright);
    EXPECT_EQ((PixelSize{upright.width(), upright.height()}), GetParam().upright);
    EXPECT_EQ(cornerColors(upright), GetParam().corners);
}

TEST_P(ImageSourceOrientation, LeavesStoredPixelsAlone)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(48, 32)
                             .corners()
                             .orientation(GetParam().tag)
                             .write(folder.path(u"photo.jpg"_s));

    const QImage stored = storedPixels(path);

    EXPECT_EQ(openedPhoto(path).header().orientation, GetParam().orientation);
    EXPECT_EQ(openedPhoto(path).header().storedSize, (PixelSize{48, 32}));
    EXPECT_EQ(stored.size(), QSize(48, 32));
    EXPECT_EQ(cornerColors(stored), "RGBW");
}

INSTANTIATE_TEST_SUITE_P(
    Orientations,
    ImageSourceOrientation,
    testing::Values(
        OrientationCase{"NotSet", 0, {48, 32}, "RGBW", 1},
        OrientationCase{"Upright", 1, {48, 32}, "RGBW", 1},
        OrientationCase{"Mirrored", 2, {48, 32}, "GRWB", 2},
        OrientationCase{"UpsideDown", 3, {48, 32}, "WBGR", 3},
        OrientationCase{"MirroredUpsideDown", 4, {48, 32}, "BWRG", 4},
        OrientationCase{"Transposed", 5, {32, 48}, "RBGW", 5},
        OrientationCase{"Clockwise", 6, {32, 48}, "BRWG", 6},
        OrientationCase{"Transversed", 7, {32, 48}, "WGBR", 7},
        OrientationCase{"CounterClockwise", 8, {32, 48}, "GWRB", 8},
        OrientationCase{"Invalid", 9, {48, 32}, "RGBW", 1}
    ),
    CaseName()
);

TEST(ImageSource, ReportsTheSizeAPhotoShowsAt)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(400, 300).orientation(6).write(folder.path(u"photo.jpg"_s));

    const auto source = openedPhoto(path);

    EXPECT_EQ(source.header().storedSize, (PixelSize{400, 300}));
    EXPECT_EQ(source.header().uprightSize, (PixelSize{300, 400}));
}

TEST(ImageSource, ReadsWholePixelsAMetreAsWholeDotsPerInch)
{
    const TemporaryFolder folder;
    for (const int dotsPerInch : {72, 144, 300}) {
        const QString path = PhotoBuilder()
                                 .format(PhotoFormat::Png)
                                 .dotsPerInch(dotsPerInch)
                                 .write(folder.path(u"photo.png"_s));

        EXPECT_EQ(openedPhoto(path).header().dotsPerInch, dotsPerInch);
        EXPECT_EQ(openedPhoto(path).image()->dotsPerInch(), dotsPerInch);
    }
}

TEST(ImageSource, ReadsAResolutionOfOnePixelAMillimetre)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .dotsPerInch(25.4)
                             .write(folder.path(u"photo.png"_s));

    EXPECT_EQ(openedPhoto(path).header().dotsPerInch, 25.4);
    EXPECT_EQ(openedPhoto(path).image()->dotsPerInch(), 25.4);
}

TEST(ImageSource, ReadsTheProfileOfABitmap)
{
    const TemporaryFolder folder;
    const PhotoBuilder bitmap = PhotoBuilder().format(PhotoFormat::Bmp).iccProfile(wideProfile());
    const QString path = bitmap.write(folder.path(u"photo.bmp"_s));
    const QString cut
        = folder.write(u"cut.bmp"_s, bitmap.bytes().chopped(wideProfile().size() / 2));

    EXPECT_EQ(openedPhoto(path).image()->iccProfile(), wideProfile());
    EXPECT_EQ(openedPhoto(cut).image()->iccProfile(), QByteArray());
}

TEST(ImageSource, ReadsTheHeaderOfAJpeg2000BehindABoxOf64BitLength)
{
    const TemporaryFolder folder;
    const auto photo = ImageSource::open(
        PhotoBuilder().iccProfile(oddProfile()).dotsPerInch(300).write(folder.path(u"a.jpg"_s))
    );
    const QString path = folder.path(u"a.jp2"_s);
    ASSERT_TRUE(encode(*photo->image(), FileFormat::Jpeg2000, {}, path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    // The length 1 says that the length follows the type in 64 bits.
    const QByteArray box(
        "\0\0\0\x01"
        "free"
        "\0\0\0\0\0\0\0\x18"
        "contents",
        24
    );
    bytes.insert(bytes.indexOf("jp2h") - 4, box);
    file.seek(0);
    file.write(bytes);
    file.close();

    const auto source = ImageSource::open(path);

    ASSERT_TRUE(source);
    EXPECT_EQ(source->header().dotsPerInch, 300);
    EXPECT_EQ(source->image()->iccProfile(), oddProfile());
}

TEST(ImageSource, FollowsTheContentsNotTheName)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder().write(folder.path(u"photo.png"_s));

    EXPECT_EQ(openedPhoto(path).header().typeIdentifier, u"public.jpeg"_s);
}

TEST(ImageSource, TellsOfAnImageThatNothingReads)
{
    const TemporaryFolder folder;
    const QString page = folder.write(u"page.pdf"_s, "%PDF-1.4");
    const QString text = folder.write(u"notes.txt"_s, "no image");
    const LogLines log;

    EXPECT_FALSE(ImageSource::open(page));
    EXPECT_FALSE(ImageSource::open(text));

    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().endsWith(u"nothing here reads com.adobe.pdf"));
}

TEST(ImageSource, ReadsTheHeaderFacts)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(53, 31)
                             .model(PhotoModel::RgbAlpha)
                             .depth(16)
                             .dotsPerInch(300)
                             .format(PhotoFormat::Png)
                             .write(folder.path(u"photo.png"_s));

    const ImageHeader header = openedPhoto(path).header();

    EXPECT_EQ(header.storedSize, (PixelSize{53, 31}));
    EXPECT_EQ(header.bitsPerComponent, 16);
    EXPECT_TRUE(header.hasAlpha);
    EXPECT_EQ(header.colorModel, ColorModel::Rgb);
    EXPECT_NEAR(header.dotsPerInch, 300, 0.01);
}

TEST(ImageSource, TakesAMissingResolutionAs72)
{
    const TemporaryFolder folder;

    for (const PhotoFormat format : {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Bmp}) {
        const QString path = PhotoBuilder().format(format).write(folder.path(u"photo"_s));

        EXPECT_EQ(openedPhoto(path).header().dotsPerInch, 72);
    }
}

TEST(ImageSource, TurnsHeicByItsOwnBoxesAlone)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(128, 64)
                             .corners()
                             .format(PhotoFormat::Heic)
                             .orientation(3)
                             .heicTransformation(6)
                             .write(folder.path(u"a.heic"_s));

    const ImageHeader header = openedPhoto(path).header();

    EXPECT_EQ(header.storedSize, (PixelSize{128, 64}));
    EXPECT_EQ(header.uprightSize, (PixelSize{64, 128}));
    EXPECT_EQ(cornerColors(storedPixels(path)), "RGBW");
    EXPECT_EQ(cornerColors(uprightPixels(path)), "BRWG");
}

TEST(ImageSource, FindsTheStoredPixelsOfAHeicThatStatesItsTurnedSize)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(128, 64)
                             .corners()
                             .format(PhotoFormat::Heic)
                             .heicTransformation(6)
                             .statesTurnedSize()
                             .write(folder.path(u"a.heic"_s));

    const ImageHeader header = openedPhoto(path).header();

    EXPECT_EQ(header.storedSize, (PixelSize{128, 64}));
    EXPECT_EQ(header.uprightSize, (PixelSize{64, 128}));
    EXPECT_EQ(cornerColors(storedPixels(path)), "RGBW");
    EXPECT_EQ(cornerColors(uprightPixels(path)), "BRWG");
}

TEST(ImageSource, BelievesAStatedResolutionOfOnePixelAMillimetre)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Tiff)
                             .dotsPerInch(25.4)
                             .write(folder.path(u"a.tiff"_s));

    EXPECT_EQ(openedPhoto(path).header().dotsPerInch, 25.4);
}

class ImageSourceShrinking : public testing::TestWithParam<int>
{
};

TEST_P(ImageSourceShrinking, NeverGoesBelowTheRequest)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(403, 301).orientation(6).write(folder.path(u"a.jpg"_s));
    const PixelSize request = {GetParam(), GetParam()};

    const auto upright = openedPhoto(path).uprightImage({.atLeast = request});
    const auto stored = openedPhoto(path).image({.atLeast = request});

    ASSERT_TRUE(upright && stored);
    for (const Image& image : {*upright, *stored}) {
        EXPECT_GE(image.width(), std::min(request.width, 301));
        EXPECT_GE(image.height(), std::min(request.height, 301));
    }
    EXPECT_EQ(upright->toQImage().size(), QSize(upright->width(), upright->height()));
    EXPECT_LT(upright->width(), upright->height());
    EXPECT_GT(stored->width(), stored->height());
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ImageSourceShrinking, testing::Values(1, 20, 38, 39, 75, 76, 150, 151, 152, 301)
);

TEST(ImageSource, ShrinksAsFarAsTheRequestAllows)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(400, 304).orientation(8).write(folder.path(u"a.jpg"_s));

    const auto image = openedPhoto(path).uprightImage({.atLeast = PixelSize{38, 50}});

    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelSize(), (PixelSize{38, 50}));
}

struct DamageCase
{
    const char* name;
    PhotoFormat format;

    friend void PrintTo(const DamageCase& row, std::ostream* out) { *out << row.name; }
};

class ImageSourceDamage : public testing::TestWithParam<DamageCase>
{
};

TEST_P(ImageSourceDamage, OfAHalfFileGivesNoPicture)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(200, 150).format(GetParam().format).bytes();

    const QString path = folder.write(u"photo"_s, whole.first(whole.size() / 2));

    EXPECT_TRUE(storedPixels(path).isNull());
    EXPECT_TRUE(uprightPixels(path).isNull());
}

TEST(ImageSourceGif, WhosePixelBlocksEndEarlyGivesNoPicture)
{
    const TemporaryFolder folder;
    QByteArray gif = PhotoBuilder().size(500, 400).format(PhotoFormat::Gif).bytes();
    const qsizetype length = gif.size() / 5;

    gif.replace(3 * length, length, QByteArray(length, '\0'));

    EXPECT_TRUE(storedPixels(folder.write(u"photo"_s, gif)).isNull());
}

TEST_P(ImageSourceDamage, OfSingleBytesIsSurvived)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().format(GetParam().format).bytes();
    for (qsizetype at = 0; at < whole.size(); at += 1 + whole.size() / 97) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(~damaged[at]);
        const QString path = folder.write(u"photo"_s, damaged);

        const QImage pixels = storedPixels(path);

        EXPECT_LE(pixels.width(), 1 << 16);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    ImageSourceDamage,
    testing::Values(
        DamageCase{"Jpeg", PhotoFormat::Jpeg},
        DamageCase{"ProgressiveJpeg", PhotoFormat::ProgressiveJpeg},
        DamageCase{"Png", PhotoFormat::Png},
        DamageCase{"Tiff", PhotoFormat::Tiff},
        DamageCase{"Bmp", PhotoFormat::Bmp},
        DamageCase{"Gif", PhotoFormat::Gif},
        DamageCase{"Heic", PhotoFormat::Heic},
        DamageCase{"Jpeg2000", PhotoFormat::Jpeg2000}
    ),
    CaseName()
);

TEST(ImageSource, DoesNotOpenWhatIsNoImage)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(ImageSource::open(folder.write(u"a.jpg"_s, "")));
    EXPECT_FALSE(ImageSource::open(folder.write(u"b.jpg"_s, "a line of text")));
    EXPECT_FALSE(ImageSource::open(folder.path(u"missing.jpg"_s)));
    EXPECT_FALSE(ImageSource::open(folder.path()));
}

TEST(ImageSource, DoesNotWaitForAPipe)
{
    const TemporaryFolder folder;
    const QString pipe = folder.path(u"a.jpg"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    EXPECT_FALSE(ImageSource::open(pipe));
    EXPECT_TRUE(embeddedThumbnail(pipe).isNull());
}

TEST(ImageSource, GivesAReasonWhereTheDecoderOnlyWarns)
{
    const TemporaryFolder folder;
    const LogLines log;
    QByteArray png = PhotoBuilder().format(PhotoFormat::Png).bytes();
    png[29] = static_cast<char>(~png[29]); // the check sum of the header

    const auto source = ImageSource::open(folder.write(u"a.png"_s, png));

    EXPECT_FALSE(source && source->image());
    ASSERT_FALSE(log.lines().isEmpty());
    EXPECT_THAT(log.lines().last().toStdString(), testing::EndsWith("a.png: the data are damaged"));
}

TEST(ImageSource, DropsAProfileThatTellsNothing)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .iccProfile(emptyProfile())
                             .write(folder.path(u"a.png"_s));

    EXPECT_EQ(openedPhoto(path).image()->iccProfile(), QByteArray());
    EXPECT_FALSE(storedPixels(path).isNull());
}

class ImageSourceJpeg : public testing::TestWithParam<DamageCase>
{
};

TEST_P(ImageSourceJpeg, FailsWhenItsDataEndEarlyWithAnEndMarker)
{
    const TemporaryFolder folder;
    const LogLines log;
    const QByteArray whole = PhotoBuilder().size(200, 150).format(GetParam().format).bytes();
    const QByteArray ended = whole.first(whole.size() * 7 / 10) + QByteArray("\xFF\xD9");
    const QString path = folder.write(u"a.jpg"_s, ended);

    EXPECT_TRUE(storedPixels(path).isNull());
    EXPECT_TRUE(openedPhoto(path).image({.atLeast = PixelSize{20, 15}})->toQImage().isNull());
    EXPECT_THAT(
        log.lines().join(QLatin1Char(' ')).toStdString(),
        testing::HasSubstr("premature end of data segment")
    );
}

TEST_P(ImageSourceJpeg, ForgivesStrayBytesBetweenItsSegments)
{
    const TemporaryFolder folder;
    const LogLines log;
    const QByteArray whole = PhotoBuilder().size(200, 150).format(GetParam().format).bytes();
    QByteArray stray = whole;
    stray.insert(whole.indexOf("\xFF\xC4"), QByteArray(2, '\0')); // before a code table

    const QImage pixels = storedPixels(folder.write(u"a.jpg"_s, stray));

    EXPECT_EQ(pixels, storedPixels(folder.write(u"b.jpg"_s, whole)));
    EXPECT_EQ(pixels.size(), QSize(200, 150));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds,
    ImageSourceJpeg,
    testing::Values(
        DamageCase{"Baseline", PhotoFormat::Jpeg},
        DamageCase{"Progressive", PhotoFormat::ProgressiveJpeg}
    ),
    CaseName()
);

/// A JPEG whose frame header claims another size.
QByteArray jpegOfClaimedSize(PhotoFormat format, quint16 side)
{
    QByteArray file = PhotoBuilder().format(format).bytes();
    const char frameMarker = format == PhotoFormat::ProgressiveJpeg ? '\xC2' : '\xC0';
    const qsizetype frame = file.indexOf(QByteArray("\xFF") + frameMarker);
    qToBigEndian(side, file.data() + frame + 5);
    qToBigEndian(side, file.data() + frame + 7);
    return file;
}

TEST(ImageSource, RefusesAbsurdSizes)
{
    const TemporaryFolder folder;
    const auto opens = [&folder](PhotoFormat format, quint16 side) {
        const QByteArray room(1 << 20, '\0'); // a shorter file would be refused anyway
        return ImageSource::open(folder.write(u"a.jpg"_s, jpegOfClaimedSize(format, side) + room))
            .has_value();
    };

    EXPECT_FALSE(opens(PhotoFormat::Jpeg, 40000));
    EXPECT_TRUE(opens(PhotoFormat::Jpeg, 20000));
    EXPECT_FALSE(opens(PhotoFormat::ProgressiveJpeg, 20000));
    EXPECT_TRUE(opens(PhotoFormat::ProgressiveJpeg, 10000));
}

/// A bitmap of one bit a pixel and one row.
QByteArray bitmapLine(qint32 width)
{
    const QByteArray row((width + 31) / 32 * 4, '\0');
    QByteArray file(54, '\0');
    file.replace(0, 2, "BM");
    qToLittleEndian(qint32{62}, file.data() + 10); // where the pixels stand
    qToLittleEndian(qint32{40}, file.data() + 14);
    qToLittleEndian(width, file.data() + 18);
    qToLittleEndian(qint32{1}, file.data() + 22);
    qToLittleEndian(qint16{1}, file.data() + 26);
    qToLittleEndian(qint16{1}, file.data() + 28);
    qToLittleEndian(qint32{2}, file.data() + 46); // colours
    return file + QByteArray(8, '\x7F') + row;
}

TEST(ImageSource, GivesNoPictureThatIsTooLongForTheEngine)
{
    const TemporaryFolder folder;
    const LogLines log;

    EXPECT_EQ(storedPixels(folder.write(u"a.bmp"_s, bitmapLine(1000))).size(), QSize(1000, 1));
    EXPECT_TRUE(storedPixels(folder.write(u"b.bmp"_s, bitmapLine(20'000'000))).isNull());
    EXPECT_FALSE(log.lines().isEmpty());
}

TEST(ImageSource, ReadsAFileAnewThatWasReplaced)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a.png"_s);
    PhotoBuilder().size(10, 10).format(PhotoFormat::Png).write(path);
    EXPECT_EQ(storedPixels(path).width(), 10);

    PhotoBuilder().size(20, 10).format(PhotoFormat::Png).write(path);

    EXPECT_EQ(storedPixels(path).width(), 20);
}

/// Resident memory of the process in megabytes.
double residentMegabytes()
{
    const QList<QByteArray> pages = TemporaryFolder::read(u"/proc/self/statm"_s).split(' ');
    constexpr double pagesPerMegabyte = 256;
    return pages.size() > 1 ? pages[1].toDouble() / pagesPerMegabyte : 0;
}

TEST(ImageSource, DoesNotHoldMemoryFromJobToJob)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().size(300, 200).orientation(6).write(folder.path(u"a.jpg"_s));
    const auto job = [&] {
        const auto image = openedPhoto(path).uprightImage();
        EXPECT_TRUE(
            encode(image->scaledTo({90, 130}), FileFormat::Jpeg, {}, folder.path(u"b.jpg"_s))
        );
    };
    for (int i = 0; i < 40; ++i)
        job();
    const double before = residentMegabytes();

    for (int i = 0; i < 200; ++i)
        job();

    EXPECT_LT(residentMegabytes() - before, 30);
}

} // namespace
} // namespace brenvaldo
