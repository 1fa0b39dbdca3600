// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>
#include <imaging/file_conversion.h>

#include <platform/containers/type_identifier.h>
#include <platform/metadata/metadata_reader.h>

#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/faults.h>
#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

using namespace brenvaldo::imaging;
using namespace brenvaldo::test;
using brenvaldo::platform::containers::typeIdentifierOfContents;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::platform::metadata::readMetadataBlocks;

namespace {

enum class Trace { Metadata, None };

struct ConversionCase
{
    const char* name;
    QString type;
    QString word;
    QString contents; ///< type identifier of what is written
    Trace trace; ///< what of the metadata route shows in the output
};

void PrintTo(const ConversionCase& conversionCase, std::ostream* out)
{
    *out << conversionCase.name;
}

class FileConversionTable : public testing::TestWithParam<ConversionCase>
{
};

const ConversionCase conversionCases[] = {
    {"Pdf", u"public.pdf"_qs, u"pdf"_qs, u"com.adobe.pdf"_qs, Trace::None},
    {"Png", u"public.png"_qs, u"png"_qs, u"public.png"_qs, Trace::Metadata},
    {"Tiff", u"public.tiff"_qs, u"tiff"_qs, u"public.tiff"_qs, Trace::Metadata},
    {"Bmp", u"public.bmp"_qs, u"bmp"_qs, u"com.microsoft.bmp"_qs, Trace::None},
    {"Gif", u"com.compuserve.gif"_qs, u"gif"_qs, u"com.compuserve.gif"_qs, Trace::None},
    {"Jpeg", u"public.jpeg"_qs, u"jpeg"_qs, u"public.jpeg"_qs, Trace::None},
    {"Jpeg2000", u"public.jp2"_qs, u"jp2"_qs, u"public.jp2"_qs, Trace::None},
    {"Heic", u"public.heic"_qs, u"heic"_qs, u"public.heic"_qs, Trace::Metadata},
};

PhotoBuilder turnedPhoto()
{
    return PhotoBuilder().size(48, 32).exif(exifBlock({.orientation = 6, .make = "Maker"}));
}

bool isPdf(const ConversionCase& row) { return row.word == u"pdf"_qs; }

QStringList filesOf(const TemporaryFolder& folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

} // namespace

TEST_P(FileConversionTable, WritesTheFormatOfTheType)
{
    const ConversionCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.JPG"_qs));
    const QString target = conversionTarget(folder.path(u"out"_qs), row.type);

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_qs, target});

    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(result.saveURL, QUrl::fromLocalFile(target));
    EXPECT_EQ(result.type, row.type);
    EXPECT_EQ(result.name, u"photo"_qs);
    EXPECT_EQ(typeIdentifierOfContents(target), row.contents);
    EXPECT_EQ(filesOf(folder), (QStringList{u"out."_qs + row.word, u"photo.JPG"_qs}));
}

TEST_P(FileConversionTable, WorksOnStoredPixelsAndKeepsTheTagWithTheMetadata)
{
    const ConversionCase& row = GetParam();
    if (isPdf(row))
        return;
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.jpg"_qs));
    const QString target = folder.path(u"out"_qs);

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_qs, target});

    const auto blocks = readMetadataBlocks(target);
    ASSERT_TRUE(blocks);
    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(openedPhoto(target).header().storedSize, (PixelSize{48, 32}));
    EXPECT_EQ(blocks->exif.contains("Maker"), row.trace == Trace::Metadata);
}

TEST_P(FileConversionTable, LeavesAnEmptyFileOfTheMetadataRouteForAnUnreadablePhoto)
{
    const ConversionCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = folder.write(u"note.jpg"_qs, "this is no photo");
    const QString target = folder.path(u"out"_qs);

    const LogLines log;

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_qs, target});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(QFile::exists(target), row.trace == Trace::Metadata);
    EXPECT_EQ(TemporaryFolder::read(target), QByteArray());
    EXPECT_TRUE(log.lines().contains(
        u"Failed to write %1: %2 can't be read as a photo"_qs.arg(target, source)
    ));
}

TEST_P(FileConversionTable, LogsHeicAlone)
{
    const ConversionCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.jpg"_qs));
    const LogLines log;

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_qs, folder.path(u"out"_qs)});

    const QStringList expected
        = row.word == u"heic"_qs ? QStringList{u"Convert: save as heic"_qs} : QStringList();
    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(log.lines(), expected);
}

