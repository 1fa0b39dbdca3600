// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"
#include "container_builder.h"

#include <platform/codecs/image_source.h>
#include <platform/metadata/image_properties.h>
#include <platform/metadata/metadata_reader.h>
#include <platform/metadata/metadata_writer.h>
#include <platform/metadata/xmp_values.h>
#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/faults.h>
#include <support/iptc_block.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

const MetadataEdit& everything()
{
    static const MetadataEdit edit{
        .userComment = u"Ein Gruß"_s,
        .iptc
        = {{IptcKey::Keywords, {u"sea"_s, u"boat"_s}},
           {IptcKey::Headline, {u"News"_s}},
           {IptcKey::RightsUsageTerms, {u"ask"_s}}}};
    return edit;
}

QByteArray pixelsOf(const QString& path)
{
    const auto source = codecs::ImageSource::open(path);
    const QImage image = source ? source->image()->toQImage() : QImage();
    return QByteArray(
        reinterpret_cast<const char*>(image.constBits()),
        static_cast<qsizetype>(image.sizeInBytes())
    );
}

QString valueOf(const QString& path, QLatin1StringView dictionary, QLatin1StringView key)
{
    const auto properties = imageProperties(path);
    const PropertyDictionary* values = properties ? properties->dictionary(dictionary) : nullptr;
    return values ? values->text(key).value_or(u"none"_s) : u"none"_s;
}

QString commentOf(const QString& path)
{
    return valueOf(path, property::exifDictionary, property::exifUserComment);
}

QString headlineOf(const QString& path)
{
    return valueOf(path, property::iptcDictionary, property::iptcHeadline);
}

struct TypeCase
{
    const char* name;
    PhotoFormat format;
    const char* file;

    friend void PrintTo(const TypeCase& row, std::ostream* out) { *out << row.name; }
};

class WriteMetadata : public testing::Test
{
protected:
    [[nodiscard]] QString jpeg() const
    {
        return PhotoBuilder{}
            .exif(cameraBlocks().exif)
            .jpegSegment('\xED', iptcSegmentContents(iptcDataSet(90, "Bern")))
            .write(folder.path(u"a.jpg"_s));
    }

    TemporaryFolder folder;
};

} // namespace

class WriteMetadataInto : public WriteMetadata, public testing::WithParamInterface<TypeCase>
{
protected:
    [[nodiscard]] PhotoBuilder photo() const
    {
        PhotoBuilder builder;
        builder.format(GetParam().format).size(64, 48).corners();
        return builder;
    }
    [[nodiscard]] QString write(const PhotoBuilder& builder) const
    {
        return builder.write(folder.path(QString::fromLatin1(GetParam().file)));
    }

    static void expectWritten(const QString& path)
    {
        EXPECT_EQ(commentOf(path), u"Ein Gruß"_s);
        EXPECT_EQ(headlineOf(path), u"News"_s);
        const XmpValues xmp(readMetadataBlocks(path)->xmp);
        EXPECT_EQ(xmp.texts("Xmp.dc.subject"), (QStringList{u"sea"_s, u"boat"_s}));
        EXPECT_EQ(xmp.texts("Xmp.xmpRights.UsageTerms"), QStringList{u"ask"_s});
    }
};

TEST_P(WriteMetadataInto, AFileWithoutAnyKeepsThePixels)
{
    const QString path = write(photo());
    const QByteArray pixels = pixelsOf(path);

    EXPECT_TRUE(writeMetadata(path, everything()));

    expectWritten(path);
    EXPECT_EQ(pixelsOf(path), pixels);
}

TEST_P(WriteMetadataInto, AFileThatHasSomeKeepsTheRest)
{
    const QString path = write(photo()
                                   .exif(exifBlock(
                                       {.orientation = 3,
                                        .make = "Brand",
                                        .dateTimeOriginal = "2026:11:15 10:44:33",
                                        .userComment = QByteArray("ASCII\0\0\0old", 11)}
                                   ))
                                   .xmp(xmpPacket("A title")));
    const QByteArray pixels = pixelsOf(path);
    const QString title = valueOf(path, property::iptcDictionary, property::iptcObjectName);
    const QString make = valueOf(path, property::tiffDictionary, QLatin1StringView("Make"));
    const QString date = valueOf(path, property::exifDictionary, property::exifDateTimeOriginal);

    EXPECT_TRUE(writeMetadata(path, everything()));

    expectWritten(path);
    EXPECT_EQ(pixelsOf(path), pixels);
    EXPECT_EQ(valueOf(path, property::iptcDictionary, property::iptcObjectName), title);
    EXPECT_EQ(valueOf(path, property::tiffDictionary, QLatin1StringView("Make")), make);
    EXPECT_EQ(valueOf(path, property::exifDictionary, property::exifDateTimeOriginal), date);
}

TEST_P(WriteMetadataInto, TheSameAgainChangesNothing)
{
    const QString path = write(photo());
    EXPECT_TRUE(writeMetadata(path, everything()));
    const QByteArray once = TemporaryFolder::read(path);

    EXPECT_TRUE(writeMetadata(path, everything()));

    EXPECT_EQ(TemporaryFolder::read(path), once);
}

TEST_P(WriteMetadataInto, OnlyACommentLeavesTheRestByteByByte)
{
    const QString path = write(photo().xmp(xmpPacket("A title")));
    EXPECT_TRUE(writeMetadata(path, {.iptc = everything().iptc}));
    const auto before = readMetadataBlocks(path);

    EXPECT_TRUE(writeMetadata(path, {.userComment = u"new"_s}));

    const auto after = readMetadataBlocks(path);
    EXPECT_EQ(commentOf(path), u"new"_s);
    EXPECT_EQ(after->xmp, before->xmp);
    EXPECT_EQ(after->iptc, before->iptc);
    EXPECT_EQ(after->photoshop, before->photoshop);
}

