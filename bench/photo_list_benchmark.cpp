// SPDX-License-Identifier: GPL-3.0-or-later
// Adding photos to the list: the time for one must not grow with their number.

#include "benchmark_main.h"
#include "silent_surroundings.h"

#include <examples/draw_photos/landscape.h>

#include <platform/foundation/literals.h>
#include <workspace/workspace.h>

#include <QFile>
#include <QTemporaryDir>

using namespace brenvaldo;

namespace {

constexpr QSize photoSize(4240, 2832);

/// Names of `count` photos, all links to the same file.
QStringList photosIn(const QTemporaryDir& folder, int count)
{
    QImage picture = examples::drawnLandscape(examples::scenes().front(), photoSize, 1);
    examples::addSensorNoise(picture, 1);
    const QString original = folder.filePath(u"original.jpg"_s);
    if (!picture.save(original, "JPG", 92))
        return {};
    QStringList paths;
    for (int index = 0; index < count; ++index) {
        paths.append(folder.filePath(u"%1.jpg"_s.arg(index)));
        QFile::link(original, paths.last());
    }
    return paths;
}

void addToList(benchmark::State& state)
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    const QStringList paths = photosIn(folder, static_cast<int>(state.range(0)));
    bench::SilentChooser chooser;
    bench::SilentDesktop desktop;
    platform::UserDefaults defaults;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        workspace::Workspace workspace(
            {.chooser = chooser, .desktop = desktop, .defaults = defaults}
        );
        workspace.start();
        state.ResumeTiming();
        workspace.openFiles(paths);
        if (workspace.photos().count() != paths.size())
            state.SkipWithError("photos are missing");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(addToList)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) { return bench::run(argc, argv); }
