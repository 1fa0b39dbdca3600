// SPDX-License-Identifier: GPL-3.0-or-later
#include "all_entries.h"

#include <platform/storage/file_system.h>

#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::storage;
using namespace brenvaldo::test;

namespace {

QStringList relativePaths(const QList<FolderEntry>& entries, const TemporaryFolder& folder)
{
    QStringList paths;
    for (const FolderEntry& entry : entries)
        paths += entry.path.mid(folder.path().size());
    return paths;
}

/// A folder "tree" with a file, a hidden file, a link, and a sub-folder with a file.
QString makeTree(const TemporaryFolder& folder)
{
    createFolder(folder.path(u"tree/inner"_s));
    static_cast<void>(folder.write(u"tree/a.txt"_s, "a"));
    static_cast<void>(folder.write(u"tree/.hidden"_s, "h"));
    static_cast<void>(folder.write(u"tree/inner/b.txt"_s, "b"));
    QFile::link(u"a.txt"_s, folder.path(u"tree/link"_s));
    return folder.path(u"tree"_s);
}

} // namespace

TEST(FileExists, LooksThroughLinks)
{
    const TemporaryFolder folder;
    const QString file = folder.write(u"a"_s, "");
    QFile::link(file, folder.path(u"good"_s));
    QFile::link(folder.path(u"missing"_s), folder.path(u"broken"_s));

    EXPECT_TRUE(fileExists(file));
    EXPECT_TRUE(fileExists(folder.path()));
    EXPECT_TRUE(fileExists(folder.path(u"good"_s)));
    EXPECT_FALSE(fileExists(folder.path(u"broken"_s)));
    EXPECT_FALSE(fileExists(folder.path(u"missing"_s)));
    EXPECT_FALSE(fileExists(u""_s));
}

TEST(CreateFolder, MakesTheFoldersAroundIt)
{
    const TemporaryFolder folder;

    EXPECT_TRUE(createFolder(folder.path(u"a/b/c"_s)));
    EXPECT_TRUE(createFolder(folder.path(u"a/b/c"_s)));

    EXPECT_TRUE(isFolder(folder.path(u"a/b/c"_s)));
}

TEST(CreateFolder, FailsBelowAFileAndWithoutAName)
{
    const TemporaryFolder folder;
    const QString file = folder.write(u"file"_s, "");

    EXPECT_FALSE(createFolder(file + u"/inner"_s));
    EXPECT_FALSE(createFolder(u""_s));
    EXPECT_FALSE(isFolder(file));
}

TEST(CopyItem, CopiesAFileWithItsDatesModeAndAttributes)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"été.jpg"_s, "pixels");
    const QString target = folder.path(u"ñ.jpg"_s);
    const QDateTime date({2020, 2, 3}, {4, 5, 6});
    {
        QFile file(source);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(date, QFileDevice::FileModificationTime);
    }
    setMode(source, 0640);
    ASSERT_EQ(::setxattr(QFile::encodeName(source).constData(), "user.label", "6", 1, 0), 0);

    EXPECT_TRUE(copyItem({.source = source, .target = target}));

    EXPECT_EQ(TemporaryFolder::read(target), "pixels");
    EXPECT_EQ(fileAttributes(target)->modificationDate, date);
    EXPECT_EQ(QFile::permissions(target), QFile::permissions(source));
    char label = 0;
    EXPECT_EQ(::getxattr(QFile::encodeName(target).constData(), "user.label", &label, 1), 1);
    EXPECT_EQ(label, '6');
}

TEST(CopyItem, CopiesLargeFilesWhole)
{
    const TemporaryFolder folder;
    QByteArray contents(40'000'000, 'x');
    contents[39'999'999] = 'y';
    const QString source = folder.write(u"large"_s, contents);
    const QString target = folder.path(u"copy"_s);

    EXPECT_TRUE(copyItem({.source = source, .target = target}));

    EXPECT_TRUE(TemporaryFolder::read(target) == contents);
}

TEST(CopyItem, CopiesAFolderWithAllItHolds)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);

    EXPECT_TRUE(copyItem({.source = tree, .target = folder.path(u"copy"_s)}));

    EXPECT_EQ(allEntries(folder.path(u"copy"_s)), allEntries(tree));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"copy/inner/b.txt"_s)), "b");
    EXPECT_TRUE(QFileInfo(folder.path(u"copy/link"_s)).isSymLink());
}

