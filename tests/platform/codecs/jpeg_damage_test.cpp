// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG files of which a part was lost, byte by byte.

#include "jpeg_of_scans.h"

#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

namespace brenvaldo {
namespace {

using namespace test;

const QByteArray endMarker = "\xFF\xD9";

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

/// There is no code of ones alone. More data follow than the picture takes.
QByteArray withABadCode()
{
    QByteArray file = jpegOf({});
    const qsizetype quarter = file.size() / 4;
    const QByteArray more = file.sliced(file.size() / 2, quarter);
    return file.insert(file.size() / 2, QByteArray("\xFF\0\xFF\0\xFF\0", 6) + more + more + more);
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
        LossCase{"TheLastScanIsMissing", withoutTheLastScan},
        LossCase{"ABadCode", withABadCode}
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
        EXPECT_EQ(whole.size(), QSize(64, 48));
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