TEST_P(FileConversionTable, ReplacesAWorkFileByItsConversion)
{
    const ConversionCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.jpg"_qs));

    const ConversionResult result
        = FileConversion().hSaveAsFileType({source, row.word, u"8"_qs, folder.path()});

    EXPECT_EQ(result.word, ResultWord::Ok);
    ASSERT_EQ(filesOf(folder), QStringList{u"photo."_qs + row.word});
    EXPECT_EQ(typeIdentifierOfContents(folder.path(u"photo."_qs + row.word)), row.contents);
}

INSTANTIATE_TEST_SUITE_P(
    Types, FileConversionTable, testing::ValuesIn(conversionCases), CaseName()
);

TEST(FileConversion, WritesNothingForAnUnknownType)
{
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.jpg"_qs));

    const LogLines log;

    const ConversionResult result = FileConversion().hConvertFileType(
        {source, u"com.canon.cr2-raw-image"_qs, u"8"_qs, folder.path(u"out"_qs)}
    );

    EXPECT_EQ(
        log.lines(),
        QStringList{
            u"Failed to write %1: the type \"com.canon.cr2-raw-image\" is not written here"_qs.arg(
                folder.path(u"out"_qs)
            )}
    );
    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(filesOf(folder), QStringList{u"photo.jpg"_qs});
}

TEST(FileConversion, FollowsTheCompressionLevelUpToNineTenths)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().size(96, 64).write(folder.path(u"photo.jpg"_qs));
    const auto converted = [&](const QString& level) {
        const QString target = folder.path(u"level "_qs + level);
        const auto result
            = FileConversion().hConvertFileType({source, u"public.jpeg"_qs, level, target});
        EXPECT_EQ(result.word, ResultWord::Ok);
        return TemporaryFolder::read(target);
    };

    EXPECT_LT(converted(u"1"_qs).size(), converted(u"8"_qs).size());
    EXPECT_LT(converted(u"8"_qs).size(), converted(u"9"_qs).size());
    EXPECT_EQ(converted(u"10"_qs), converted(u"9"_qs));
}

TEST(FileConversion, AgreesWithTheWritersOnLevelNineAlone)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().size(96, 64).write(folder.path(u"photo.jpg"_qs));
    const auto properties = readMetadataBlocks(source);
    ASSERT_TRUE(properties);
    const auto written = [&](const QString& level) {
        const ResultWord word = DVImageHandling::hSaveToNewImageFileX(
            {.destination = folder.path(u"written"_qs),
             .typeIdentifier = u"public.jpeg"_qs,
             .image = openedPhoto(source).image(),
             .properties = properties,
             .compressionLevel = level}
        );
        EXPECT_EQ(word, ResultWord::Ok);
        return storedPixels(folder.path(u"written.jpg"_qs));
    };
    const auto converted = [&](const QString& level) {
        const QString target = folder.path(u"converted"_qs);
        const auto result
            = FileConversion().hConvertFileType({source, u"public.jpeg"_qs, level, target});
        EXPECT_EQ(result.word, ResultWord::Ok);
        return storedPixels(target);
    };

    EXPECT_EQ(largestDifference(written(u"9"_qs), converted(u"9"_qs)), 0);
    EXPECT_NE(largestDifference(written(u"10"_qs), converted(u"10"_qs)), 0);
}

TEST(FileConversion, LeavesTheOldFileOfThePlainRouteWhenThePhotoIsDamaged)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const QString source = folder.write(u"half.jpg"_qs, whole.left(whole.size() / 2));
    const QString target = folder.write(u"out.jpeg"_qs, "output of a run before");

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.jpeg"_qs, u"8"_qs, target});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(target), "output of a run before");
}

TEST(FileConversion, LeavesTheOldFileOnAFullDisk)
{
    const TemporaryFolder folder;
    const auto busy = [](int x, int y) { return Samples{x * y % 256, x * 7 % 256, y * 5 % 256}; };
    const QString source
        = PhotoBuilder().size(400, 300).pixels(busy).write(folder.path(u"photo.jpg"_qs));
    for (const QString& type : {u"png"_qs, u"tiff"_qs, u"heic"_qs}) {
        const QString target = folder.write(u"out."_qs + type, "output of a run before");
        ConversionResult result;

        {
            const FullDisk full(4096);
            result
                = FileConversion().hConvertFileType({source, u"public."_qs + type, u"8"_qs, target}
                );
        }

        EXPECT_EQ(result.word, ResultWord::Failed) << type.toStdString();
        EXPECT_EQ(TemporaryFolder::read(target), "output of a run before") << type.toStdString();
    }
}

