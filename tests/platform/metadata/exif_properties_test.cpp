// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/exif_directories.h>
#include <platform/metadata/exif_properties.h>
#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using brenvaldo::test::CaseName;

namespace {

constexpr std::uint16_t ascii = 2;
constexpr std::uint16_t rational = 5;
constexpr std::uint16_t signedRational = 10;

QString text(const char* literal) { return QString::fromUtf8(literal); }

QByteArray numbers(int width, const QList<qint64>& values, ByteOrder order = ByteOrder::Little)
{
    QByteArray bytes;
    for (const qint64 value : values)
        appendUnsigned(bytes, static_cast<std::uint64_t>(value), width, order);
    return bytes;
}

/// The properties of a block with these fields, read back from its bytes.
ExifProperties propertiesOf(const ExifDirectories& directories)
{
    const QByteArray block = serializedExif(directories);
    return exifProperties(*TiffFile::open(block));
}

/// The EXIF property `key` of a block with the one field.
std::optional<QString> exifText(const char* key, const TiffField& field)
{
    const ExifProperties properties = propertiesOf({.order = ByteOrder::Little, .exif = {field}});
    return properties.exif.text(text(key));
}

std::optional<QString> gpsText(const char* key, const TiffField& field)
{
    const ExifProperties properties = propertiesOf({.order = ByteOrder::Little, .gps = {field}});
    return properties.gps.text(text(key));
}

} // namespace

TEST(ExifProperties, ShowsASingleNumberAsAnInteger)
{
    EXPECT_EQ(
        exifText("Flash", {.tag = 0x9209, .type = tiff::Short, .value = numbers(2, {24})}),
        text("24")
    );
}

TEST(ExifProperties, ShowsAnOffsetWithAllItsBytes)
{
    constexpr std::uint16_t offset = 13;

    EXPECT_EQ(
        exifText("Flash", {.tag = 0x9209, .type = offset, .value = numbers(4, {70000})}),
        text("70000")
    );
}

TEST(ExifProperties, ShowsAFractionAsADouble)
{
    EXPECT_EQ(
        exifText("ExposureTime", {.tag = 0x829a, .type = rational, .value = numbers(4, {1, 15})}),
        text("0.06666666666666667")
    );
    EXPECT_EQ(
        exifText(
            "ExposureBiasValue",
            {.tag = 0x9204, .type = signedRational, .value = numbers(4, {-1, 2})}
        ),
        text("-0.5")
    );
}

TEST(ExifProperties, LeavesOutAFractionByZero)
{
    EXPECT_EQ(
        exifText("FNumber", {.tag = 0x829d, .type = rational, .value = numbers(4, {1, 0})}),
        std::nullopt
    );
}

TEST(ExifProperties, ShowsAnUnknownPartOfAnArrayAsZero)
{
    const auto lens = [](const QList<qint64>& fractions) {
        return exifText(
            "LensSpecification", {.tag = 0xa432, .type = rational, .value = numbers(4, fractions)}
        );
    };

    EXPECT_EQ(lens({24, 1, 70, 1, 0, 0, 0, 0}), text("(\n    24,\n    70,\n    0,\n    0\n)"));
    EXPECT_EQ(lens({0, 0, 0, 0, 0, 0, 0, 0}), std::nullopt);
}

TEST(ExifProperties, ShowsSpeedRatingsAsAnArrayAlways)
{
    EXPECT_EQ(
        exifText(
            "ISOSpeedRatings", {.tag = 0x8827, .type = tiff::Short, .value = numbers(2, {50})}
        ),
        text("(\n    50\n)")
    );
}

TEST(ExifProperties, SplitsVersionsIntoTheirDigits)
{
    EXPECT_EQ(
        exifText("ExifVersion", {.tag = 0x9000, .type = tiff::Undefined, .value = "0230"}),
        text("(\n    2,\n    3\n)")
    );
    EXPECT_EQ(
        exifText("ExifVersion", {.tag = 0x9000, .type = tiff::Undefined, .value = "0221"}),
        text("(\n    2,\n    2,\n    1\n)")
    );
    EXPECT_EQ(
        exifText("FlashPixVersion", {.tag = 0xa000, .type = tiff::Undefined, .value = "0100"}),
        text("(\n    1,\n    0\n)")
    );
}

TEST(ExifProperties, ShowsOneByteTagsAsIntegers)
{
    EXPECT_EQ(
        exifText("FileSource", {.tag = 0xa300, .type = tiff::Undefined, .value = "\x03"}), text("3")
    );
}

TEST(ExifProperties, KeepsDatesAsTheyAreStored)
{
    EXPECT_EQ(
        exifText(
            "DateTimeOriginal",
            {.tag = 0x9003, .type = ascii, .value = QByteArray("2026:11:15 10:44:33\0", 20)}
        ),
        text("2026:11:15 10:44:33")
    );
}

TEST(ExifProperties, ReadsTextsThatAreNotUtf8AsLatin1)
{
    const ExifProperties properties = propertiesOf(
        {.order = ByteOrder::Little,
         .image = {{.tag = 0x013b, .type = ascii, .value = QByteArray("Ren\xE9\0", 5)}}}
    );

    EXPECT_EQ(properties.tiff.text(text("Artist")), text("Ren\u00e9"));
}

