// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_destination.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/psd_file.h>
#include <support/temporary_folder.h>

#include <QtEndian>

#include <gtest/gtest.h>

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::containers;
using namespace platform::graphics;
using namespace platform::codecs;
using namespace test;

bool opens(const QByteArray& file)
{
    const TemporaryFolder folder;
    const LogLines log;
    return ImageSource::open(folder.write(u"photo"_s, file)).has_value();
}

template <typename Number>
QByteArray withNumber(QByteArray file, qsizetype at, Number number)
{
    qToBigEndian(number, file.data() + at);
    return file;
}

template <typename Number>
QByteArray withLittleNumber(QByteArray file, qsizetype at, Number number)
{
    qToLittleEndian(number, file.data() + at);
    return file;
}

QByteArray photoOf(PhotoFormat format) { return PhotoBuilder().format(format).bytes(); }

QByteArray jpeg()
{
    const QByteArray file = photoOf(PhotoFormat::Jpeg);
    const qsizetype frame = file.indexOf("\xFF\xC0");
    return withNumber<quint16>(withNumber<quint16>(file, frame + 5, 30000), frame + 7, 30000);
}

QByteArray gif()
{
    const QByteArray file = photoOf(PhotoFormat::Gif);
    const qsizetype size = file.indexOf(QByteArray("\x2C\0\0\0\0", 5)) + 5;
    return withLittleNumber<quint16>(withLittleNumber<quint16>(file, size, 30000), size + 2, 30000);
}

QByteArray jpeg2000()
{
    const QByteArray file = photoOf(PhotoFormat::Jpeg2000);
    const qsizetype size = file.indexOf("\xFF\x51") + 6;
    return withNumber<quint32>(withNumber<quint32>(file, size, 300000), size + 4, 300000);
}

QByteArray packedPsd()
{
    QByteArray file
        = psdFile({.size = {4, 4}, .mode = 1, .channels = {QByteArray(16, 'x')}, .isPacked = true});
    return withNumber<quint32>(file, 18, 10000);
}

/// A bitmap of run lengths; `runs` begin behind the palette.
QByteArray runLengths(int bits, qint32 side, const QByteArray& runs)
{
    constexpr quint32 headers = 54;
    const quint32 palette = 4U << bits;
    QByteArray file("BM", 2);
    file.resize(headers + palette);
    file = withLittleNumber<quint32>(file, 10, headers + palette);
    file = withLittleNumber<quint32>(file, 14, 40);
    file = withLittleNumber<qint32>(withLittleNumber<qint32>(file, 18, side), 22, side);
    file = withLittleNumber<quint16>(withLittleNumber<quint16>(file, 26, 1), 28, quint16(bits));
    file = withLittleNumber<quint32>(file, 30, bits == 8 ? 1 : 2);
    file = withLittleNumber<quint32>(file, 46, 1U << bits);
    return file + runs;
}

struct ClaimCase
{
    const char* name;
    QByteArray (*file)();

    friend void PrintTo(const ClaimCase& row, std::ostream* out) { *out << row.name; }
};

class ClaimedSize : public testing::TestWithParam<ClaimCase>
{
};

TEST_P(ClaimedSize, FarBeyondTheBytesOfTheFileIsRefused) { EXPECT_FALSE(opens(GetParam().file())); }

INSTANTIATE_TEST_SUITE_P(
    Formats,
    ClaimedSize,
    testing::Values(
        ClaimCase{"Jpeg", jpeg},
        ClaimCase{"Gif", gif},
        ClaimCase{"Jpeg2000", jpeg2000},
        ClaimCase{"PackedPsd", packedPsd},
        ClaimCase{"Bits", [] { return "P4 32767 32767\n" + QByteArray(100, 'x'); }},
        ClaimCase{"BitsInWords", [] { return "P1 32767 32767\n" + QByteArray(100, '1'); }},
        ClaimCase{"Grays", [] { return "P5 32767 32767 255\n" + QByteArray(100, 'x'); }},
        ClaimCase{"Colors", [] { return "P6 32767 32767 255\n" + QByteArray(100, 'x'); }},
        ClaimCase{"Runs", [] { return runLengths(8, 16000, QByteArray("\x05\x01\x00\x01", 4)); }}
    ),
    CaseName()
);

struct AnymapCase
{
    const char* name;
    QByteArray whole;

    friend void PrintTo(const AnymapCase& row, std::ostream* out) { *out << row.name; }
};

class Anymap : public testing::TestWithParam<AnymapCase>
{
};

TEST_P(Anymap, OpensWhole) { EXPECT_TRUE(opens(GetParam().whole)); }

TEST_P(Anymap, IsRefusedWithoutItsLastSample) { EXPECT_FALSE(opens(GetParam().whole.chopped(1))); }

INSTANTIATE_TEST_SUITE_P(
    Kinds,
    Anymap,
    testing::Values(
        AnymapCase{"BitsInWords", "P1\n# a comment 7\n3 2\n1 0 1 011"},
        AnymapCase{"GraysInWords", "P2 3 2 255\n10 20 30\n40 50 6"},
        AnymapCase{"ColorsInWords", "P3 1 2 255\n10 20 30\n40 50 6"},
        AnymapCase{"Bits", "P4 9 2\nabcd"},
        AnymapCase{"Grays", "P5 3 2 255\nabcdef"},
        AnymapCase{"DeepGrays", "P5 3 1 65535\nabcdef"},
        AnymapCase{"Colors", "P6 1 2 255\nabcdef"}
    ),
    CaseName()
);

