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

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;
using brenvaldo::platform::containers::typeIdentifierOfContents;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::platform::metadata::readMetadataBlocks;

namespace {

enum class Trace { Metadata, None };

struct FileTypeCase
{
    const char* name;
    QString type;
    QString word;
    QString contents; ///< type identifier of what is written
    Trace trace; ///< what of the metadata route shows in the output
};

void PrintTo(const FileTypeCase& fileTypeCase, std::ostream* out) { *out << fileTypeCase.name; }

class FileConversionTable : public testing::TestWithParam<FileTypeCase>
{
};

const FileTypeCase fileTypeCases[] = {
    {"Pdf", u"public.pdf"_s, u"pdf"_s, u"com.adobe.pdf"_s, Trace::None},
    {"Png", u"public.png"_s, u"png"_s, u"public.png"_s, Trace::Metadata},
    {"Tiff", u"public.tiff"_s, u"tiff"_s, u"public.tiff"_s, Trace::Metadata},
    {"Bmp", u"public.bmp"_s, u"bmp"_s, u"com.microsoft.bmp"_s, Trace::None},
    {"Gif", u"com.compuserve.gif"_s, u"gif"_s, u"com.compuserve.gif"_s, Trace::None},
    {"Jpeg", u"public.jpeg"_s, u"jpeg"_s, u"public.jpeg"_s, Trace::None},
    {"Jpeg2000", u"public.jp2"_s, u"jp2"_s, u"public.jp2"_s, Trace::None},
    {"Heic", u"public.heic"_s, u"heic"_s, u"public.heic"_s, Trace::Metadata},
};

PhotoBuilder photoOfMaker()
{
    return PhotoBuilder().size(48, 32).exif(exifBlock({.orientation = 6, .make = "Maker"}));
}

bool isPdf(const FileTypeCase& row) { return row.word == u"pdf"_s; }

QStringList filesOf(const TemporaryFolder& folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

} // namespace

TEST_P(FileConversionTable, WritesTheFormatOfTheType)
{
    const FileTypeCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.JPG"_s));
    const QString target = conversionTarget(folder.path(u"out"_s), row.type);

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_s, target});

    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(result.saveURL, QUrl::fromLocalFile(target));
    EXPECT_EQ(result.type, row.type);
    EXPECT_EQ(result.name, u"photo"_s);
    EXPECT_EQ(typeIdentifierOfContents(target), row.contents);
    EXPECT_EQ(filesOf(folder), (QStringList{u"out."_s + row.word, u"photo.JPG"_s}));
}

TEST_P(FileConversionTable, WorksOnStoredPixelsAndKeepsTheTagWithTheMetadata)
{
    const FileTypeCase& row = GetParam();
    if (isPdf(row))
        return;
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.jpg"_s));
    const QString target = folder.path(u"out"_s);

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_s, target});

    const auto blocks = readMetadataBlocks(target);
    ASSERT_TRUE(blocks);
    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(openedPhoto(target).header().storedSize, (PixelSize{48, 32}));
    EXPECT_EQ(blocks->exif.contains("Maker"), row.trace == Trace::Metadata);
}

TEST_P(FileConversionTable, LeavesAnEmptyFileOfTheMetadataRouteForAnUnreadablePhoto)
{
    const FileTypeCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = folder.write(u"note.jpg"_s, "this is no photo");
    const QString target = folder.path(u"out"_s);

    const LogLines log;

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_s, target});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(QFile::exists(target), row.trace == Trace::Metadata);
    EXPECT_EQ(TemporaryFolder::read(target), QByteArray());
    EXPECT_TRUE(log.lines().contains(
        u"Failed to write %1: %2 can't be read as a photo"_s.arg(target, source)
    ));
}

TEST_P(FileConversionTable, LogsHeicAlone)
{
    const FileTypeCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.jpg"_s));
    const LogLines log;

    const ConversionResult result
        = FileConversion().hConvertFileType({source, row.type, u"8"_s, folder.path(u"out"_s)});

    const QStringList expected
        = row.word == u"heic"_s ? QStringList{u"Convert: save as heic"_s} : QStringList();
    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(log.lines(), expected);
}

