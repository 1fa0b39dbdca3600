// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG files of which a part was lost, byte by byte.

#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <array>
#include <cstdio> // jpeglib.h needs it
#include <cstdlib>

#include <jpeglib.h>

namespace brenvaldo {
namespace {

using namespace test;

constexpr int side = 64;
const QByteArray endMarker = "\xFF\xD9";

struct JpegKind
{
    int restartBlocks = 0;
    bool hasScanOfEachComponent = false;
};

/// A photo of 64 x 64 pixels, in blocks of 8 x 8, with noise enough that each block holds data.
QByteArray jpegOf(const JpegKind& kind)
{
    jpeg_compress_struct encoder = {};
    jpeg_error_mgr errors = {};
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&encoder, &bytes, &size);
    encoder.image_width = side;
    encoder.image_height = side;
    encoder.input_components = 3;
    encoder.in_color_space = JCS_RGB;
    jpeg_set_defaults(&encoder);
    encoder.comp_info[0].h_samp_factor = 1;
    encoder.comp_info[0].v_samp_factor = 1;
    encoder.restart_interval = static_cast<unsigned>(kind.restartBlocks);
    const jpeg_scan_info scans[] = {
        {1, {0}, 0, 63, 0, 0}, //
        {1, {1}, 0, 63, 0, 0},
        {1, {2}, 0, 63, 0, 0},
    };
    if (kind.hasScanOfEachComponent) {
        encoder.scan_info = scans;
        encoder.num_scans = 3;
    }
    jpeg_start_compress(&encoder, TRUE);
    std::array<JSAMPLE, side* 3> row = {};
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side * 3; ++x)
            row[static_cast<std::size_t>(x)] = static_cast<JSAMPLE>((x * 7919 + y * 104729) >> 3);
        JSAMPLE* rows = row.data();
        jpeg_write_scanlines(&encoder, &rows, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    QByteArray file(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    std::free(bytes);
    return file;
}

constexpr JpegKind withRestarts = {.restartBlocks = 4};
constexpr JpegKind withThreeScans = {.hasScanOfEachComponent = true};

/// Where the restart marker of this number stands for the first time.
qsizetype restartOf(const QByteArray& file, int number)
{
    const char marker[] = {'\xFF', static_cast<char>(0xD0 + number)};
    return file.indexOf(QByteArray(marker, 2));
}

QByteArray withRestartsOutOfOrder()
{
    QByteArray file = jpegOf(withRestarts);
    const qsizetype second = restartOf(file, 1);
    file[second + 1] = '\xD3';
    return file;
}

QByteArray withoutOneInterval()
{
    QByteArray file = jpegOf(withRestarts);
    const qsizetype second = restartOf(file, 1);
    return file.remove(second, restartOf(file, 2) - second);
}

QByteArray withBytesBeforeARestart()
{
    QByteArray file = jpegOf(withRestarts);
    return file.insert(restartOf(file, 1), "\x12\x34\x56\x78");
}

QByteArray withBytesBeforeTheSecondScan()
{
    QByteArray file = jpegOf(withThreeScans);
    const qsizetype firstScan = file.indexOf("\xFF\xDA");
    qsizetype next = firstScan + 2;
    while (file[next] != '\xFF' || file[next + 1] == '\0')
        ++next;
    return file.insert(next, QByteArray(36, '\x12')); // the library looks ahead for some
}

QByteArray withoutTheLastScan()
{
    const QByteArray file = jpegOf(withThreeScans);
    return file.first(file.lastIndexOf("\xFF\xDA")) + endMarker;
}

struct LossCase
{
    const char* name;
    QByteArray (*bytes)();

    friend void PrintTo(const LossCase& row, std::ostream* out) { *out << row.name; }
};

class JpegDamage : public testing::TestWithParam<LossCase>
{
};

TEST_P(JpegDamage, IsNoPicture)
{
    const TemporaryFolder folder;
    const LogLines log;
    const QString path = folder.write(u"a.jpg"_s, GetParam().bytes());

    EXPECT_TRUE(storedPixels(path).isNull());
    EXPECT_THAT(log.lines().join(u' ').toStdString(), testing::HasSubstr("JPEG: "));
}

INSTANTIATE_TEST_SUITE_P(
    Losses,
    JpegDamage,
    testing::Values(
        LossCase{"RestartsOutOfOrder", withRestartsOutOfOrder},
        LossCase{"AnIntervalIsMissing", withoutOneInterval},
        LossCase{"BytesBeforeARestart", withBytesBeforeARestart},
        LossCase{"BytesBeforeTheSecondScan", withBytesBeforeTheSecondScan},
        LossCase{"TheLastScanIsMissing", withoutTheLastScan}
    ),
    CaseName()
);

TEST(JpegWithStrayBytes, BeforeItsEndMarkerIsWhole)
{
    const TemporaryFolder folder;
    const LogLines log;
    for (const JpegKind& kind : {withRestarts, withThreeScans}) {
        QByteArray file = jpegOf(kind);
        const QImage whole = storedPixels(folder.write(u"a.jpg"_s, file));

        file.insert(file.lastIndexOf(endMarker), QByteArray(36, '\0'));

        EXPECT_EQ(storedPixels(folder.write(u"b.jpg"_s, file)), whole);
        EXPECT_EQ(whole.size(), QSize(side, side));
    }
}

TEST(JpegThatIsRoundedOff, FailsAtAFaultInItsLastRow)
{
    const TemporaryFolder folder;
    const LogLines log;
    const auto shrunk = [&folder](const QByteArray& file) {
        const auto source = openedPhoto(folder.write(u"a.jpg"_s, file));
        return source.image({.atLeast = platform::graphics::PixelSize{8, 8}})->toQImage();
    };
    // The last of nine rows of blocks holds one row of pixels, which is none at an eighth.
    const QByteArray whole = PhotoBuilder().size(64, 65).bytes();
    ASSERT_EQ(shrunk(whole).height(), 8);

    EXPECT_TRUE(shrunk(whole.first(whole.size() - 16) + endMarker).isNull());
}

} // namespace
} // namespace brenvaldo
