// SPDX-License-Identifier: GPL-3.0-or-later
// New names for thousands of files: a chain of ten actions, a dry run, and a run beside the copies
// that it makes.

#include "benchmark_main.h"
#include "silent_surroundings.h"

#include <platform/foundation/literals.h>
#include <platform/storage/file_system.h>
#include <presets/action_run.h>
#include <workspace/functions/selected_function.h>
#include <workspace/workspace.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace brenvaldo;

namespace {

constexpr int files = 5000;

QString row(const QString& action, const QString& fields)
{
    return u"name\t \t"_s + action + u"\tBrenvaldo9\t"_s + fields;
}

/// Two of each transform.
QList<QStringList> tenActions()
{
    const QStringList five{
        row(u"Strip"_s, u"1\t0\tx\t1\t3\t-\t2\t1\t1"_s),
        row(u"Replace"_s, u"3\t1\t3\t_\ta\tbb"_s),
        row(u"Prefix"_s, u"pre-\t\t0\t0"_s),
        row(u"Postfix"_s, u"-post\t\t0\t0\t1"_s),
        row(u"Numbering"_s, u"1\t<\t>\t6\t0\t1"_s)};
    QList<QStringList> rows;
    for (const QString& each : five + five)
        rows.append({each});
    return rows;
}

void chainOfTen(benchmark::State& state)
{
    const QList<QStringList> rows = tenActions();
    for ([[maybe_unused]] auto round : state) {
        for (int index = 0; index < files; ++index) {
            const QString name = u"IMG_%1-summer at the lake.jpg"_s.arg(index, 5, 10, QChar(u'0'));
            benchmark::DoNotOptimize(presets::renamedByActions(u"/in/"_s + name, name, rows));
        }
    }
}

/// A folder with files, and one that they go to.
struct Folders
{
    Folders()
    {
        QDir(folder.path()).mkpath(u"in"_s);
        for (int index = 0; index < files; ++index) {
            paths.append(folder.filePath(u"in/%1.jpg"_s.arg(index)));
            QFile file(paths.last());
            if (file.open(QIODevice::WriteOnly))
                file.write("photo");
        }
    }

    void emptyTarget() const
    {
        QDir(target()).removeRecursively();
        QDir().mkpath(target());
    }
    [[nodiscard]] QString target() const { return folder.filePath(u"out/"_s); }

    QTemporaryDir folder;
    QStringList paths;
};

void copies(benchmark::State& state)
{
    const Folders folders;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        folders.emptyTarget();
        state.ResumeTiming();
        for (int index = 0; index < files; ++index)
            platform::storage::copyItem(
                {.source = folders.paths.at(index),
                 .target = folders.target() + QString::number(index)}
            );
    }
}

/// A run of the prefix over all files; with `previewState` 1 a dry one.
void renaming(benchmark::State& state, int previewState)
{
    const Folders folders;
    qputenv("XDG_DATA_HOME", folders.folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folders.folder.path().toUtf8());
    bench::SilentChooser chooser;
    bench::SilentDesktop desktop;
    platform::UserDefaults defaults;
    workspace::Workspace workspace({.chooser = chooser, .desktop = desktop, .defaults = defaults});
    workspace.start();
    for (const QString& path : folders.paths) {
        workspace::cCollectionViewItem entry;
        entry.myPhotoDescription = path;
        workspace.photos().append(entry);
    }
    panels::Panels& panels = workspace.panels();
    workspace::cSelectedFunction::sharedModel().myString = u"fileRenaming"_s;
    panels.vwFileManagementRename.tbvFileRenaming.selectIndex(2);
    panels.vwFileManagementRename.tfPrefixToAdd.setStringValue(u"x-"_s);
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folders.target());
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        folders.emptyTarget();
        panels.vwShowPreview.cbShowPreview.setState(previewState);
        state.ResumeTiming();
        workspace.actions().send(u"hLoadImages"_s);
    }
}

void renamingRun(benchmark::State& state) { renaming(state, 0); }
void dryRun(benchmark::State& state) { renaming(state, 1); }

BENCHMARK(chainOfTen)->Unit(benchmark::kMillisecond);
BENCHMARK(copies)->Unit(benchmark::kMillisecond);
BENCHMARK(renamingRun)->Unit(benchmark::kMillisecond);
BENCHMARK(dryRun)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return bench::run(argc, argv); }