TEST(CopyItem, GivesCopiedFoldersTheirDatesModesAndAttributes)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);
    const QByteArray inner = QFile::encodeName(tree + u"/inner"_s);
    ASSERT_EQ(::setxattr(inner.constData(), "user.label", "6", 1, 0), 0);
    setMode(tree + u"/inner"_s, 0750);
    const timespec dates[] = {{1'000'000'000, 0}, {1'100'000'000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, inner.constData(), dates, 0), 0);

    EXPECT_TRUE(copyItem({.source = tree, .target = folder.path(u"copy"_s)}));

    const QByteArray copy = QFile::encodeName(folder.path(u"copy/inner"_s));
    struct stat status = {};
    ASSERT_EQ(::stat(copy.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0750U);
    EXPECT_EQ(status.st_mtim.tv_sec, 1'100'000'000);
    char label = 0;
    EXPECT_EQ(::getxattr(copy.constData(), "user.label", &label, 1), 1);
    EXPECT_EQ(label, '6');
}

TEST(CopyItem, CopiesALinkAsALink)
{
    const TemporaryFolder folder;
    QFile::link(u"nowhere"_s, folder.path(u"link"_s));

    EXPECT_TRUE(copyItem({.source = folder.path(u"link"_s), .target = folder.path(u"copy"_s)}));

    EXPECT_TRUE(QFileInfo(folder.path(u"copy"_s)).isSymLink());
}

TEST(CopyItem, ReplacesNothing)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, "new");
    const QString target = folder.write(u"target"_s, "old");
    QFile::link(u"nowhere"_s, folder.path(u"broken"_s));

    EXPECT_FALSE(copyItem({.source = source, .target = target}));
    EXPECT_FALSE(copyItem({.source = source, .target = source}));
    EXPECT_FALSE(copyItem({.source = source, .target = folder.path(u"broken"_s)}));
    EXPECT_FALSE(copyItem({.source = source, .target = folder.path()}));

    EXPECT_EQ(TemporaryFolder::read(target), "old");
    EXPECT_EQ(TemporaryFolder::read(source), "new");
}

TEST(CopyItem, FailsForAMissingSourceOrFolder)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, "new");

    EXPECT_FALSE(copyItem({.source = folder.path(u"missing"_s), .target = folder.path(u"copy"_s)}));
    EXPECT_FALSE(copyItem({.source = source, .target = folder.path(u"missing/copy"_s)}));
    EXPECT_FALSE(copyItem({.source = source, .target = u""_s}));

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"source"_s});
}

TEST(CopyItem, RefusesToCopyAFolderIntoItself)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);

    EXPECT_FALSE(copyItem({.source = tree, .target = tree + u"/inner/copy"_s}));

    EXPECT_EQ(allEntries(tree + u"/inner"_s), QStringList{u"b.txt"_s});
}

TEST(CopyItem, LeavesNothingOfAFileOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, QByteArray(100000, 'x'));
    {
        const FullDisk disk(4096);
        EXPECT_FALSE(copyItem({.source = source, .target = folder.path(u"copy"_s)}));
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"source"_s});
    EXPECT_EQ(TemporaryFolder::read(source).size(), 100000);
}

TEST(CopyItem, LeavesNothingOfAFolderOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);
    static_cast<void>(folder.write(u"tree/z"_s, QByteArray(100000, 'x')));
    {
        const FullDisk disk(4096);
        EXPECT_FALSE(copyItem({.source = tree, .target = folder.path(u"copy"_s)}));
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"tree"_s});
}

TEST(CopyItem, FailsInAReadOnlyFolder)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, "a");
    const QString target = folder.path(u"locked/copy"_s);
    createFolder(folder.path(u"locked"_s));
    setMode(folder.path(u"locked"_s), 0555);
    setMode(folder.path(), 0755);
    {
        const WithoutPrivileges user;
        EXPECT_FALSE(copyItem({.source = source, .target = target}));
        EXPECT_FALSE(moveItem({.source = source, .target = target}));
    }

    EXPECT_EQ(allEntries(folder.path(u"locked"_s)), QStringList());
    EXPECT_EQ(TemporaryFolder::read(source), "a");
}

