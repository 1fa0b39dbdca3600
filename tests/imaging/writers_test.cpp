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

using namespace Qt::StringLiterals;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;
using brenvaldo::platform::containers::MetadataBlocks;
using brenvaldo::platform::containers::typeIdentifierOfContents;
using brenvaldo::platform::graphics::Image;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::platform::metadata::readMetadataBlocks;

namespace {

/// A folder with a photo of 47 x 33 pixels that has metadata; its picture can be written once.
class Output
{
public:
    Output()
        : m_source(PhotoBuilder()
                       .exif(exifBlock({.orientation = 6, .make = "Maker"}))
                       .write(m_folder.path(u"source.jpg"_s)))
        , m_properties(readMetadataBlocks(m_source).value_or(MetadataBlocks()))
    {
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.path(name); }
    [[nodiscard]] const MetadataBlocks& properties() const { return m_properties; }

    [[nodiscard]] PictureToSave picture(const QString& name, const QString& type) const
    {
        return {
            .destination = path(name),
            .typeIdentifier = type,
            .image = openedPhoto(m_source).image(),
            .properties = m_properties,
            .compressionLevel = u"9"_s,
        };
    }

    /// Names of all files but the source, hidden ones too.
    [[nodiscard]] QStringList files() const
    {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        names.removeAll(u"source.jpg"_s);
        return names;
    }

private:
    TemporaryFolder m_folder;
    QString m_source;
    MetadataBlocks m_properties;
};

struct TypeCase
{
    const char* name;
    QString type;
    QString file; ///< written for the base "out"
    QString contents; ///< type identifier of what is written
    bool hasMetadata;
};

void PrintTo(const TypeCase& typeCase, std::ostream* out) { *out << typeCase.name; }

class Writers : public testing::TestWithParam<TypeCase>
{
};

const TypeCase typeCases[] = {
    {"Png", u"public.png"_s, u"out.png"_s, u"public.png"_s, true},
    {"Tiff", u"public.tiff"_s, u"out.tiff"_s, u"public.tiff"_s, true},
    {"BmpOfAFile", u"com.microsoft.bmp"_s, u"out"_s, u"com.microsoft.bmp"_s, false},
    {"BmpOfATitle", u"public.bmp"_s, u"out.bmp"_s, u"com.microsoft.bmp"_s, false},
    {"Gif", u"com.compuserve.gif"_s, u"out.gif"_s, u"com.compuserve.gif"_s, false},
    {"Jpeg", u"public.jpeg"_s, u"out.jpg"_s, u"public.jpeg"_s, true},
    {"Jpeg2000", u"public.jp2"_s, u"out.jp2"_s, u"public.jp2"_s, false},
    {"Heic", u"public.heic"_s, u"out.heic"_s, u"public.heic"_s, true},
};

qint64 sizeOf(const QString& path) { return TemporaryFolder::read(path).size(); }

} // namespace

TEST_P(Writers, PutTheFormatOfTheTypeBesideTheBase)
{
    const TypeCase& row = GetParam();
    const Output output;

    const ResultWord word
        = DVImageHandling::hSaveToNewImageFileX(output.picture(u"out"_s, row.type));

    EXPECT_EQ(word, ResultWord::Ok);
    ASSERT_EQ(output.files(), QStringList{row.file});
    EXPECT_EQ(typeIdentifierOfContents(output.path(row.file)), row.contents);
    EXPECT_EQ(openedPhoto(output.path(row.file)).header().storedSize, (PixelSize{47, 33}));
}

TEST_P(Writers, CarryMetadataUnchangedWhereTheTypeTakesIt)
{
    const TypeCase& row = GetParam();
    const Output output;
    EXPECT_EQ(
        DVImageHandling::hSaveToNewImageFileX(output.picture(u"out"_s, row.type)), ResultWord::Ok
    );

    const auto written = readMetadataBlocks(output.path(row.file));

    ASSERT_TRUE(written);
    EXPECT_EQ(!written->exif.isEmpty(), row.hasMetadata);
    EXPECT_EQ(written->exif.contains("Maker"), row.hasMetadata);
}