TEST(ExifProperties, HidesTheMakerNote)
{
    EXPECT_EQ(
        exifText("MakerNote", {.tag = 0x927c, .type = tiff::Undefined, .value = "Maker 1234"}),
        std::nullopt
    );
}

TEST(ExifProperties, ShowsPositionsInDegreesWithoutTheHemisphere)
{
    EXPECT_EQ(
        gpsText(
            "Latitude", {.tag = 2, .type = rational, .value = numbers(4, {51, 1, 30, 1, 3600, 100})}
        ),
        text("51.51")
    );
}

TEST(ExifProperties, ShowsPositionsStoredAsSignedFractions)
{
    EXPECT_EQ(
        gpsText(
            "Longitude",
            {.tag = 4, .type = signedRational, .value = numbers(4, {24, 1, 30, 1, 3600, 100})}
        ),
        text("24.51")
    );
}

TEST(ExifProperties, ShowsTheTimeOfTheFixAsText)
{
    EXPECT_EQ(
        gpsText(
            "TimeStamp", {.tag = 7, .type = rational, .value = numbers(4, {7, 1, 5, 1, 950, 100})}
        ),
        text("07:05:09.5")
    );
}

TEST(ExifProperties, ReadsBothByteOrdersAlike)
{
    const ExifDirectories little{
        .order = ByteOrder::Little,
        .image = {{.tag = 0x0112, .type = tiff::Short, .value = numbers(2, {6})}},
        .exif = {{.tag = 0x829a, .type = rational, .value = numbers(4, {1, 125})}}};

    const ExifProperties properties = propertiesOf(inOrder(little, ByteOrder::Big));

    EXPECT_EQ(properties.tiff, propertiesOf(little).tiff);
    EXPECT_EQ(properties.exif, propertiesOf(little).exif);
}

TEST(ExifProperties, FollowsNoLoopOfDirectories)
{
    QByteArray block
        = tiffHeader(ByteOrder::Little, 8)
        + serializedDirectory(
              {longField(tiff::ExifDirectory, 8, ByteOrder::Little)}, 8, ByteOrder::Little
        );
    block.replace(block.size() - 4, 4, QByteArray("\x08\0\0\0", 4));

    const ExifProperties properties = exifProperties(*TiffFile::open(block));

    EXPECT_TRUE(properties.exif.isEmpty());
}

struct CommentCase
{
    const char* name;
    QByteArray stored;
    ByteOrder order;
    QString shown;

    friend void PrintTo(const CommentCase& row, std::ostream* out) { *out << row.name; }
};

class UserComment : public testing::TestWithParam<CommentCase>
{
};

TEST_P(UserComment, ShowsAsText)
{
    EXPECT_EQ(userCommentText(GetParam().stored, GetParam().order), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Codes,
    UserComment,
    testing::Values(
        CommentCase{
            "Ascii", QByteArray("ASCII\0\0\0plain\0\0", 15), ByteOrder::Little, text("plain")},
        CommentCase{
            "AsciiWithUtf8",
            QByteArray("ASCII\0\0\0", 8) + "Caf\xC3\xA9",
            ByteOrder::Little,
            text("Caf\u00e9")},
        CommentCase{
            "UndefinedAsLatin1",
            QByteArray(8, '\0') + "Caf\xE9",
            ByteOrder::Little,
            text("Caf\u00e9")},
        CommentCase{
            "UnicodeLittle",
            QByteArray("UNICODE\0", 8) + QByteArray("a\0b\0", 4),
            ByteOrder::Little,
            text("ab")},
        CommentCase{
            "UnicodeInTheWrongOrder",
            QByteArray("UNICODE\0", 8) + QByteArray("\0a\0b", 4),
            ByteOrder::Little,
            text("ab")},
        CommentCase{
            "Japanese",
            QByteArray("JIS\0\0\0\0\0", 8) + "\x1B$B$\"\x1B(B",
            ByteOrder::Big,
            text("\u3042")},
        CommentCase{
            "JapaneseWithoutEscapes",
            QByteArray("JIS\0\0\0\0\0", 8) + "$\"",
            ByteOrder::Big,
            text("\u3042")},
        CommentCase{
            "BytesBehindTheEnd",
            QByteArray("ASCII\0\0\0plain\0\x0B\0\xF8", 17),
            ByteOrder::Little,
            text("plain")},
        CommentCase{
            "UnknownCode",
            QByteArray("\0\x1F\xDD\0\0\0\0\x01\0\0\x0B", 11),
            ByteOrder::Little,
            text("")},
        CommentCase{
            "UnicodeBehindTheEnd",
            QByteArray("UNICODE\0a\0\0\0b\0", 14),
            ByteOrder::Little,
            text("a")},
        CommentCase{"Blanks", QByteArray(8, '\0') + "   ", ByteOrder::Big, text("   ")},
        CommentCase{"Empty", QByteArray("ASCII\0\0\0", 8), ByteOrder::Big, text("")},
        CommentCase{"TooShort", "abc", ByteOrder::Big, text("abc")}
    ),
    CaseName{}
);