TEST(LongAnymap, IsRefusedWithASideThatTheEngineCanNotTake)
{
    EXPECT_TRUE(opens("P4 1000000 1\n" + QByteArray(125'000, 'x')));
    EXPECT_FALSE(opens("P4 20000000 1\n" + QByteArray(2'500'000, 'x')));
    EXPECT_FALSE(opens("P4 1 20000000\n" + QByteArray(20'000'000, 'x')));
}

TEST(StreamedPhoto, IsNotTakenForOneOfASizeThatTheEngineMadeUp)
{
    const TemporaryFolder folder;
    const LogLines log;
    const QByteArray line = "P4 20000000 1\n" + QByteArray(2'500'000, 'x');

    EXPECT_FALSE(ImageSource::open(folder.write(u"a.pbm"_s, line)));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().endsWith(u"the header of the file can't be true"_s));
}

struct RunsCase
{
    const char* name;
    int bits;
    QByteArray runs; ///< of 4 x 4 pixels
    bool isWhole;

    friend void PrintTo(const RunsCase& row, std::ostream* out) { *out << row.name; }
};

class BitmapRuns : public testing::TestWithParam<RunsCase>
{
};

TEST_P(BitmapRuns, OpenWhenTheyAreWhole)
{
    EXPECT_EQ(opens(runLengths(GetParam().bits, 4, GetParam().runs)), GetParam().isWhole);
}

const QByteArray fullRow("\x04\x01\x00\x00", 4);
const QByteArray endOfPicture("\x00\x01", 2);
const QByteArray jumpTwoRows("\x00\x02\x00\x02", 4);
const QByteArray plainRowOfEightBits("\x00\x04wxyz\x00\x00", 8);
const QByteArray plainRowOfFourBits("\x00\x04wx\x00\x00", 6);

INSTANTIATE_TEST_SUITE_P(
    Streams,
    BitmapRuns,
    testing::Values(
        RunsCase{"Ended", 8, fullRow + fullRow + fullRow + fullRow + endOfPicture, true},
        RunsCase{"EndedOfFourBits", 4, fullRow + fullRow + fullRow + fullRow + endOfPicture, true},
        RunsCase{"WithoutEnd", 8, fullRow + fullRow + fullRow + fullRow, true},
        RunsCase{"WithoutLastEndOfRow", 8, fullRow + fullRow + fullRow + fullRow.first(2), true},
        RunsCase{"Jumping", 8, jumpTwoRows + fullRow + fullRow, true},
        RunsCase{"PlainOfEightBits", 8, plainRowOfEightBits + fullRow + fullRow + fullRow, true},
        RunsCase{"PlainOfFourBits", 4, plainRowOfFourBits + fullRow + fullRow + fullRow, true},
        RunsCase{"CutOff", 8, fullRow + fullRow + fullRow, false},
        RunsCase{"CutOffOfFourBits", 4, fullRow + fullRow + fullRow, false},
        RunsCase{
            "CutOffInTheLastRow",
            8,
            fullRow + fullRow + fullRow + QByteArray("\x03\x01", 2),
            false},
        RunsCase{
            "WithPackedPadding",
            4,
            QByteArray("\x08\x01\x00\x00", 4) + fullRow + fullRow + fullRow + endOfPicture,
            true},
        RunsCase{
            "PastTheirRow",
            8,
            QByteArray("\x05\x01\x00\x00", 4) + fullRow + fullRow + fullRow + endOfPicture,
            false},
        RunsCase{"PastTheLastRow", 8, jumpTwoRows + jumpTwoRows + fullRow + endOfPicture, false},
        RunsCase{"CutOffInAJump", 8, fullRow + fullRow + jumpTwoRows.first(3), false},
        RunsCase{
            "CutOffInPlainPixels",
            8,
            fullRow + fullRow + fullRow + plainRowOfEightBits.first(4),
            false}
    ),
    CaseName()
);

struct FlatCase
{
    const char* name;
    FileFormat format;

    friend void PrintTo(const FlatCase& row, std::ostream* out) { *out << row.name; }
};

class FlatPhoto : public testing::TestWithParam<FlatCase>
{
};

TEST_P(FlatPhoto, OpensHoweverShortItsFileIs)
{
    const TemporaryFolder folder;
    QImage flat(3000, 2000, QImage::Format_Grayscale8);
    flat.fill(Qt::white);
    const QString path = folder.path(u"flat"_s);
    ASSERT_TRUE(encode(Image::fromQImage(flat), GetParam().format, {}, path));

    EXPECT_TRUE(ImageSource::open(path));
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    FlatPhoto,
    testing::Values(
        FlatCase{"Png", FileFormat::Png},
        FlatCase{"Tiff", FileFormat::Tiff},
        FlatCase{"Gif", FileFormat::Gif},
        FlatCase{"Jpeg", FileFormat::Jpeg},
        FlatCase{"Jpeg2000", FileFormat::Jpeg2000},
        FlatCase{"Heic", FileFormat::Heic},
        FlatCase{"Bmp", FileFormat::Bmp}
    ),
    CaseName()
);

} // namespace
} // namespace brenvaldo
