// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/trash.h>

#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using brenvaldo::platform::storage::moveToTrash;
using namespace brenvaldo::test;

TEST(Trash, TakesAFileAndNotesWhereItWas)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString path = folder.write(u"photo été.jpg"_qs, "pixels");

    EXPECT_TRUE(moveToTrash(path));

    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"data/Trash/files/photo été.jpg"_qs)), "pixels");
    const QByteArray information
        = TemporaryFolder::read(folder.path(u"data/Trash/info/photo été.jpg.trashinfo"_qs));
    EXPECT_TRUE(information.contains("Path=")) << information.constData();
}

TEST(Trash, KeepsFilesOfOneNameApart)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());

    EXPECT_TRUE(moveToTrash(folder.write(u"a"_qs, "1")));
    EXPECT_TRUE(moveToTrash(folder.write(u"a"_qs, "2")));

    EXPECT_EQ(QDir(folder.path(u"data/Trash/files"_qs)).entryList(QDir::Files).size(), 2);
}

TEST(Trash, TakesALinkAndNotWhatItLeadsTo)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString path = folder.write(u"photo.jpg"_qs, "pixels");
    const QString link = folder.path(u"link"_qs);
    QFile::link(path, link);

    EXPECT_TRUE(moveToTrash(link));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
}

TEST(Trash, TakesALinkWhoseFileIsGone)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString link = folder.path(u"alias été"_qs);
    QFile::link(u"nowhere"_qs, link);

    EXPECT_TRUE(moveToTrash(link));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(QFileInfo(folder.path(u"data/Trash/files/alias été"_qs)).isSymLink());
    const QByteArray information
        = TemporaryFolder::read(folder.path(u"data/Trash/info/alias été.trashinfo"_qs));
    EXPECT_TRUE(information.startsWith(
        "[Trash Info]\nPath=" + folder.path().toUtf8() + "alias%20%C3%A9t%C3%A9\nDeletionDate=20"
    )) << information.constData();
}

TEST(Trash, TakesALinkWhoseFileIsOnAnotherVolume)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_qs);
    const QString path = folder.write(u"photo.jpg"_qs, "pixels");
    const QString link = shared.filePath(u"link"_qs);
    QFile::link(path, link);

    EXPECT_TRUE(moveToTrash(link));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
    EXPECT_EQ(QFileInfo(folder.path(u"data/Trash/files/link"_qs)).symLinkTarget(), path);
}

TEST(Trash, KeepsLinksOfOneNameApart)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString link = folder.path(u"link"_qs);
    for (const auto& target : {u"one"_qs, u"two"_qs}) {
        QFile::link(target, link);
        EXPECT_TRUE(moveToTrash(link));
    }

    EXPECT_EQ(
        QDir(folder.path(u"data/Trash/files"_qs))
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
        (QStringList{u"link"_qs, u"link 2"_qs})
    );
    EXPECT_EQ(
        QDir(folder.path(u"data/Trash/info"_qs)).entryList(QDir::Files),
        (QStringList{u"link 2.trashinfo"_qs, u"link.trashinfo"_qs})
    );
}

TEST(Trash, OpensItsFoldersToTheirOwnerAlone)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_qs).toUtf8());
    const QString link = folder.path(u"link"_qs);
    QFile::link(u"nowhere"_qs, link);

    ASSERT_TRUE(moveToTrash(link));

    constexpr auto others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(folder.path(u"data/Trash"_qs)) & others);
}

TEST(Trash, FailsForAMissingFile)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(moveToTrash(folder.path(u"missing"_qs)));
    EXPECT_FALSE(moveToTrash(u""_qs));
}

TEST(Trash, LeavesTheFileWhereNoTrashCanBeMade)
{
    const TemporaryFolder folder;
    const QString blocked = folder.write(u"data"_qs, "a file in the way");
    const Environment data("XDG_DATA_HOME", blocked.toUtf8());
    const QString path = folder.write(u"photo.jpg"_qs, "pixels");

    const QString link = folder.path(u"link"_qs);
    QFile::link(path, link);

    EXPECT_FALSE(moveToTrash(path));
    EXPECT_FALSE(moveToTrash(link));

    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}
