// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool_box_fixture.h"

#include <files/file_handling.h>

#include <platform/foundation/log.h>

#include <support/environment.h>
#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;
using namespace brenvaldo::test;
namespace platform = brenvaldo::platform;

namespace {

QStringList allEntries(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name
    );
}

} // namespace

TEST(FileResult, HasTheseTexts)
{
    EXPECT_EQ(text(FileResult::Ok), u"OK"_s);
    EXPECT_EQ(text(FileResult::Failed), u"Failed"_s);
    EXPECT_EQ(text(FileResult::NotCreated), u"FAILED"_s);
    EXPECT_EQ(text(FileResult::Exists), u"EXISTS"_s);
    EXPECT_EQ(text(FileResult::Success), u"Success"_s);
    EXPECT_EQ(text(FileResult::No), u"NO"_s);
}

TEST(CreateDirectory, MakesTheFoldersAroundItToo)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hCreateDirectory(folder.path(u"a/b"_s)), FileResult::Ok);
    EXPECT_EQ(cNSFileHandling::hCreateDirectory(folder.path(u"a/b"_s)), FileResult::Exists);

    EXPECT_TRUE(QFileInfo(folder.path(u"a/b"_s)).isDir());
}

TEST(CreateDirectory, AnswersExistsForAFile)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hCreateDirectory(folder.write(u"file"_s, "")), FileResult::Exists);
}

TEST(CreateDirectory, AnswersFailedBelowAFile)
{
    const TemporaryFolder folder;
    const QString file = folder.write(u"file"_s, "");

    EXPECT_EQ(cNSFileHandling::hCreateDirectory(file + u"/inner"_s), FileResult::NotCreated);
}

TEST(CopyFileTo, ReplacesAnExistingTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "new");
    const QString target = folder.write(u"target.jpg"_s, "old");

    EXPECT_EQ(cNSFileHandling::hCopyFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(TemporaryFolder::read(target), "new");
    EXPECT_EQ(TemporaryFolder::read(source), "new");
}

TEST(CopyFileTo, LosesTheOldFileEvenWhenTheCopyFails)
{
    const TemporaryFolder folder;
    const QString target = folder.write(u"target.jpg"_s, "old");

    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = folder.path(u"missing"_s), .target = target}),
        FileResult::Failed
    );

    EXPECT_FALSE(QFile::exists(target));
}

TEST(CopyFileTo, CreatesAMissingFolder)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "a");
    const QString target = folder.path(u"new/deep/target.jpg"_s);

    EXPECT_EQ(cNSFileHandling::hCopyFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(TemporaryFolder::read(target), "a");
}

TEST(CopyFileTo, DeletesTheFileWhenSourceAndTargetAreOne)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "a");

    EXPECT_EQ(cNSFileHandling::hCopyFileTo({.source = path, .target = path}), FileResult::Failed);

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(CopyFileTo, FailsWithoutAFolderForTheTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "a");

    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = source, .target = source + u"/a/b"_s}),
        FileResult::Failed
    );
    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = source, .target = u"bare name"_s}),
        FileResult::Failed
    );

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"source.jpg"_s});
}

TEST(CopyFileTo, ReplacesAFolderThatStandsAtTheTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "a");
    platform::storage::createFolder(folder.path(u"target/inner"_s));

    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = source, .target = folder.path(u"target"_s)}),
        FileResult::Ok
    );

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"target"_s)), "a");
}

TEST(CopyFileTo, LeavesNoPartOfACopyOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, QByteArray(100000, 'x'));
    {
        const FullDisk disk(4096);
        EXPECT_EQ(
            cNSFileHandling::hCopyFileTo({.source = source, .target = folder.path(u"copy"_s)}),
            FileResult::Failed
        );
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"source.jpg"_s});
    EXPECT_EQ(TemporaryFolder::read(source).size(), 100000);
}

TEST(CopyFileTo, TakesNamesOfEveryKind)
{
    const TemporaryFolder folder;
    const QStringList names = {u"é ü 写真.jpg"_s, u"a#b?c%20.jpg"_s, QString(255, u'n')};

    for (const QString& name : names) {
        const QString source = folder.write(name, name.toUtf8());
        const QString target = folder.path(u"copies/"_s + name);
        EXPECT_EQ(
            cNSFileHandling::hCopyFileTo({.source = source, .target = target}), FileResult::Ok
        );
        EXPECT_EQ(TemporaryFolder::read(target), name.toUtf8());
    }
}

TEST(MoveFileTo, ReplacesAnExistingTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "new");
    const QString target = folder.write(u"target.jpg"_s, "old");

    EXPECT_EQ(cNSFileHandling::hMoveFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"target.jpg"_s});
    EXPECT_EQ(TemporaryFolder::read(target), "new");
}

