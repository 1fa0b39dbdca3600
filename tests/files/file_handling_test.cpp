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
    EXPECT_EQ(text(FileResult::Ok), u"OK"_qs);
    EXPECT_EQ(text(FileResult::Failed), u"Failed"_qs);
    EXPECT_EQ(text(FileResult::NotCreated), u"FAILED"_qs);
    EXPECT_EQ(text(FileResult::Exists), u"EXISTS"_qs);
    EXPECT_EQ(text(FileResult::Success), u"Success"_qs);
    EXPECT_EQ(text(FileResult::No), u"NO"_qs);
}

TEST(CreateDirectory, MakesTheFoldersAroundItToo)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hCreateDirectory(folder.path(u"a/b"_qs)), FileResult::Ok);
    EXPECT_EQ(cNSFileHandling::hCreateDirectory(folder.path(u"a/b"_qs)), FileResult::Exists);

    EXPECT_TRUE(QFileInfo(folder.path(u"a/b"_qs)).isDir());
}

TEST(CreateDirectory, AnswersExistsForAFile)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hCreateDirectory(folder.write(u"file"_qs, "")), FileResult::Exists);
}

TEST(CreateDirectory, AnswersFailedBelowAFile)
{
    const TemporaryFolder folder;
    const QString file = folder.write(u"file"_qs, "");

    EXPECT_EQ(cNSFileHandling::hCreateDirectory(file + u"/inner"_qs), FileResult::NotCreated);
}

TEST(CopyFileTo, ReplacesAnExistingTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "new");
    const QString target = folder.write(u"target.jpg"_qs, "old");

    EXPECT_EQ(cNSFileHandling::hCopyFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(TemporaryFolder::read(target), "new");
    EXPECT_EQ(TemporaryFolder::read(source), "new");
}

TEST(CopyFileTo, LosesTheOldFileEvenWhenTheCopyFails)
{
    const TemporaryFolder folder;
    const QString target = folder.write(u"target.jpg"_qs, "old");

    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = folder.path(u"missing"_qs), .target = target}),
        FileResult::Failed
    );

    EXPECT_FALSE(QFile::exists(target));
}

TEST(CopyFileTo, CreatesAMissingFolder)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "a");
    const QString target = folder.path(u"new/deep/target.jpg"_qs);

    EXPECT_EQ(cNSFileHandling::hCopyFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(TemporaryFolder::read(target), "a");
}

TEST(CopyFileTo, DeletesTheFileWhenSourceAndTargetAreOne)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_qs, "a");

    EXPECT_EQ(cNSFileHandling::hCopyFileTo({.source = path, .target = path}), FileResult::Failed);

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(CopyFileTo, FailsWithoutAFolderForTheTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "a");

    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = source, .target = source + u"/a/b"_qs}),
        FileResult::Failed
    );
    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = source, .target = u"bare name"_qs}),
        FileResult::Failed
    );

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"source.jpg"_qs});
}

TEST(CopyFileTo, ReplacesAFolderThatStandsAtTheTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "a");
    platform::storage::createFolder(folder.path(u"target/inner"_qs));

    EXPECT_EQ(
        cNSFileHandling::hCopyFileTo({.source = source, .target = folder.path(u"target"_qs)}),
        FileResult::Ok
    );

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"target"_qs)), "a");
}

TEST(CopyFileTo, LeavesNoPartOfACopyOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, QByteArray(100000, 'x'));
    {
        const FullDisk disk(4096);
        EXPECT_EQ(
            cNSFileHandling::hCopyFileTo({.source = source, .target = folder.path(u"copy"_qs)}),
            FileResult::Failed
        );
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"source.jpg"_qs});
    EXPECT_EQ(TemporaryFolder::read(source).size(), 100000);
}

TEST(CopyFileTo, TakesNamesOfEveryKind)
{
    const TemporaryFolder folder;
    const QStringList names = {u"é ü 写真.jpg"_qs, u"a#b?c%20.jpg"_qs, QString(255, u'n')};

    for (const QString& name : names) {
        const QString source = folder.write(name, name.toUtf8());
        const QString target = folder.path(u"copies/"_qs + name);
        EXPECT_EQ(
            cNSFileHandling::hCopyFileTo({.source = source, .target = target}), FileResult::Ok
        );
        EXPECT_EQ(TemporaryFolder::read(target), name.toUtf8());
    }
}

TEST(MoveFileTo, ReplacesAnExistingTarget)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "new");
    const QString target = folder.write(u"target.jpg"_qs, "old");

    EXPECT_EQ(cNSFileHandling::hMoveFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"target.jpg"_qs});
    EXPECT_EQ(TemporaryFolder::read(target), "new");
}

