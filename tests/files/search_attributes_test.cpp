// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/search_attributes.h>

#include <platform/foundation/literals.h>

#include <support/iptc_block.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QLocale>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

/// Tags of a TIFF structure, put together by hand: short numbers, texts, and fractions.
class ExifWriter
{
public:
    ExifWriter& text(quint16 tag, const QByteArray& value)
    {
        return add(tag, 2, static_cast<quint32>(value.size() + 1), value + '\0');
    }
    ExifWriter& number(quint16 tag, quint16 value) { return add(tag, 3, 1, bytes16(value)); }
    ExifWriter& fraction(quint16 tag, quint32 numerator, quint32 denominator)
    {
        return add(tag, 5, 1, bytes32(numerator) + bytes32(denominator));
    }
    ExifWriter& pointer(quint16 tag, quint32 place) { return add(tag, 4, 1, bytes32(place)); }
    ExifWriter& undefined(quint16 tag, const QByteArray& value)
    {
        return add(tag, 7, static_cast<quint32>(value.size()), value);
    }

    /// The directory as it stands at `offset`, with what it points to behind it.
    [[nodiscard]] QByteArray directory(quint32 offset) const
    {
        const quint32 size = 2 + 12 * static_cast<quint32>(m_entries.size()) + 4;
        QByteArray entries = bytes16(static_cast<quint16>(m_entries.size()));
        QByteArray values;
        for (const Entry& entry : m_entries) {
            entries += bytes16(entry.tag) + bytes16(entry.type) + bytes32(entry.count);
            if (entry.value.size() <= 4) {
                entries += entry.value.leftJustified(4, '\0');
                continue;
            }
            entries += bytes32(offset + size + static_cast<quint32>(values.size()));
            values += entry.value + QByteArray(entry.value.size() % 2, '\0');
        }
        return entries + bytes32(0) + values;
    }

private:
    struct Entry
    {
        quint16 tag;
        quint16 type;
        quint32 count;
        QByteArray value;
    };

    static QByteArray bytes16(quint16 value)
    {
        QByteArray bytes(2, '\0');
        bytes[0] = static_cast<char>(value & 0xFFU);
        bytes[1] = static_cast<char>(value >> 8);
        return bytes;
    }
    static QByteArray bytes32(quint32 value)
    {
        return bytes16(static_cast<quint16>(value)) + bytes16(static_cast<quint16>(value >> 16));
    }
    ExifWriter& add(quint16 tag, quint16 type, quint32 count, const QByteArray& value)
    {
        m_entries.append({.tag = tag, .type = type, .count = count, .value = value});
        return *this;
    }

    QList<Entry> m_entries;
};

/// A block with a first directory of two texts, and the camera's values in the second.
QByteArray cameraBlock(const QByteArray& taken = "2020:03:04 05:06:07")
{
    ExifWriter camera;
    camera.fraction(0x829A, 1, 50)
        .fraction(0x829D, 22, 10)
        .number(0x8827, 400)
        .undefined(0x9000, "0232")
        .text(0x9003, taken)
        .text(0x9011, "+05:30")
        .number(0x9209, 65)
        .fraction(0x920A, 85, 1)
        .number(0xA001, 1)
        .number(0xA402, 1)
        .number(0xA403, 1);
    ExifWriter first;
    first.text(0x010F, "Maker").text(0x0110, "Model 5").text(0x0131, "Darkroom");
    const quint32 pointerSize = 12;
    const quint32 start = 8;
    const auto exifAt = start + static_cast<quint32>(first.directory(start).size()) + pointerSize;
    first.pointer(0x8769, exifAt);
    return QByteArray("II\x2A\0\x08\0\0\0", 8) + first.directory(start) + camera.directory(exifAt);
}

class SearchAttributes : public testing::Test
{
protected:
    [[nodiscard]] QString of(const QString& path, const QString& name) const
    {
        return files::searchAttribute(path, name).value_or(u"none"_s);
    }

    test::TemporaryFolder folder;
    QString photo
        = test::PhotoBuilder()
              .size(30, 20)
              .exif(cameraBlock())
              .jpegSegment('\xED', test::iptcSegmentContents(test::iptcDataSet(120, "By the lake")))
              .write(folder.path(u"a.jpg"_s));
    QString plain = test::PhotoBuilder()
                        .size(30, 20)
                        .model(test::PhotoModel::RgbAlpha)
                        .format(test::PhotoFormat::Png)
                        .dotsPerInch(300)
                        .write(folder.path(u"b.png"_s));
};

} // namespace