TEST(MoveFileTo, DeletesTheFileWhenSourceAndTargetAreOne)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "a");

    EXPECT_EQ(cNSFileHandling::hMoveFileTo({.source = path, .target = path}), FileResult::Failed);

    EXPECT_FALSE(QFile::exists(path));
}

TEST(AliasFileTo, MakesALinkToTheSource)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "new");
    const QString target = folder.write(u"target.jpg"_s, "old");

    EXPECT_EQ(cNSFileHandling::hAliasFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(QFileInfo(target).symLinkTarget(), source);
    EXPECT_EQ(TemporaryFolder::read(target), "new");
}

TEST(CopyFileToDest, MakesTheTargetAFolderAndFails)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_s, "a");
    const QString target = folder.path(u"a/target.jpg"_s);

    EXPECT_EQ(
        cNSFileHandling::hCopyFileToDest({.source = source, .target = target}), FileResult::Failed
    );

    EXPECT_TRUE(QFileInfo(target).isDir());
    EXPECT_EQ(allEntries(target), QStringList());
}

TEST(CopyFolderTo, CopiesWithoutReplacing)
{
    const TemporaryFolder folder;
    platform::storage::createFolder(folder.path(u"source/inner"_s));
    const QString target = folder.path(u"target"_s);

    EXPECT_EQ(
        cNSFileHandling::hCopyFolderTo({.source = folder.path(u"source"_s), .target = target}),
        FileResult::Success
    );
    EXPECT_EQ(
        cNSFileHandling::hCopyFolderTo({.source = folder.path(u"source"_s), .target = target}),
        FileResult::Failed
    );

    EXPECT_EQ(allEntries(target), QStringList{u"inner"_s});
}

TEST(CopyAppTo, DeletesASourceThatExists)
{
    const TemporaryFolder folder;
    platform::storage::createFolder(folder.path(u"source/inner"_s));
    static_cast<void>(folder.write(u"source/.hidden"_s, "a"));

    EXPECT_EQ(
        cNSFileHandling::hCopyAppTo(
            {.source = folder.path(u"source"_s), .target = folder.path(u"target"_s)}
        ),
        FileResult::Success
    );

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(CopyAppTo, CopiesTheFilesAroundASourceThatIsMissing)
{
    const TemporaryFolder folder;
    platform::storage::createFolder(folder.path(u"parent/inner"_s));
    platform::storage::createFolder(folder.path(u"target"_s));
    static_cast<void>(folder.write(u"parent/a"_s, "a"));
    static_cast<void>(folder.write(u"parent/b"_s, "b"));
    static_cast<void>(folder.write(u"parent/.hidden"_s, "h"));
    const QString kept = folder.write(u"target/b"_s, "kept");
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged += line; });

    const FileResult result = cNSFileHandling::hCopyAppTo(
        {.source = folder.path(u"parent/missing"_s), .target = folder.path(u"target"_s)}
    );
    platform::setLogSink({});

    EXPECT_EQ(result, FileResult::Success);
    EXPECT_EQ(allEntries(folder.path(u"target"_s)), (QStringList{u".hidden"_s, u"a"_s, u"b"_s}));
    EXPECT_EQ(TemporaryFolder::read(kept), "kept");
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.first().startsWith(u"Error Copying: "_s));
}

TEST(TrashFile, AnswersByItsSuccess)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString path = folder.write(u"photo.jpg"_s, "a");

    EXPECT_EQ(cNSFileHandling::hTrashFile(path), FileResult::Ok);
    EXPECT_EQ(cNSFileHandling::hTrashFile(path), FileResult::Failed);

    EXPECT_TRUE(QFile::exists(folder.path(u"data/Trash/files/photo.jpg"_s)));
}

TEST(TrashFile, TakesALinkWhoseFileIsGone)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString link = folder.path(u"alias"_s);
    QFile::link(folder.path(u"missing"_s), link);

    EXPECT_EQ(cNSFileHandling::hTrashFile(link), FileResult::Ok);

    EXPECT_FALSE(QFileInfo(link).isSymLink());
}

TEST(MoveFileTo, LeavesNoSecondCopyWhereTheSourceMustStay)
{
    const TemporaryFolder folder;
    const QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    setMode(shared.path(), 0777);
    platform::storage::createFolder(folder.path(u"locked"_s));
    const QString source = folder.write(u"locked/source"_s, "a");
    setMode(source, 0644);
    setMode(folder.path(), 0755);
    setMode(folder.path(u"locked"_s), 0555);
    {
        const WithoutPrivileges user;
        EXPECT_EQ(
            cNSFileHandling::hMoveFileTo({.source = source, .target = shared.filePath(u"moved"_s)}),
            FileResult::Failed
        );
    }

    EXPECT_EQ(TemporaryFolder::read(source), "a");
    EXPECT_EQ(allEntries(shared.path()), QStringList());
    setMode(folder.path(u"locked"_s), 0755);
}