TEST(MoveFileTo, DeletesTheFileWhenSourceAndTargetAreOne)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_qs, "a");

    EXPECT_EQ(cNSFileHandling::hMoveFileTo({.source = path, .target = path}), FileResult::Failed);

    EXPECT_FALSE(QFile::exists(path));
}

TEST(AliasFileTo, MakesALinkToTheSource)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "new");
    const QString target = folder.write(u"target.jpg"_qs, "old");

    EXPECT_EQ(cNSFileHandling::hAliasFileTo({.source = source, .target = target}), FileResult::Ok);

    EXPECT_EQ(QFileInfo(target).symLinkTarget(), source);
    EXPECT_EQ(TemporaryFolder::read(target), "new");
}

TEST(CopyFileToDest, MakesTheTargetAFolderAndFails)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"source.jpg"_qs, "a");
    const QString target = folder.path(u"a/target.jpg"_qs);

    EXPECT_EQ(
        cNSFileHandling::hCopyFileToDest({.source = source, .target = target}), FileResult::Failed
    );

    EXPECT_TRUE(QFileInfo(target).isDir());
    EXPECT_EQ(allEntries(target), QStringList());
}

TEST(CopyFolderTo, CopiesWithoutReplacing)
{
    const TemporaryFolder folder;
    platform::storage::createFolder(folder.path(u"source/inner"_qs));
    const QString target = folder.path(u"target"_qs);

    EXPECT_EQ(
        cNSFileHandling::hCopyFolderTo({.source = folder.path(u"source"_qs), .target = target}),
        FileResult::Success
    );
    EXPECT_EQ(
        cNSFileHandling::hCopyFolderTo({.source = folder.path(u"source"_qs), .target = target}),
        FileResult::Failed
    );

    EXPECT_EQ(allEntries(target), QStringList{u"inner"_qs});
}

TEST(CopyAppTo, DeletesASourceThatExists)
{
    const TemporaryFolder folder;
    platform::storage::createFolder(folder.path(u"source/inner"_qs));
    static_cast<void>(folder.write(u"source/.hidden"_qs, "a"));

    EXPECT_EQ(
        cNSFileHandling::hCopyAppTo(
            {.source = folder.path(u"source"_qs), .target = folder.path(u"target"_qs)}
        ),
        FileResult::Success
    );

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(CopyAppTo, CopiesTheFilesAroundASourceThatIsMissing)
{
    const TemporaryFolder folder;
    platform::storage::createFolder(folder.path(u"parent/inner"_qs));
    platform::storage::createFolder(folder.path(u"target"_qs));
    static_cast<void>(folder.write(u"parent/a"_qs, "a"));
    static_cast<void>(folder.write(u"parent/b"_qs, "b"));
    static_cast<void>(folder.write(u"parent/.hidden"_qs, "h"));
    const QString kept = folder.write(u"target/b"_qs, "kept");
    QStringList logged;
    platform::setLogSink([&](const QString& line) { logged += line; });

    const FileResult result = cNSFileHandling::hCopyAppTo(
        {.source = folder.path(u"parent/missing"_qs), .target = folder.path(u"target"_qs)}
    );
    platform::setLogSink({});

    EXPECT_EQ(result, FileResult::Success);
    EXPECT_EQ(
        allEntries(folder.path(u"target"_qs)), (QStringList{u".hidden"_qs, u"a"_qs, u"b"_qs})
    );
    EXPECT_EQ(TemporaryFolder::read(kept), "kept");
    ASSERT_EQ(logged.size(), 1);
    EXPECT_TRUE(logged.first().startsWith(u"Error Copying: "_qs));
}

TEST(TrashFile, AnswersByItsSuccess)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString path = folder.write(u"photo.jpg"_qs, "a");

    EXPECT_EQ(cNSFileHandling::hTrashFile(path), FileResult::Ok);
    EXPECT_EQ(cNSFileHandling::hTrashFile(path), FileResult::Failed);

    EXPECT_TRUE(QFile::exists(folder.path(u"data/Trash/files/photo.jpg"_qs)));
}

TEST(TrashFile, TakesALinkWhoseFileIsGone)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString link = folder.path(u"alias"_qs);
    QFile::link(folder.path(u"missing"_qs), link);

    EXPECT_EQ(cNSFileHandling::hTrashFile(link), FileResult::Ok);

    EXPECT_FALSE(QFileInfo(link).isSymLink());
}

TEST(MoveFileTo, LeavesNoSecondCopyWhereTheSourceMustStay)
{
    const TemporaryFolder folder;
    const QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_qs);
    setMode(shared.path(), 0777);
    platform::storage::createFolder(folder.path(u"locked"_qs));
    const QString source = folder.write(u"locked/source"_qs, "a");
    setMode(source, 0644);
    setMode(folder.path(), 0755);
    setMode(folder.path(u"locked"_qs), 0555);
    {
        const WithoutPrivileges user;
        EXPECT_EQ(
            cNSFileHandling::hMoveFileTo({.source = source, .target = shared.filePath(u"moved"_qs)}
            ),
            FileResult::Failed
        );
    }

    EXPECT_EQ(TemporaryFolder::read(source), "a");
    EXPECT_EQ(allEntries(shared.path()), QStringList());
    setMode(folder.path(u"locked"_qs), 0755);
}