TEST_P(Writers, WriteWatermarkedPhotosAlikeButForHeic)
{
    const TypeCase& row = GetParam();
    const bool isHeic = row.type == u"public.heic"_s;
    const Output output;
    const LogLines log;

    const ResultWord word
        = DVImageHandling::hSaveToNewImageFileMPR(output.picture(u"out"_s, row.type));

    EXPECT_EQ(word, isHeic ? ResultWord::Failed : ResultWord::Ok);
    EXPECT_EQ(output.files(), isHeic ? QStringList() : QStringList{row.file});
    const QString reason
        = u"Failed to write %1: the type \"public.heic\" is not written here"_s.arg(
            output.path(u"out"_s)
        );
    EXPECT_EQ(log.lines(), isHeic ? QStringList{reason} : QStringList());
}

TEST_P(Writers, TakeAWholePathAsItStands)
{
    const TypeCase& row = GetParam();
    const Output output;

    const ResultWord word
        = DVImageHandling::hSaveToNewImageFile(output.picture(u"out.xyz"_s, row.type));

    EXPECT_EQ(word, ResultWord::Ok);
    ASSERT_EQ(output.files(), QStringList{u"out.xyz"_s});
    EXPECT_EQ(typeIdentifierOfContents(output.path(u"out.xyz"_s)), row.contents);
}

TEST_P(Writers, ReplaceTheOutputOfARunBefore)
{
    const TypeCase& row = GetParam();
    const Output output;
    QFile before(output.path(row.file));
    ASSERT_TRUE(before.open(QIODevice::WriteOnly));
    before.write("output of a run before");
    before.close();

    const ResultWord word
        = DVImageHandling::hSaveToNewImageFileX(output.picture(u"out"_s, row.type));

    EXPECT_EQ(word, ResultWord::Ok);
    EXPECT_EQ(typeIdentifierOfContents(output.path(row.file)), row.contents);
}

TEST_P(Writers, LogAFailureByTheRow)
{
    const TypeCase& row = GetParam();
    const Output output;
    PictureToSave picture = output.picture(u"no folder/out"_s, row.type);
    const LogLines log;

    const ResultWord word = DVImageHandling::hSaveToNewImageFileX(picture);

    const QString url
        = QUrl::fromLocalFile(output.path(u"no folder/"_s) + row.file).toString(QUrl::FullyEncoded);
    const bool isSilent = row.type == u"com.microsoft.bmp"_s;
    EXPECT_EQ(word, ResultWord::Failed);
    EXPECT_EQ(log.lines().contains(u"Failed to write image to "_s + url), !isSilent);
    EXPECT_TRUE(log.lines().contains(u"Failed to write %1: No such file or directory"_s.arg(
        output.path(u"no folder/"_s) + row.file
    )));
}

TEST_P(Writers, LogAFailureOfAWholePathForHeicAlone)
{
    const TypeCase& row = GetParam();
    const Output output;
    const LogLines log;

    const ResultWord word
        = DVImageHandling::hSaveToNewImageFile(output.picture(u"no folder/out"_s, row.type));

    const QStringList failures = log.lines().filter(u"Failed to write image to "_s);
    EXPECT_EQ(word, ResultWord::Failed);
    EXPECT_EQ(failures.size(), row.type == u"public.heic"_s ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Types, Writers, testing::ValuesIn(typeCases), CaseName());

TEST(WritersOfUnknownTypes, FailWithoutAFile)
{
    const Output output;
    const LogLines log;

    const auto picture = output.picture(u"out"_s, u"com.canon.cr2-raw-image"_s);

    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(picture), ResultWord::Failed);
    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileMPR(picture), ResultWord::Failed);
    EXPECT_EQ(DVImageHandling::hSaveToNewImageFile(picture), ResultWord::Failed);
    EXPECT_EQ(output.files(), QStringList());
    const QString reason
        = u"Failed to write %1: the type \"com.canon.cr2-raw-image\" is not written here"_s.arg(
            output.path(u"out"_s)
        );
    EXPECT_EQ(log.lines(), (QStringList{reason, reason, reason}));
}