TEST(MoveItem, MovesFilesAndFolders)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, "a");
    const QString tree = makeTree(folder);

    EXPECT_TRUE(moveItem({.source = source, .target = folder.path(u"moved"_s)}));
    EXPECT_TRUE(moveItem({.source = tree, .target = folder.path(u"moved tree"_s)}));

    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"moved"_s, u"moved tree"_s}));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"moved tree/inner/b.txt"_s)), "b");
}

TEST(MoveItem, CrossesVolumes)
{
    const TemporaryFolder folder;
    QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    const QString tree = makeTree(folder);
    const QString target = shared.filePath(u"moved"_s);

    EXPECT_TRUE(moveItem({.source = tree, .target = target}));

    EXPECT_FALSE(fileExists(tree));
    EXPECT_EQ(TemporaryFolder::read(target + u"/inner/b.txt"_s), "b");
}

TEST(MoveItem, LeavesNoSecondCopyOfAFileThatMustStayOnItsVolume)
{
    const TemporaryFolder folder;
    QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    setMode(shared.path(), 0777);
    createFolder(folder.path(u"locked"_s));
    const QString source = folder.write(u"locked/source"_s, "a");
    setMode(source, 0644);
    setMode(folder.path(u"locked"_s), 0555);
    setMode(folder.path(), 0755);
    {
        const WithoutPrivileges user;
        EXPECT_FALSE(moveItem({.source = source, .target = shared.filePath(u"moved"_s)}));
    }

    EXPECT_EQ(allEntries(folder.path(u"locked"_s)), QStringList{u"source"_s});
    EXPECT_EQ(TemporaryFolder::read(source), "a");
    EXPECT_EQ(allEntries(shared.path()), QStringList());
    setMode(folder.path(u"locked"_s), 0755);
}

TEST(MoveItem, TakesNothingOfAFolderAwayThatMustStayOnItsVolume)
{
    const TemporaryFolder folder;
    QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    setMode(shared.path(), 0777);
    const QString tree = makeTree(folder);
    setMode(folder.path(), 0777);
    setMode(tree, 0777);
    setMode(tree + u"/inner"_s, 0555);
    {
        const WithoutPrivileges user;
        EXPECT_FALSE(moveItem({.source = tree, .target = shared.filePath(u"moved"_s)}));
    }

    EXPECT_EQ(allEntries(tree).size(), 4);
    EXPECT_EQ(TemporaryFolder::read(tree + u"/inner/b.txt"_s), "b");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"tree"_s});
    EXPECT_EQ(allEntries(shared.path()), QStringList());
    setMode(tree + u"/inner"_s, 0755);
}

TEST(MoveItem, LeavesNothingBesideTheSourceAcrossVolumes)
{
    const TemporaryFolder folder;
    QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    const QString source = folder.write(u"source"_s, "a");

    EXPECT_TRUE(moveItem({.source = source, .target = shared.filePath(u"moved"_s)}));

    EXPECT_EQ(allEntries(folder.path()), QStringList());
    EXPECT_EQ(allEntries(shared.path()), QStringList{u"moved"_s});
}

TEST(MoveItem, MovesALinkAcrossVolumesAndNotWhatItLeadsTo)
{
    const TemporaryFolder folder;
    QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    QFile::link(u"nowhere"_s, folder.path(u"link"_s));

    EXPECT_TRUE(moveItem({.source = folder.path(u"link"_s), .target = shared.filePath(u"moved"_s)})
    );

    EXPECT_EQ(allEntries(folder.path()), QStringList());
    EXPECT_TRUE(QFileInfo(shared.filePath(u"moved"_s)).isSymLink());
}

TEST(MoveItem, ReplacesNothing)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source"_s, "new");
    const QString target = folder.write(u"target"_s, "old");

    EXPECT_FALSE(moveItem({.source = source, .target = target}));
    EXPECT_FALSE(moveItem({.source = source, .target = source}));
    EXPECT_FALSE(moveItem({.source = folder.path(u"missing"_s), .target = folder.path(u"x"_s)}));

    EXPECT_EQ(TemporaryFolder::read(target), "old");
    EXPECT_EQ(TemporaryFolder::read(source), "new");
}

