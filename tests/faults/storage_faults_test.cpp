// SPDX-License-Identifier: GPL-3.0-or-later
// What file systems refuse, and what a killed process leaves behind.

#include "injected_faults.h"

#include <platform/storage/atomic_file.h>
#include <platform/storage/file_system.h>
#include <platform/storage/hidden_file.h>

#include <script/script_fixture.h>
#include <support/case_name.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::storage;
using brenvaldo::test::CaseName;
using brenvaldo::test::InjectedFaults;
using brenvaldo::test::PhotoBuilder;
using brenvaldo::test::TemporaryFolder;

namespace {

QStringList allEntries(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot
    );
}

struct KillCase
{
    const char* name;
    bool refusesNamelessFiles;

    friend void PrintTo(const KillCase& row, std::ostream* out) { *out << row.name; }
};

} // namespace

class KilledBeforeTheRename : public testing::TestWithParam<KillCase>
{
};

TEST_P(KilledBeforeTheRename, LeavesTheOldFileAndWhatTheNextRunRemoves)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "old");

    EXPECT_EXIT(
        {
            const InjectedFaults faults(
                folder.path(),
                {.refusesNamelessFiles = GetParam().refusesNamelessFiles, .killsAtRename = true}
            );
            static_cast<void>(writeFileAtomically(path, "new"));
        },
        testing::KilledBySignal(SIGKILL),
        ""
    );

    EXPECT_EQ(TemporaryFolder::read(path), "old");
    EXPECT_EQ(allEntries(folder.path()).size(), 2);
    removeAbandonedFiles(folder.path());
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

INSTANTIATE_TEST_SUITE_P(
    Folders,
    KilledBeforeTheRename,
    testing::Values(KillCase{"WithNamelessFiles", false}, KillCase{"WithoutThem", true}),
    CaseName{}
);

class FolderOfRuns : public brenvaldo::test::ScriptTest
{
};

TEST_F(FolderOfRuns, IsRidOfAbandonedFilesWhenARunStarts)
{
    QDir(folder()).mkdir(u"out"_s);
    static_cast<void>(files().write(u"out/.brenvaldo-0123abcd"_s, "half a picture"));
    const QString photo = PhotoBuilder().write(folder() + u"photo.jpg"_s);

    const auto outcome = run(lines(
        {u"set pubFileManagementSelect 3"_s,
         u"set tfImageDestinationFolder "_s + folder() + u"out/"_s,
         u"set pubFileType png"_s,
         u"open "_s + photo,
         u"press hLoadImages"_s}
    ));

    EXPECT_EQ(outcome.lines, QStringList{u"result\t%1\tOK"_s.arg(photo)});
    EXPECT_EQ(allEntries(folder() + u"out"_s), QStringList{u"photo.png"_s});
}

class OldFileSystem : public testing::Test
{
protected:
    TemporaryFolder folder;
    InjectedFaults faults{
        folder.path(), {.refusesNamelessFiles = true, .refusesMarkedRenames = true}};
};

TEST_F(OldFileSystem, MovesFilesAndFolders)
{
    const QString source = folder.write(u"source"_s, "a");
    createFolder(folder.path(u"tree/inner"_s));

    EXPECT_TRUE(moveItem({.source = source, .target = folder.path(u"moved"_s)}));
    EXPECT_TRUE(moveItem({.source = folder.path(u"tree"_s), .target = folder.path(u"moved tree"_s)})
    );

    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"moved"_s, u"moved tree"_s}));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"moved"_s)), "a");
}

TEST_F(OldFileSystem, ReplacesNothingThatAppearsMeanwhile)
{
    const QString path = folder.path(u"photo.jpg"_s);
    AtomicFile file(path);
    ASSERT_EQ(folder.write(u"photo.jpg"_s, "of another"), path);

    EXPECT_FALSE(file.commit(AtomicFile::Existing::Kept));

    EXPECT_EQ(TemporaryFolder::read(path), "of another");
}

TEST_F(OldFileSystem, CopiesFiles)
{
    const QString source = folder.write(u"source"_s, "a");

    EXPECT_TRUE(copyItem({.source = source, .target = folder.path(u"copy"_s)}));

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"copy"_s)), "a");
    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"copy"_s, u"source"_s}));
}

TEST(CopyItem, KeepsWhatAppearsAtTheTargetMeanwhile)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, "a");
    const InjectedFaults faults(folder.path(), {.atFlush = [&folder] {
                                    static_cast<void>(folder.write(u"copy"_s, "of another"));
                                }});

    EXPECT_FALSE(copyItem({.source = source, .target = folder.path(u"copy"_s)}));

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"copy"_s)), "of another");
    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"copy"_s, u"source"_s}));
}