TEST_F(SearchAttributes, TellWhatTheCameraWrote)
{
    EXPECT_EQ(of(photo, u"AcquisitionMake"_s), u"Maker"_s);
    EXPECT_EQ(of(photo, u"AcquisitionModel"_s), u"Model 5"_s);
    EXPECT_EQ(of(photo, u"Creator"_s), u"Darkroom"_s);
    EXPECT_EQ(of(photo, u"Description"_s), u"By the lake"_s);
    EXPECT_EQ(of(photo, u"EXIFVersion"_s), u"2.3.2"_s);
    EXPECT_EQ(of(photo, u"ExposureMode"_s), u"1"_s);
    EXPECT_EQ(of(photo, u"ExposureTimeSeconds"_s), u"0.02"_s);
    EXPECT_EQ(of(photo, u"FNumber"_s), u"2.2"_s);
    EXPECT_EQ(of(photo, u"FocalLength"_s), u"85"_s);
    EXPECT_EQ(of(photo, u"ISOSpeed"_s), u"400"_s);
    EXPECT_EQ(of(photo, u"FlashOnOff"_s), u"1"_s);
    EXPECT_EQ(of(photo, u"RedEyeOnOff"_s), u"1"_s);
    EXPECT_EQ(of(photo, u"WhiteBalance"_s), u"1"_s);
    EXPECT_EQ(of(photo, u"ContentCreationDate"_s), u"2020-03-03 23:36:07 +0000"_s);
    EXPECT_EQ(of(photo, u"ProfileName"_s), u"sRGB IEC61966-2.1"_s);
}

TEST_F(SearchAttributes, TellThePicturesOwnValues)
{
    EXPECT_EQ(of(photo, u"PixelWidth"_s), u"30"_s);
    EXPECT_EQ(of(photo, u"PixelHeight"_s), u"20"_s);
    EXPECT_EQ(of(photo, u"PixelCount"_s), u"600"_s);
    EXPECT_EQ(of(photo, u"Orientation"_s), u"0"_s);
    EXPECT_EQ(of(photo, u"ColorSpace"_s), u"RGB"_s);
    EXPECT_EQ(of(photo, u"BitsPerSample"_s), u"32"_s);
    EXPECT_EQ(of(photo, u"HasAlphaChannel"_s), u"0"_s);
    EXPECT_EQ(of(plain, u"HasAlphaChannel"_s), u"1"_s);
    EXPECT_EQ(of(plain, u"ResolutionWidthDPI"_s).left(3), u"300"_s);
    EXPECT_EQ(of(plain, u"ResolutionHeightDPI"_s).left(3), u"300"_s);
    EXPECT_EQ(of(plain, u"FNumber"_s), u"none"_s);
    EXPECT_EQ(of(plain, u"FlashOnOff"_s), u"none"_s);
    EXPECT_EQ(of(plain, u"EXIFVersion"_s), u"none"_s);
    EXPECT_EQ(of(plain, u"ISOSpeed"_s), u"none"_s);
}

TEST_F(SearchAttributes, TellSizesOfTheUprightPicture)
{
    const QString tall
        = test::PhotoBuilder().size(30, 20).orientation(6).write(folder.path(u"t.jpg"_s));
    EXPECT_EQ(of(tall, u"PixelWidth"_s), u"20"_s);
    EXPECT_EQ(of(tall, u"PixelHeight"_s), u"30"_s);
    EXPECT_EQ(of(tall, u"Orientation"_s), u"1"_s);
}

TEST_F(SearchAttributes, CountTheBitsOfAGreyPixelOnce)
{
    const QString grey
        = test::PhotoBuilder().model(test::PhotoModel::Gray).write(folder.path(u"grey.jpg"_s));
    EXPECT_EQ(of(grey, u"BitsPerSample"_s), u"8"_s);
    EXPECT_EQ(of(grey, u"ColorSpace"_s), u"Gray"_s);
}