TEST(CreateSymbolicLink, NeedsNoSourceButAFreeTarget)
{
    const TemporaryFolder folder;
    const QString target = folder.path(u"link"_s);

    EXPECT_TRUE(createSymbolicLink({.source = u"/nowhere"_s, .target = target}));
    EXPECT_FALSE(createSymbolicLink({.source = u"/nowhere"_s, .target = target}));

    EXPECT_EQ(QFileInfo(target).symLinkTarget(), u"/nowhere"_s);
}

TEST(RemoveItem, RemovesAFolderWithItsContents)
{
    const TemporaryFolder folder;

    EXPECT_TRUE(removeItem(makeTree(folder)));
    EXPECT_FALSE(removeItem(folder.path(u"tree"_s)));

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(RemoveItem, LeavesWhatALinkLeadsTo)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);
    const QString link = folder.path(u"link"_s);
    QFile::link(tree, link);

    EXPECT_TRUE(removeItem(link + u'/'));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(allEntries(tree).size(), 4);
}

TEST(FileAttributes, TellSizeAndDates)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "12345");
    const QDateTime now = QDateTime::currentDateTime();

    const auto attributes = fileAttributes(path);

    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->size, 5);
    EXPECT_LT(qAbs(attributes->creationDate.secsTo(now)), 60);
    EXPECT_LT(qAbs(attributes->modificationDate.secsTo(now)), 60);
    EXPECT_EQ(fileAttributes(folder.path(u"missing"_s)), std::nullopt);
}

TEST(FileAttributes, AreThoseOfALinkItself)
{
    const TemporaryFolder folder;
    const QString file = folder.write(u"file"_s, "a long text behind a short link");
    const QString link = folder.path(u"link"_s);
    QFile::link(u"file"_s, link);
    const timespec dates[] = {{1'000'000'000, 0}, {1'100'000'000, 0}};
    ASSERT_EQ(
        ::utimensat(AT_FDCWD, QFile::encodeName(link).constData(), dates, AT_SYMLINK_NOFOLLOW), 0
    );

    const auto attributes = fileAttributes(link);

    ASSERT_TRUE(attributes);
    EXPECT_LT(attributes->size, 31);
    EXPECT_EQ(attributes->modificationDate.toSecsSinceEpoch(), 1'100'000'000);
}

TEST(FolderEntries, ListBrokenLinks)
{
    const TemporaryFolder folder;
    QFile::link(u"nowhere"_s, folder.path(u"broken"_s));

    EXPECT_EQ(relativePaths(folderEntries(folder.path()), folder), QStringList{u"broken"_s});
    EXPECT_EQ(relativePaths(folderTree(folder.path()), folder), QStringList{u"broken"_s});
}

TEST(FolderEntries, LeaveHiddenFilesOut)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);

    EXPECT_EQ(
        relativePaths(folderEntries(tree), folder),
        (QStringList{u"tree/a.txt"_s, u"tree/inner"_s, u"tree/link"_s})
    );
    EXPECT_EQ(folderEntries(tree, HiddenFiles::Included).size(), 4);
    EXPECT_TRUE(folderEntries(folder.path(u"missing"_s)).isEmpty());
    EXPECT_TRUE(folderEntries(u""_s).isEmpty());
}

TEST(FolderTree, GoesDownAllLevelsPastHiddenFolders)
{
    const TemporaryFolder folder;
    const QString tree = makeTree(folder);
    createFolder(tree + u"/.hidden folder"_s);
    static_cast<void>(folder.write(u"tree/.hidden folder/c"_s, "c"));
    QFile::link(tree, folder.path(u"tree/loop"_s));

    const QList<FolderEntry> entries = folderTree(tree);

    EXPECT_EQ(
        relativePaths(entries, folder),
        (QStringList{
            u"tree/a.txt"_s, u"tree/inner"_s, u"tree/inner/b.txt"_s, u"tree/link"_s, u"tree/loop"_s}
        )
    );
    EXPECT_TRUE(entries.at(1).isFolder);
    EXPECT_FALSE(entries.at(4).isFolder);
}