INSTANTIATE_TEST_SUITE_P(
    Types,
    WriteMetadataInto,
    testing::Values(
        TypeCase{"Jpeg", PhotoFormat::Jpeg, "a.jpg"},
        TypeCase{"ProgressiveJpeg", PhotoFormat::ProgressiveJpeg, "a.jpg"},
        TypeCase{"Png", PhotoFormat::Png, "a.png"},
        TypeCase{"Tiff", PhotoFormat::Tiff, "a.tif"},
        TypeCase{"Jpeg2000", PhotoFormat::Jpeg2000, "a.jp2"},
        TypeCase{"Heic", PhotoFormat::Heic, "a.heic"},
        TypeCase{"OfAForeignExtension", PhotoFormat::Png, "a.jpg"}
    ),
    CaseName{}
);

TEST_F(WriteMetadata, RefusesTypesThatHoldNone)
{
    for (const PhotoFormat format : {PhotoFormat::Gif, PhotoFormat::Bmp}) {
        const QString path = PhotoBuilder{}.format(format).write(folder.path(u"a"_s));
        const QByteArray before = TemporaryFolder::read(path);
        const LogLines log;

        EXPECT_FALSE(writeMetadata(path, everything()));

        EXPECT_EQ(TemporaryFolder::read(path), before);
        EXPECT_EQ(
            log.lines(),
            QStringList{u"Failed to write the metadata of %1: its type holds none"_s.arg(path)}
        );
    }
}

TEST_F(WriteMetadata, RefusesAFileThatIsMissing)
{
    EXPECT_FALSE(writeMetadata(folder.path(u"none.jpg"_s), everything()));
}

TEST_F(WriteMetadata, WritesTheCommentWhereIptcIsDamaged)
{
    const QString path = PhotoBuilder{}.xmp("no packet").write(folder.path(u"a.jpg"_s));
    const LogLines log;

    EXPECT_TRUE(writeMetadata(path, everything()));

    EXPECT_EQ(commentOf(path), u"Ein Gruß"_s);
    EXPECT_EQ(headlineOf(path), u"none"_s);
    EXPECT_EQ(readMetadataBlocks(path)->xmp, "no packet");
    EXPECT_EQ(
        log.lines(),
        QStringList{
            u"Failed to write the metadata of %1: IPTC does not fit into what stands there"_s.arg(
                path
            )}
    );
}

TEST_F(WriteMetadata, LeavesAFileAloneWhoseBlocksAreDamaged)
{
    const QString noIptc = PhotoBuilder{}.xmp("no packet").write(folder.path(u"a.jpg"_s));
    const QString noExif = PhotoBuilder{}.exif("II nothing").write(folder.path(u"b.jpg"_s));
    const QByteArray before = TemporaryFolder::read(noIptc);
    const QByteArray beforeExif = TemporaryFolder::read(noExif);

    EXPECT_FALSE(writeMetadata(noIptc, {.iptc = everything().iptc}));
    EXPECT_FALSE(writeMetadata(noExif, everything()));

    EXPECT_EQ(TemporaryFolder::read(noIptc), before);
    EXPECT_EQ(TemporaryFolder::read(noExif), beforeExif);
}

TEST_F(WriteMetadata, KeepsModeAndAttributesOfTheFile)
{
    const QString path = jpeg();
    const QByteArray name = QFile::encodeName(path);
    setMode(path, 0640);
    ASSERT_EQ(::setxattr(name.constData(), "user.label", "6", 1, 0), 0);

    EXPECT_TRUE(writeMetadata(path, everything()));

    char value = 0;
    EXPECT_EQ(::getxattr(name.constData(), "user.label", &value, 1), 1);
    EXPECT_EQ(value, '6');
    EXPECT_EQ(QFileInfo(path).permissions() & 0x777, QFileDevice::Permissions(0x640));
}

TEST_F(WriteMetadata, KeepsALinkThatLeadsToTheFile)
{
    const QString path = jpeg();
    const QString link = folder.path(u"link.jpg"_s);
    ASSERT_TRUE(QFile::link(path, link));

    EXPECT_TRUE(writeMetadata(link, everything()));

    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(commentOf(path), u"Ein Gruß"_s);
}

TEST_F(WriteMetadata, LeavesAWriteProtectedFileAlone)
{
    const QString path = jpeg();
    const QByteArray before = TemporaryFolder::read(path);
    setMode(folder.path(), 0777);
    setMode(path, 0444);
    const LogLines log;
    {
        const WithoutPrivileges user;
        EXPECT_FALSE(writeMetadata(path, everything()));
    }

    EXPECT_EQ(TemporaryFolder::read(path), before);
    EXPECT_THAT(log.lines().join(u'\n').toStdString(), testing::HasSubstr("Permission denied"));
}

TEST_F(WriteMetadata, LeavesAFileAloneWhoseFolderIsWriteProtected)
{
    const QString path = jpeg();
    const QByteArray before = TemporaryFolder::read(path);
    setMode(folder.path(), 0555);
    setMode(path, 0666);
    {
        const WithoutPrivileges user;
        EXPECT_FALSE(writeMetadata(path, everything()));
    }
    setMode(folder.path(), 0755);

    EXPECT_EQ(TemporaryFolder::read(path), before);
}

TEST_F(WriteMetadata, LeavesTheFileAloneOnAFullDisk)
{
    const QString path = jpeg();
    const QByteArray before = TemporaryFolder::read(path);
    {
        const FullDisk disk(1000);
        EXPECT_FALSE(writeMetadata(path, everything()));
    }

    EXPECT_EQ(TemporaryFolder::read(path), before);
    EXPECT_EQ(
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"a.jpg"_s}
    );
}
