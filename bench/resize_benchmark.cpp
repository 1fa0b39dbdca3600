// SPDX-License-Identifier: GPL-3.0-or-later
// Shrinking of a 24 MP photo: from memory, and from file to file.

#include "benchmark_main.h"

#include <platform/codecs/image_destination.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <examples/draw_photos/landscape.h>

#include <QTemporaryDir>

using namespace brenvaldo;
using platform::graphics::PixelSize;

namespace {

constexpr QSize photoSize(6000, 4000);

QImage photo()
{
    QImage picture = examples::drawnLandscape(examples::scenes().front(), photoSize, 1);
    examples::addSensorNoise(picture, 1);
    return picture;
}

PixelSize targetOf(const benchmark::State& state)
{
    const auto width = static_cast<int>(state.range(0));
    return {.width = width, .height = width * 2 / 3};
}

void shrinkInMemory(benchmark::State& state)
{
    const platform::graphics::Image source = platform::graphics::Image::fromQImage(photo());
    for ([[maybe_unused]] auto round : state) {
        if (!source.scaledTo(targetOf(state)).copiedToMemory())
            state.SkipWithError("not scaled");
    }
}

void shrinkFromFileToFile(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"source.jpg"_s);
    if (!photo().save(source, "JPG", 92))
        state.SkipWithError("no photo");
    const PixelSize target = targetOf(state);
    for ([[maybe_unused]] auto round : state) {
        const auto opened = platform::codecs::ImageSource::open(source);
        const auto image = opened ? opened->image({.atLeast = target}) : std::nullopt;
        if (!image
            || !platform::codecs::encode(
                image->scaledTo(target),
                platform::codecs::FileFormat::Jpeg,
                {.lossyQuality = 0.9},
                folder.filePath(u"target.jpg"_s)
            ))
            state.SkipWithError("not written");
    }
}

BENCHMARK(shrinkInMemory)
    ->Arg(3000)
    ->Arg(1600)
    ->Arg(1000)
    ->Arg(94)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(shrinkFromFileToFile)
    ->Arg(3000)
    ->Arg(1600)
    ->Arg(94)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char** argv) { return bench::run(argc, argv); }
