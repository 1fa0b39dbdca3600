// SPDX-License-Identifier: GPL-3.0-or-later
// Crop, tint, frames, rounded corners and rotation of a 24 MP photo: whole jobs from JPEG to JPEG
// beside the plain conversion, and what a changed control costs until a decoded photo stands in a
// preview of 1000 x 700 pixels.

#include "benchmark_main.h"

#include <examples/draw_photos/landscape.h>

#include <imaging/dv_image_handling.h>
#include <imaging/rotate_settings.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/screen_scaling.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <ctime>

using namespace brenvaldo;
using imaging::DVImageHandling;
using platform::graphics::Color;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

constexpr QSize photoSize(6000, 4000);
constexpr int jobs = 7;
constexpr int changes = 50;
constexpr Color red = {.red = 1, .green = 0.1, .blue = 0.1};
constexpr Color blue = {.red = 0.1, .green = 0.2, .blue = 0.6};

imaging::CropSettings crop(int change)
{
    return {
        .size = {.width = 4800, .height = 3200},
        .xOffset = change,
        .anchor = 4,
        .cropType = u"W x H"_s};
}

imaging::TintSettings tint(int change)
{
    imaging::TintSettings settings;
    settings.color = blue;
    settings.blendIndex = 4;
    settings.sizeMode = u"W x H"_s;
    settings.originalSizeState = 1;
    settings.opacity = 30 + change;
    return settings;
}

imaging::FrameSettings frame(int type, int change)
{
    return {.frameType = type, .thickness = 200 + change, .opacity = 80, .color = red};
}

imaging::RoundingSettings rounded(int change)
{
    return {
        .radius = 400 + change,
        .borderColour = red,
        .backgroundColour = blue,
        .borderState = 1,
        .borderWidth = 60,
        .backgroundState = 1,
        .opacity = 80,
        .margin = 100};
}

imaging::RotateSettings turned(int change)
{
    return {
        .degrees = 7.5F + static_cast<float>(change) / 10, .hasCanvas = true, .canvasColor = blue};
}

/// A function of the program, as a job and as a preview.
class Functions
{
public:
    using Tail = imaging::OutputTail;
    using Photo = imaging::SourceAndBase;

    imaging::Outcome plain(const Photo& photo, const Tail& tail)
    {
        return imaging::outputPicture(
            DVImageHandling::hStringToCGImageRef(photo.source), photo, tail
        );
    }
    imaging::Outcome cropJob(const Photo& photo, const Tail& tail)
    {
        return m_handling.hCropPhotos(photo, crop(0), tail);
    }
    imaging::Outcome tintJob(const Photo& photo, const Tail& tail)
    {
        return m_handling.addTintToImage2(photo, tint(0), tail);
    }
    imaging::Outcome insideJob(const Photo& photo, const Tail& tail)
    {
        return m_handling.hAddFrame(photo, frame(0, 0), tail);
    }
    imaging::Outcome outsideJob(const Photo& photo, const Tail& tail)
    {
        return m_handling.hAddFrame(photo, frame(1, 0), tail);
    }
    imaging::Outcome roundedJob(const Photo& photo, const Tail& tail)
    {
        return m_handling.hAddRoundings(photo, rounded(0), tail);
    }
    imaging::Outcome turnedJob(const Photo& photo, const Tail& tail)
    {
        return DVImageHandling::hRotatePicture(photo, turned(0), tail);
    }

    std::optional<Image> tintPreview(const Image& photo, int change)
    {
        return m_handling.addTintToImage2Preview(photo, tint(change));
    }
    std::optional<Image> insidePreview(const Image& photo, int change)
    {
        return m_handling.hAddFramePreview(photo, frame(0, change));
    }
    std::optional<Image> outsidePreview(const Image& photo, int change)
    {
        return m_handling.hAddFramePreview(photo, frame(1, change));
    }
    std::optional<Image> roundedPreview(const Image& photo, int change)
    {
        return m_handling.hAddRoundingsPreview(photo, rounded(change));
    }
    std::optional<Image> turnedPreview(const Image& photo, int change)
    {
        return DVImageHandling::hRotatePicturesPreview(photo, turned(change));
    }