TEST(AddIconToFile, GivesTheFileItsIcon)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const Environment path("PATH", folder.path().toUtf8());
    const QString command = folder.write(u"gio"_qs, "#!/bin/sh\n");
    setMode(command, 0755);
    QImage icon(3, 3, QImage::Format_RGB32);
    icon.fill(Qt::red);

    cNSFileHandling::hAddIconToFile(folder.write(u"a.c-action"_qs, ""), icon);

    EXPECT_EQ(allEntries(folder.path(u"data/Brenvaldo/Icons"_qs)).size(), 1);
}

TEST(DeleteFiles, IgnoresWhatIsMissing)
{
    const TemporaryFolder folder;
    const QList<QUrl> files
        = {QUrl::fromLocalFile(folder.path(u"missing"_qs)),
           QUrl::fromLocalFile(folder.write(u"a b#c.jpg"_qs, ""))};

    EXPECT_EQ(cNSFileHandling::hDeleteFiles(files), FileResult::Ok);

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(ShowInFinder, AsksTheDesktop)
{
    DesktopRecorder desktop;

    cNSFileHandling::hShowInFinder(desktop, u"/dir/"_qs);

    EXPECT_EQ(desktop.revealed, QStringList{u"/dir/"_qs});
}

TEST(RenameFile, MovesToTheNewName)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"old.jpg"_qs, "a");

    cNSFileHandling::hRenameFile({.path = path, .name = u"new.jpg"_qs});

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"new.jpg"_qs});
}

TEST(RenameFile, DoesNothingForNamesThatAreNoAddress)
{
    const TemporaryFolder folder;
    const QString plain = folder.write(u"plain.jpg"_qs, "a");
    const QString blank = folder.write(u"a blank.jpg"_qs, "b");

    cNSFileHandling::hRenameFile({.path = plain, .name = u"with blank.jpg"_qs});
    cNSFileHandling::hRenameFile({.path = plain, .name = u"é.jpg"_qs});
    cNSFileHandling::hRenameFile({.path = plain, .name = u"100%.jpg"_qs});
    cNSFileHandling::hRenameFile({.path = blank, .name = u"new.jpg"_qs});

    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"a blank.jpg"_qs, u"plain.jpg"_qs}));
}

TEST(RenameFile, ReadsTheNameAsAnAddressDoes)
{
    const TemporaryFolder folder;

    cNSFileHandling::hRenameFile({.path = folder.write(u"a.jpg"_qs, "a"), .name = u"x%20y.jpg"_qs});
    cNSFileHandling::hRenameFile({.path = folder.write(u"b.jpg"_qs, "b"), .name = u"z#1.jpg"_qs});

    EXPECT_EQ(allEntries(folder.path()), (QStringList{u"x y.jpg"_qs, u"z"_qs}));
}

TEST(RenameFile, LeavesAnExistingTarget)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"old.jpg"_qs, "a");
    const QString taken = folder.write(u"new.jpg"_qs, "b");

    cNSFileHandling::hRenameFile({.path = path, .name = u"new.jpg"_qs});

    EXPECT_EQ(TemporaryFolder::read(path), "a");
    EXPECT_EQ(TemporaryFolder::read(taken), "b");
}

TEST(RenameFile2, CopiesAndKeepsTheSource)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"old é.jpg"_qs, "a");
    const QString target = folder.path(u"new é.jpg"_qs);

    cNSFileHandling::hRenameFile2({.source = source, .target = target});

    EXPECT_EQ(TemporaryFolder::read(source), "a");
    EXPECT_EQ(TemporaryFolder::read(target), "a");
}

TEST(RenameFile2, LeavesAnExistingTargetWithoutASign)
{
    const TemporaryFolder folder;
    const QString source = folder.write(u"old.jpg"_qs, "a");
    const QString target = folder.write(u"new.jpg"_qs, "b");

    cNSFileHandling::hRenameFile2({.source = source, .target = target});

    EXPECT_EQ(TemporaryFolder::read(target), "b");
    EXPECT_EQ(TemporaryFolder::read(source), "a");
}

TEST(CheckIfFileExist, AnswersOkOrNo)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hCheckIfFileExist(folder.path()), FileResult::Ok);
    EXPECT_EQ(cNSFileHandling::hCheckIfFileExist(folder.path(u"a"_qs)), FileResult::No);
    EXPECT_EQ(cNSFileHandling::hCheckIfFileExist(u""_qs), FileResult::No);
}