TEST(WritersWithoutAPicture, TellTheReason)
{
    const Output output;
    PictureToSave picture = output.picture(u"out"_s, u"com.microsoft.bmp"_s);
    picture.image.reset();
    const LogLines log;

    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(picture), ResultWord::Failed);

    EXPECT_EQ(
        log.lines(),
        QStringList{u"Failed to write %1: there is no picture"_s.arg(output.path(u"out"_s))}
    );
}

TEST(WritersOfUnknownTypes, DoNotSupportPhotoshopAndPdf)
{
    const Output output;

    for (const QString& type : {u"com.adobe.photoshop-image"_s, u"com.adobe.pdf"_s}) {
        const auto picture = output.picture(u"out"_s, type);
        EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(picture), ResultWord::NotSupported);
        EXPECT_EQ(DVImageHandling::hSaveToNewImageFileMPR(picture), ResultWord::NotSupported);
        EXPECT_EQ(DVImageHandling::hSaveToNewImageFile(picture), ResultWord::NotSupported);
    }
    EXPECT_EQ(output.files(), QStringList());
}

TEST(Writer, FailsWithoutAPicture)
{
    const Output output;
    PictureToSave picture = output.picture(u"out"_s, u"public.png"_s);
    picture.image.reset();

    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(picture), ResultWord::Failed);
    EXPECT_EQ(output.files(), QStringList());
}

TEST(Writer, LeavesTheOldFileWhenThePhotoIsDamaged)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(400, 300).bytes();
    const QString source = folder.write(u"half.jpg"_s, whole.left(whole.size() / 2));
    const QString target = folder.write(u"out.png"_s, "output of a run before");

    const ResultWord word = DVImageHandling::hSaveToNewImageFileX(
        {.destination = folder.path(u"out"_s),
         .typeIdentifier = u"public.png"_s,
         .image = openedPhoto(source).image()}
    );

    EXPECT_EQ(word, ResultWord::Failed);
    EXPECT_EQ(TemporaryFolder::read(target), "output of a run before");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST(Writer, FollowsTheCompressionLevelInJpeg)
{
    const Output output;
    PictureToSave low = output.picture(u"low"_s, u"public.jpeg"_s);
    low.compressionLevel = u"1"_s;
    PictureToSave high = output.picture(u"high"_s, u"public.jpeg"_s);
    PictureToSave highest = output.picture(u"highest"_s, u"public.jpeg"_s);
    highest.compressionLevel = u"10"_s;

    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(low), ResultWord::Ok);
    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileMPR(high), ResultWord::Ok);
    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(highest), ResultWord::Ok);

    EXPECT_LT(sizeOf(output.path(u"low.jpg"_s)), sizeOf(output.path(u"high.jpg"_s)));
    EXPECT_LT(sizeOf(output.path(u"high.jpg"_s)), sizeOf(output.path(u"highest.jpg"_s)));
}

TEST(Writer, HasNoPlaceForTheLevelWithoutProperties)
{
    const Output output;
    PictureToSave low = output.picture(u"low"_s, u"public.jpeg"_s);
    low.compressionLevel = u"1"_s;
    low.properties = std::nullopt;
    PictureToSave high = output.picture(u"high"_s, u"public.jpeg"_s);
    high.properties = std::nullopt;

    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(low), ResultWord::Ok);
    EXPECT_EQ(DVImageHandling::hSaveToNewImageFileX(high), ResultWord::Ok);

    EXPECT_EQ(
        TemporaryFolder::read(output.path(u"low.jpg"_s)),
        TemporaryFolder::read(output.path(u"high.jpg"_s))
    );
}

TEST(Writer, IgnoresTheLevelWhereThePathIsWhole)
{
    const Output output;
    PictureToSave low = output.picture(u"low.jpg"_s, u"public.jpeg"_s);
    low.compressionLevel = u"1"_s;

    EXPECT_EQ(DVImageHandling::hSaveToNewImageFile(low), ResultWord::Ok);
    EXPECT_EQ(
        DVImageHandling::hSaveToNewImageFile(output.picture(u"high.jpg"_s, u"public.jpeg"_s)),
        ResultWord::Ok
    );

    EXPECT_EQ(
        TemporaryFolder::read(output.path(u"low.jpg"_s)),
        TemporaryFolder::read(output.path(u"high.jpg"_s))
    );
}