    imaging::ResultWord finish(const imaging::Outcome& outcome)
    {
        return m_handling.finish(outcome);
    }

private:
    DVImageHandling m_handling;
};

QString writtenPhoto(const QTemporaryDir& folder)
{
    const QString path = folder.filePath(u"photo.jpg"_s);
    QImage picture = examples::drawnLandscape(examples::scenes().front(), photoSize, 1);
    examples::addSensorNoise(picture, 1);
    return picture.save(path, "JPG", 92) ? path : QString();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

using Job = imaging::Outcome (Functions::*)(const Functions::Photo&, const Functions::Tail&);

/// The processor's seconds of a job, all threads.
double costOf(Functions& functions, Job job, const QString& photo, const QString& base)
{
    imaging::OutputTail tail;
    tail.compressionLevel = u"9"_s;
    tail.myFileType = u"public.jpeg"_s;
    const double begin = processorSeconds();
    functions.finish((functions.*job)({.source = photo, .destinationBase = base}, tail));
    return processorSeconds() - begin;
}

/// Job and plain conversion in turn; `ratio` is that of their median costs.
void fromFileToFile(benchmark::State& state, Job job)
{
    const QTemporaryDir folder;
    const QString photo = writtenPhoto(folder);
    Functions functions;
    std::vector<double> costs;
    std::vector<double> plainCosts;
    for ([[maybe_unused]] auto round : state) {
        plainCosts.push_back(
            costOf(functions, &Functions::plain, photo, folder.filePath(u"plain"_s))
        );
        costs.push_back(costOf(functions, job, photo, folder.filePath(u"out"_s)));
    }
    state.counters["cpu_ms"] = median(costs) * 1000;
    state.counters["plain_ms"] = median(plainCosts) * 1000;
    state.counters["ratio"] = median(costs) / median(plainCosts);
}

using Preview = std::optional<Image> (Functions::*)(const Image&, int);

void changeAControl(benchmark::State& state, Preview preview)
{
    constexpr PixelSize room{.width = 1000, .height = 667};
    const QTemporaryDir folder;
    const auto source = platform::codecs::ImageSource::open(writtenPhoto(folder));
    const auto photo = source->image({.access = platform::codecs::SourceAccess::Random});
    Functions functions;
    const auto draw = [&](int change) {
        const auto picture = (functions.*preview)(*photo, change);
        benchmark::DoNotOptimize(platform::graphics::scaledForScreen(*picture, room).toQImage());
    };
    draw(0);
    std::vector<double> milliseconds;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer timer;
        timer.start();
        draw(static_cast<int>(milliseconds.size()));
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    state.counters["p50_ms"] = median(milliseconds);
    state.counters["p95_ms"] = milliseconds[milliseconds.size() * 95 / 100];
}

void addJob(const char* name, Job job)
{
    benchmark::RegisterBenchmark(name, fromFileToFile, job)
        ->Iterations(jobs)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

void addPreview(const char* name, Preview preview)
{
    benchmark::RegisterBenchmark(name, changeAControl, preview)
        ->Iterations(changes)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

} // namespace

int main(int argc, char** argv)
{
    addJob("job/crop", &Functions::cropJob);
    addJob("job/tint", &Functions::tintJob);
    addJob("job/frameInside", &Functions::insideJob);
    addJob("job/frameOutside", &Functions::outsideJob);
    addJob("job/rounded", &Functions::roundedJob);
    addJob("job/turned", &Functions::turnedJob);
    addPreview("preview/tint", &Functions::tintPreview);
    addPreview("preview/frameInside", &Functions::insidePreview);
    addPreview("preview/frameOutside", &Functions::outsidePreview);
    addPreview("preview/rounded", &Functions::roundedPreview);
    addPreview("preview/turned", &Functions::turnedPreview);
    return bench::run(argc, argv);
}