TEST_P(FileConversionTable, ReplacesAWorkFileByItsConversion)
{
    const FileTypeCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.jpg"_s));

    const ConversionResult result
        = FileConversion().hSaveAsFileType({source, row.word, u"8"_s, folder.path()});

    EXPECT_EQ(result.word, ResultWord::Ok);
    ASSERT_EQ(filesOf(folder), QStringList{u"photo."_s + row.word});
    EXPECT_EQ(typeIdentifierOfContents(folder.path(u"photo."_s + row.word)), row.contents);
}

INSTANTIATE_TEST_SUITE_P(Types, FileConversionTable, testing::ValuesIn(fileTypeCases), CaseName());

TEST(FileConversion, WritesNothingForAnUnknownType)
{
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.jpg"_s));

    const LogLines log;

    const ConversionResult result = FileConversion().hConvertFileType(
        {source, u"com.canon.cr2-raw-image"_s, u"8"_s, folder.path(u"out"_s)}
    );

    EXPECT_EQ(
        log.lines(),
        QStringList{
            u"Failed to write %1: the type \"com.canon.cr2-raw-image\" is not written here"_s.arg(
                folder.path(u"out"_s)
            )}
    );
    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(filesOf(folder), QStringList{u"photo.jpg"_s});
}

TEST(FileConversion, FollowsTheCompressionLevelUpToNineTenths)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().size(96, 64).write(folder.path(u"photo.jpg"_s));
    const auto converted = [&](const QString& level) {
        const QString target = folder.path(u"level "_s + level);
        const auto result
            = FileConversion().hConvertFileType({source, u"public.jpeg"_s, level, target});
        EXPECT_EQ(result.word, ResultWord::Ok);
        return TemporaryFolder::read(target);
    };

    EXPECT_LT(converted(u"1"_s).size(), converted(u"8"_s).size());
    EXPECT_LT(converted(u"8"_s).size(), converted(u"9"_s).size());
    EXPECT_EQ(converted(u"10"_s), converted(u"9"_s));
}

TEST(FileConversion, AgreesWithTheWritersOnLevelNineAlone)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().size(96, 64).write(folder.path(u"photo.jpg"_s));
    const auto properties = readMetadataBlocks(source);
    ASSERT_TRUE(properties);
    const auto written = [&](const QString& level) {
        const ResultWord word = DVImageHandling::hSaveToNewImageFileX(
            {.destination = folder.path(u"written"_s),
             .typeIdentifier = u"public.jpeg"_s,
             .image = openedPhoto(source).image(),
             .properties = properties,
             .compressionLevel = level}
        );
        EXPECT_EQ(word, ResultWord::Ok);
        return storedPixels(folder.path(u"written.jpg"_s));
    };
    const auto converted = [&](const QString& level) {
        const QString target = folder.path(u"converted"_s);
        const auto result
            = FileConversion().hConvertFileType({source, u"public.jpeg"_s, level, target});
        EXPECT_EQ(result.word, ResultWord::Ok);
        return storedPixels(target);
    };

    EXPECT_EQ(largestDifference(written(u"9"_s), converted(u"9"_s)), 0);
    EXPECT_NE(largestDifference(written(u"10"_s), converted(u"10"_s)), 0);
}

TEST(FileConversion, LeavesTheOldFileOfThePlainRouteWhenThePhotoIsDamaged)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const QString source = folder.write(u"half.jpg"_s, whole.left(whole.size() / 2));
    const QString target = folder.write(u"out.jpeg"_s, "output of a run before");

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.jpeg"_s, u"8"_s, target});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(target), "output of a run before");
}

TEST(FileConversion, LeavesTheOldFileOnAFullDisk)
{
    const TemporaryFolder folder;
    const auto busy = [](int x, int y) { return Samples{x * y % 256, x * 7 % 256, y * 5 % 256}; };
    const QString source
        = PhotoBuilder().size(400, 300).pixels(busy).write(folder.path(u"photo.jpg"_s));
    for (const QString& type : {u"png"_s, u"tiff"_s, u"heic"_s}) {
        const QString target = folder.write(u"out."_s + type, "output of a run before");
        ConversionResult result;

        {
            const FullDisk full(4096);
            result
                = FileConversion().hConvertFileType({source, u"public."_s + type, u"8"_s, target});
        }

        EXPECT_EQ(result.word, ResultWord::Failed) << type.toStdString();
        EXPECT_EQ(TemporaryFolder::read(target), "output of a run before") << type.toStdString();
    }
}