TEST_F(SearchAttributes, TellWhatTheFileSystemKnows)
{
    EXPECT_EQ(of(photo, u"DisplayName"_s), u"a.jpg"_s);
    EXPECT_EQ(of(photo, u"FSName"_s), u"a.jpg"_s);
    EXPECT_EQ(of(photo, u"ContentType"_s), u"public.jpeg"_s);
    EXPECT_EQ(of(photo, u"Kind"_s), u"JPEG image"_s);
    EXPECT_EQ(of(plain, u"Kind"_s), u"PNG image"_s);
    EXPECT_EQ(of(photo, u"FSSize"_s), QString::number(QFile(photo).size()));
    EXPECT_EQ(of(photo, u"FSInvisible"_s), u"0"_s);
    EXPECT_EQ(of(photo, u"FSFinderFlags"_s), u"0"_s);
    EXPECT_EQ(of(photo, u"FSIsExtensionHidden"_s), u"0"_s);
    EXPECT_EQ(of(photo, u"FSLabel"_s), u"0"_s);
    EXPECT_EQ(of(photo, u"FSNodeCount"_s), u"none"_s);
    EXPECT_EQ(of(photo, u"FSOwnerUserID"_s), QString::number(QFileInfo(photo).ownerId()));
    EXPECT_EQ(of(photo, u"FSOwnerGroupID"_s), QString::number(QFileInfo(photo).groupId()));
}

TEST_F(SearchAttributes, TellDatesInUniversalTime)
{
    QFile file(plain);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime date(QDate(2021, 2, 3), QTime(4, 5, 6), Qt::UTC);
    ASSERT_TRUE(file.setFileTime(date, QFileDevice::FileModificationTime));
    file.close();

    EXPECT_EQ(of(plain, u"ContentModificationDate"_s), u"2021-02-03 04:05:06 +0000"_s);
    EXPECT_EQ(of(plain, u"FSContentChangeDate"_s), u"2021-02-03 04:05:06 +0000"_s);
    EXPECT_EQ(of(plain, u"ContentCreationDate"_s), of(plain, u"FSCreationDate"_s));
    EXPECT_EQ(of(plain, u"FSCreationDate"_s).size(), 25);
}

TEST_F(SearchAttributes, TakeTheDateOfTheFileWhereThePictureTellsNone)
{
    const QString text = folder.write(u"t.txt"_s, "");
    const QString undated = test::PhotoBuilder()
                                .exif(cameraBlock("in the summer"))
                                .write(folder.path(u"undated.jpg"_s));

    EXPECT_EQ(of(text, u"ContentCreationDate"_s), of(text, u"FSCreationDate"_s));
    EXPECT_EQ(of(undated, u"ContentCreationDate"_s), of(undated, u"FSCreationDate"_s));
}

TEST_F(SearchAttributes, TellKindsInEnglishWhateverTheUserSpeaks)
{
    const QHash<QString, QString> kinds{
        {u"x.jpg"_s, u"JPEG image"_s},
        {u"x.png"_s, u"PNG image"_s},
        {u"x.tif"_s, u"TIFF image"_s},
        {u"x.gif"_s, u"GIF image"_s},
        {u"x.bmp"_s, u"Windows BMP image"_s},
        {u"x.jp2"_s, u"JPEG 2000 image"_s},
        {u"x.heic"_s, u"HEIF Image"_s},
        {u"x.heif"_s, u"HEIF Image"_s},
        {u"x.webp"_s, u"WebP Image"_s},
        {u"x.psd"_s, u"Adobe Photoshop file"_s},
        {u"x.pdf"_s, u"PDF Document"_s},
        {u"x.svg"_s, u"SVG document"_s},
        {u"x.txt"_s, u"Plain Text Document"_s},
        {u"x.html"_s, u"HTML text"_s}};
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    for (auto kind = kinds.begin(); kind != kinds.end(); ++kind)
        EXPECT_EQ(of(folder.write(kind.key(), "x"), u"Kind"_s), kind.value());
    QLocale::setDefault(before);
}

TEST_F(SearchAttributes, TellOfFoldersAndHiddenFiles)
{
    QDir().mkpath(folder.path(u".x/y"_s));
    EXPECT_EQ(of(folder.path(u".x"_s), u"FSInvisible"_s), u"1"_s);
    EXPECT_EQ(of(folder.path(u".x"_s), u"FSNodeCount"_s), u"1"_s);
    EXPECT_EQ(of(folder.path(u".x"_s), u"Kind"_s), u"Folder"_s);
}

TEST_F(SearchAttributes, AreNothingForUnknownNamesAndMissingFiles)
{
    EXPECT_EQ(of(photo, u"Nothing"_s), u"none"_s);
    EXPECT_EQ(of(photo, u"FSCreatorCode"_s), u"none"_s);
    EXPECT_EQ(of(folder.path(u"none.jpg"_s), u"FSName"_s), u"none"_s);
}
