// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_destination.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/evaluation.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/screen_scaling.h>

#include <support/case_name.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/psd_file.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

// Faults in the last part of a picture come up while the engine already winds up its work. They
// were lost at random, so each case is tried again and again, by several threads at a time. A
// longer trial: BRENVALDO_REPETITIONS=1000
// build/debug/tests/platform/codecs/platform_codecs_test --gtest_filter='*LastPartFault*'

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::graphics;
using namespace platform::codecs;
using namespace test;

struct DamagedPhoto
{
    const char* name;
    QByteArray (*bytes)();
};

QByteArray cutOff(PhotoFormat format, QSize size, int percent)
{
    const QByteArray whole
        = PhotoBuilder().size(size.width(), size.height()).format(format).bytes();
    return whole.first(whole.size() * percent / 100);
}

QByteArray cutOffDeep(PhotoFormat format, int percent)
{
    const QByteArray whole = PhotoBuilder().size(120, 90).depth(16).format(format).bytes();
    return whole.first(whole.size() * percent / 100);
}

/// Types that the engine alone writes.
QByteArray cutOffByEngine(const char* suffix)
{
    const vips::VImage noise = vips::VImage::gaussnoise(120, 90).cast(VIPS_FORMAT_UCHAR);
    void* bytes = nullptr;
    std::size_t size = 0;
    const vips::VImage colors = noise.bandjoin(noise).bandjoin(noise).copy(
        vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB)
    );
    colors.write_to_buffer(suffix, &bytes, &size);
    const std::unique_ptr<void, decltype(&g_free)> owned(bytes, &g_free);
    return {static_cast<const char*>(bytes), static_cast<qsizetype>(size) * 97 / 100};
}

QByteArray cutOffAnymap() { return "P6 120 90 255\n" + QByteArray(120 * 90 * 3 - 100, 'x'); }

QByteArray layersWithABadLastRun()
{
    const QByteArray channel(64 * 48, '\x20');
    QByteArray file
        = psdFile({.size = {64, 48}, .channels = {channel, channel, channel}, .isPacked = true});
    file[file.size() - 2] = char(-128); // a run without length: the last row is too short
    return file;
}

constexpr DamagedPhoto damagedPhotos[] = {
    {"SmallJpeg",
     [] {
         return cutOff(PhotoFormat::Jpeg, {120, 90}, 97);
     }},
    {"Jpeg",
     [] {
         return cutOff(PhotoFormat::Jpeg, {1500, 1100}, 99);
     }},
    {"ProgressiveJpeg",
     [] {
         return cutOff(PhotoFormat::ProgressiveJpeg, {120, 90}, 97);
     }},
    {"Png",
     [] {
         return cutOff(PhotoFormat::Png, {120, 90}, 90);
     }},
    {"Tiff",
     [] {
         return cutOff(PhotoFormat::Tiff, {120, 90}, 97);
     }},
    {"Gif",
     [] {
         return cutOff(PhotoFormat::Gif, {120, 90}, 97);
     }},
    {"Heic",
     [] {
         return cutOff(PhotoFormat::Heic, {128, 64}, 97);
     }},
    {"Bitmap",
     [] {
         return cutOff(PhotoFormat::Bmp, {120, 90}, 97);
     }},
    {"DeepPng", [] { return cutOffDeep(PhotoFormat::Png, 90); }},
    {"DeepTiff", [] { return cutOffDeep(PhotoFormat::Tiff, 97); }},
    {"LosslessWebP", [] { return cutOffByEngine(".webp[lossless]"); }},
    {"JpegXl", [] { return cutOffByEngine(".jxl"); }},
    {"Anymap", cutOffAnymap},
    {"Psd", layersWithABadLastRun},
};

struct Sink
{
    const char* name;
    /// True when all pixels came through.
    bool (*takes)(const Image& image, const QString& path);
};

template <FileFormat format>
bool encodes(const Image& image, const QString& path)
{
    return encode(image, format, {}, path);
}

bool shows(const Image& image, const QString& /*path*/) { return !image.toQImage().isNull(); }

bool showsSmall(const Image& image, const QString& /*path*/)
{
    return !scaledForScreen(image, {20, 15}).toQImage().isNull();
}

bool showsTurned(const Image& image, const QString& /*path*/)
{
    return !image.turned(Image::QuarterTurn::Clockwise).toQImage().isNull();
}

bool copies(const Image& image, const QString& /*path*/)
{
    return image.copiedToMemory().has_value();
}

bool walks(const Image& image, const QString& /*path*/)
{
    try {
        forEachRow(image.node()->pixels, [](const unsigned char*, int) {});
        return true;
    } catch (const vips::VError&) {
        return false;
    }
}

constexpr Sink sinks[] = {
    {"Png", encodes<FileFormat::Png>},
    {"Tiff", encodes<FileFormat::Tiff>},
    {"Bmp", encodes<FileFormat::Bmp>},
    {"Gif", encodes<FileFormat::Gif>},
    {"Jpeg", encodes<FileFormat::Jpeg>},
    {"Jpeg2000", encodes<FileFormat::Jpeg2000>},
    {"Heic", encodes<FileFormat::Heic>},
    {"Pdf", encodes<FileFormat::Pdf>},
    {"Screen", shows},
    {"SmallScreen", showsSmall},
    {"TurnedScreen", showsTurned},
    {"Memory", copies},
    {"Rows", walks},
};

struct LastPartCase
{
    std::string name;
    DamagedPhoto photo;
    Sink sink;
    bool isScaled;

    friend void PrintTo(const LastPartCase& row, std::ostream* out) { *out << row.name; }
};

std::vector<LastPartCase> lastPartCases()
{
    std::vector<LastPartCase> cases;
    for (const DamagedPhoto& photo : damagedPhotos) {
        for (const Sink& sink : sinks) {
            const std::string name = std::string(photo.name) + "To" + sink.name;
            cases.push_back({.name = name, .photo = photo, .sink = sink, .isScaled = false});
            cases.push_back(
                {.name = name + "Scaled", .photo = photo, .sink = sink, .isScaled = true}
            );
        }
    }
    return cases;
}

/// True when the damaged photo passes for a whole one.
bool passes(const LastPartCase& row, const QString& source, const QString& target)
{
    constexpr PixelSize small = {40, 30};
    const auto opened = ImageSource::open(source);
    const auto image = opened
        ? opened->uprightImage(row.isScaled ? SourceRequest{.atLeast = small} : SourceRequest{})
        : std::nullopt;
    return image && row.sink.takes(row.isScaled ? image->scaledTo(small) : *image, target);
}

class LastPartFault : public testing::TestWithParam<LastPartCase>
{
};

TEST_P(LastPartFault, IsNeverLost)
{
    constexpr int threads = 4;
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("BRENVALDO_REPETITIONS", &isNumber);
    const int repetitions = isNumber ? asked : 2 * threads;
    const TemporaryFolder folder;
    const LogLines log;
    const QString source = folder.write(u"photo"_s, GetParam().photo.bytes());
    std::atomic<int> left = repetitions;
    std::atomic<int> passed = 0;

    std::vector<std::jthread> workers;
    for (int worker = 0; worker < threads; ++worker)
        workers.emplace_back([&, target = folder.path(QString::number(worker))] {
            while (--left >= 0)
                passed += passes(GetParam(), source, target) ? 1 : 0;
        });
    workers.clear();

    EXPECT_EQ(passed, 0) << "of " << repetitions;
}

INSTANTIATE_TEST_SUITE_P(
    PhotosAndSinks, LastPartFault, testing::ValuesIn(lastPartCases()), CaseName()
);

} // namespace
} // namespace brenvaldo