TEST(AddIconToFile, GivesTheFileItsIcon)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const Environment path("PATH", folder.path().toUtf8());
    const QString command = folder.write(u"gio"_s, "#!/bin/sh\n");
    setMode(command, 0755);
    QImage icon(3, 3, QImage::Format_RGB32);
    icon.fill(Qt::red);

    cNSFileHandling::hAddIconToFile(folder.write(u"a.c-action"_s, ""), icon);

    EXPECT_EQ(allEntries(folder.path(u"data/Brenvaldo/Icons"_s)).size(), 1);
}

TEST(DeleteFiles, IgnoresWhatIsMissing)
{
    const TemporaryFolder folder;
    const QList<QUrl> files
        = {QUrl::fromLocalFile(folder.path(u"missing"_s)),
           QUrl::fromLocalFile(folder.write(u"a b#c.jpg"_s, ""))};

    EXPECT_EQ(cNSFileHandling::hDeleteFiles(files), FileResult::Ok);

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(ShowInFinder, AsksTheDesktop)
{
    DesktopRecorder desktop;

    cNSFileHandling::hShowInFinder(desktop, u"/dir/"_s);

    EXPECT_EQ(desktop.revealed, QStringList{u"/dir/"_s});
}

TEST(RenameFile, MovesToTheNewName)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"old.jpg"_s, "a");

    cNSFileHandling::hRenameFile({.path = path, .name = u"new.jpg"_s});

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"new.jpg"_s});
}

TEST(RenameFile, DoesNothingForNamesThatAreNoAddress)
{
    const TemporaryFolder folder;
    const QString plain = folder.write(u"plain.jpg"_s, "a");
    const QString blank = folder.write(u"a blank.jpg"_s, "b");

    cNSFileHandling::hRenameFile({.path = plain, .name = u"with blank.jpg"_s});
    cNSFileHandling::hRenameFile({.path = plain, .name = u"é.jpg"_s});
    cNSFileHandling::hRenameFile({.path = plain, .name = u"100%.jpg"_s});
    cNSFileHandling::hRenameFile({.path = blank, .name = u"new.jpg"_s});

    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"a blank.jpg"_s, u"plain.jpg"_s}));
}

TEST(RenameFile, ReadsTheNameAsAnAddressDoes)
{
    const TemporaryFolder folder;

    cNSFileHandling::hRenameFile({.path = folder.write(u"a.jpg"_s, "a"), .name = u"x%20y.jpg"_s});
    cNSFileHandling::hRenameFile({.path = folder.write(u"b.jpg"_s, "b"), .name = u"z#1.jpg"_s});

    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"x y.jpg"_s, u"z"_s}));
}

TEST(RenameFile, LeavesAnExistingTarget)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"old.jpg"_s, "a");
    const QString taken = folder.write(u"new.jpg"_s, "b");

    cNSFileHandling::hRenameFile({.path = path, .name = u"new.jpg"_s});

    EXPECT_EQ(TemporaryFolder::read(path), "a");
    EXPECT_EQ(TemporaryFolder::read(taken), "b");
}

TEST(RenameFile2, CopiesAndKeepsTheSource)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"old é.jpg"_s, "a");
    const QString target = folder.path(u"new é.jpg"_s);

    cNSFileHandling::hRenameFile2({.source = source, .target = target});

    EXPECT_EQ(TemporaryFolder::read(source), "a");
    EXPECT_EQ(TemporaryFolder::read(target), "a");
}

TEST(RenameFile2, LeavesAnExistingTargetWithoutASign)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"old.jpg"_s, "a");
    const QString target = folder.write(u"new.jpg"_s, "b");

    cNSFileHandling::hRenameFile2({.source = source, .target = target});

    EXPECT_EQ(TemporaryFolder::read(target), "b");
    EXPECT_EQ(TemporaryFolder::read(source), "a");
}

TEST(CheckIfFileExist, AnswersOkOrNo)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hCheckIfFileExist(folder.path()), FileResult::Ok);
    EXPECT_EQ(cNSFileHandling::hCheckIfFileExist(folder.path(u"a"_s)), FileResult::No);
    EXPECT_EQ(cNSFileHandling::hCheckIfFileExist(u""_s), FileResult::No);
}