TEST(FileConversion, NeverEmptiesADamagedPhotoThatIsItsOwnTarget)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().format(PhotoFormat::Png).size(400, 300).bytes();
    const QString source = folder.write(u"half.png"_qs, whole.left(whole.size() / 2));

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.png"_qs, u"8"_qs, source});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(source), whole.left(whole.size() / 2));
}

TEST(FileConversion, LeavesTheOldFileOfTheMetadataRouteWhenThePhotoIsDamaged)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const QString source = folder.write(u"half.jpg"_qs, whole.left(whole.size() / 2));
    for (const QString& type : {u"png"_qs, u"tiff"_qs, u"heic"_qs}) {
        const QString target = folder.write(u"out."_qs + type, "output of a run before");

        const ConversionResult result
            = FileConversion().hConvertFileType({source, u"public."_qs + type, u"8"_qs, target});

        EXPECT_EQ(result.word, ResultWord::Failed);
        EXPECT_EQ(TemporaryFolder::read(target), "output of a run before");
    }
}

TEST(FileConversion, LeavesAnEmptyFileOfTheMetadataRouteWhenTheEncoderRefusesThePicture)
{
    const TemporaryFolder folder;
    const QString source // higher than a HEIC can be
        = PhotoBuilder().size(1, 65537).format(PhotoFormat::Png).write(folder.path(u"long.png"_qs));
    const QString target = folder.write(u"out.heic"_qs, "output of a run before");

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.heic"_qs, u"8"_qs, target});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(target), QByteArray());
}

TEST(FileConversion, NeverEmptiesAPhotoThatIsItsOwnTargetForARefusingEncoder)
{
    const TemporaryFolder folder;
    const QString source
        = PhotoBuilder().size(1, 65537).format(PhotoFormat::Png).write(folder.path(u"long.png"_qs));
    const QByteArray before = TemporaryFolder::read(source);

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.heic"_qs, u"8"_qs, source});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(source), before);
}

TEST(SaveAsFileType, RemovesTheSourceEvenForAWordThatItDoesNotKnow)
{
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.png"_qs));

    const ConversionResult result
        = FileConversion().hSaveAsFileType({source, u"jpg"_qs, u"8"_qs, folder.path()});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(result.saveURL, QUrl::fromLocalFile(folder.path(u"photo.jpg"_qs)));
    EXPECT_EQ(filesOf(folder), QStringList());
}

TEST(SaveAsFileType, KeepsASourceThatIsItsOwnTarget)
{
    const TemporaryFolder folder;
    const QString source = turnedPhoto().write(folder.path(u"photo.jpeg"_qs));
    const QString unknown = folder.write(u"photo.xyz"_qs, "contents");

    const ConversionResult same
        = FileConversion().hSaveAsFileType({source, u"jpeg"_qs, u"1"_qs, folder.path()});
    const ConversionResult nothing
        = FileConversion().hSaveAsFileType({unknown, u"xyz"_qs, u"1"_qs, folder.path()});

    EXPECT_EQ(same.word, ResultWord::Ok);
    EXPECT_EQ(nothing.word, ResultWord::Failed);
    EXPECT_EQ(filesOf(folder), (QStringList{u"photo.jpeg"_qs, u"photo.xyz"_qs}));
    EXPECT_EQ(typeIdentifierOfContents(source), u"public.jpeg"_qs);
}

TEST(SaveAsFileType, RemovesTheSourceFromAnotherFolder)
{
    const TemporaryFolder folder;
    const TemporaryFolder other;
    const QString source = turnedPhoto().write(folder.path(u"photo.jpeg"_qs));

    const ConversionResult result
        = FileConversion().hSaveAsFileType({source, u"jpeg"_qs, u"8"_qs, other.path()});

    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(filesOf(folder), QStringList());
    EXPECT_EQ(filesOf(other), QStringList{u"photo.jpeg"_qs});
}

TEST(FileConversion, TakesOnlyTheLastExtensionFromTheName)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().write(folder.path(u"a.b.jpg"_qs));

    const ConversionResult result = FileConversion().hConvertFileType(
        {source, u"public.png"_qs, u"8"_qs, folder.path(u"out.png"_qs)}
    );

    EXPECT_EQ(result.name, u"a.b"_qs);
}