TEST(FileConversion, NeverEmptiesADamagedPhotoThatIsItsOwnTarget)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().format(PhotoFormat::Png).size(400, 300).bytes();
    const QString source = folder.write(u"half.png"_s, whole.left(whole.size() / 2));

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.png"_s, u"8"_s, source});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(source), whole.left(whole.size() / 2));
}

TEST(FileConversion, LeavesTheOldFileOfTheMetadataRouteWhenThePhotoIsDamaged)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const QString source = folder.write(u"half.jpg"_s, whole.left(whole.size() / 2));
    for (const QString& type : {u"png"_s, u"tiff"_s, u"heic"_s}) {
        const QString target = folder.write(u"out."_s + type, "output of a run before");

        const ConversionResult result
            = FileConversion().hConvertFileType({source, u"public."_s + type, u"8"_s, target});

        EXPECT_EQ(result.word, ResultWord::Failed);
        EXPECT_EQ(TemporaryFolder::read(target), "output of a run before");
    }
}

TEST(FileConversion, LeavesAnEmptyFileOfTheMetadataRouteWhenTheEncoderRefusesThePicture)
{
    const TemporaryFolder folder;
    const QString source // higher than a HEIC can be
        = PhotoBuilder().size(1, 65537).format(PhotoFormat::Png).write(folder.path(u"long.png"_s));
    const QString target = folder.write(u"out.heic"_s, "output of a run before");

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.heic"_s, u"8"_s, target});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(target), QByteArray());
}

TEST(FileConversion, NeverEmptiesAPhotoThatIsItsOwnTargetForARefusingEncoder)
{
    const TemporaryFolder folder;
    const QString source
        = PhotoBuilder().size(1, 65537).format(PhotoFormat::Png).write(folder.path(u"long.png"_s));
    const QByteArray before = TemporaryFolder::read(source);

    const ConversionResult result
        = FileConversion().hConvertFileType({source, u"public.heic"_s, u"8"_s, source});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(source), before);
}

TEST(SaveAsFileType, RemovesTheSourceEvenForAWordThatItDoesNotKnow)
{
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.png"_s));

    const ConversionResult result
        = FileConversion().hSaveAsFileType({source, u"jpg"_s, u"8"_s, folder.path()});

    EXPECT_EQ(result.word, ResultWord::Failed);
    EXPECT_EQ(result.saveURL, QUrl::fromLocalFile(folder.path(u"photo.jpg"_s)));
    EXPECT_EQ(filesOf(folder), QStringList());
}

TEST(SaveAsFileType, KeepsASourceThatIsItsOwnTarget)
{
    const TemporaryFolder folder;
    const QString source = photoOfMaker().write(folder.path(u"photo.jpeg"_s));
    const QString unknown = folder.write(u"photo.xyz"_s, "contents");

    const ConversionResult same
        = FileConversion().hSaveAsFileType({source, u"jpeg"_s, u"1"_s, folder.path()});
    const ConversionResult nothing
        = FileConversion().hSaveAsFileType({unknown, u"xyz"_s, u"1"_s, folder.path()});

    EXPECT_EQ(same.word, ResultWord::Ok);
    EXPECT_EQ(nothing.word, ResultWord::Failed);
    EXPECT_EQ(filesOf(folder), (QStringList{u"photo.jpeg"_s, u"photo.xyz"_s}));
    EXPECT_EQ(typeIdentifierOfContents(source), u"public.jpeg"_s);
}

TEST(SaveAsFileType, RemovesTheSourceFromAnotherFolder)
{
    const TemporaryFolder folder;
    const TemporaryFolder other;
    const QString source = photoOfMaker().write(folder.path(u"photo.jpeg"_s));

    const ConversionResult result
        = FileConversion().hSaveAsFileType({source, u"jpeg"_s, u"8"_s, other.path()});

    EXPECT_EQ(result.word, ResultWord::Ok);
    EXPECT_EQ(filesOf(folder), QStringList());
    EXPECT_EQ(filesOf(other), QStringList{u"photo.jpeg"_s});
}

TEST(FileConversion, TakesOnlyTheLastExtensionFromTheName)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().write(folder.path(u"a.b.jpg"_s));

    const ConversionResult result = FileConversion().hConvertFileType(
        {source, u"public.png"_s, u"8"_s, folder.path(u"out.png"_s)}
    );

    EXPECT_EQ(result.name, u"a.b"_s);
}
