// SPDX-License-Identifier: GPL-3.0-or-later
// Whoever touches a path waits for the file that is being made there.

#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/storage/atomic_file.h>
#include <platform/storage/file_system.h>
#include <platform/storage/trash.h>

#include <support/case_name.h>

#include <QStringList>

#include <gmock/gmock.h>

#include <functional>
#include <tuple>

using namespace brenvaldo;
using namespace brenvaldo::platform;

namespace {

/// Notes who is waited for.
class NotedFiles : public FilesInTheMaking
{
public:
    void waitFor(const QString& path) override
    {
        if (!paths.contains(path))
            paths.append(path);
    }
    void waitForUsesOf(const QString& path) override
    {
        waitFor(path);
        used.append(path);
    }
    void waitForAll() override { }

    QStringList paths;
    QStringList used; ///< of which others may be made
};

struct Way
{
    const char* name;
    std::function<void(const QString& path, const QString& other)> touch;
    bool touchesBoth = false;
    bool changes = false; ///< the first one

    friend void PrintTo(const Way& way, std::ostream* out) { *out << way.name; }
};

class WayToAFile : public testing::TestWithParam<Way>
{
};

} // namespace

TEST_P(WayToAFile, WaitsForIt)
{
    const QString path = u"/nowhere/a.jpg"_s;
    const QString other = u"/nowhere/b.jpg"_s;
    NotedFiles files;

    GetParam().touch(path, other);

    EXPECT_EQ(files.paths, GetParam().touchesBoth ? (QStringList{path, other}) : QStringList{path});
    EXPECT_EQ(files.used, GetParam().changes ? QStringList{path} : QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Storage,
    WayToAFile,
    testing::Values(
        Way{"Exists",
            [](const auto& path, const auto&) { std::ignore = storage::fileExists(path); }},
        Way{"Attributes",
            [](const auto& path, const auto&) { std::ignore = storage::fileAttributes(path); }},
        Way{.name = "Removal",
            .touch = [](const auto& path, const auto&) { storage::removeItem(path); },
            .changes = true},
        Way{.name = "Trash",
            .touch
            = [](const auto& path, const auto&) { std::ignore = storage::moveToTrash(path); },
            .changes = true},
        Way{.name = "Writing",
            .touch = [](const auto& path, const auto&) { const storage::AtomicFile file(path); },
            .changes = true},
        Way{"Listing",
            [](const auto& path, const auto&) { std::ignore = storage::folderEntries(path); }},
        Way{"Link",
            [](const auto& path, const auto& other) {
                storage::createSymbolicLink({.source = other, .target = path});
            }},
        Way{"Copy",
            [](const auto& path, const auto& other) {
                storage::copyItem({.source = path, .target = other});
            },
            true},
        Way{"Move",
            [](const auto& path, const auto& other) {
                storage::moveItem({.source = path, .target = other});
            },
            true,
            true}
    ),
    test::CaseName{}
);
