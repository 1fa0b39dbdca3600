// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/trash.h>

#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::storage::moveToTrash;
using namespace brenvaldo::test;

TEST(Trash, TakesAFileAndNotesWhereItWas)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString path = folder.write(u"photo été.jpg"_s, "pixels");

    EXPECT_TRUE(moveToTrash(path));

    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"data/Trash/files/photo été.jpg"_s)), "pixels");
    const QByteArray information
        = TemporaryFolder::read(folder.path(u"data/Trash/info/photo été.jpg.trashinfo"_s));
    EXPECT_TRUE(information.contains("Path=")) << information.constData();
}

TEST(Trash, KeepsFilesOfOneNameApart)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());

    EXPECT_TRUE(moveToTrash(folder.write(u"a"_s, "1")));
    EXPECT_TRUE(moveToTrash(folder.write(u"a"_s, "2")));

    EXPECT_EQ(QDir(folder.path(u"data/Trash/files"_s)).entryList(QDir::Files).size(), 2);
}

TEST(Trash, TakesALinkAndNotWhatItLeadsTo)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString path = folder.write(u"photo.jpg"_s, "pixels");
    const QString link = folder.path(u"link"_s);
    QFile::link(path, link);

    EXPECT_TRUE(moveToTrash(link));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
}

TEST(Trash, TakesALinkWhoseFileIsGone)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString link = folder.path(u"alias été"_s);
    QFile::link(u"nowhere"_s, link);

    EXPECT_TRUE(moveToTrash(link));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(QFileInfo(folder.path(u"data/Trash/files/alias été"_s)).isSymLink());
    const QByteArray information
        = TemporaryFolder::read(folder.path(u"data/Trash/info/alias été.trashinfo"_s));
    EXPECT_TRUE(information.startsWith(
        "[Trash Info]\nPath=" + folder.path().toUtf8() + "alias%20%C3%A9t%C3%A9\nDeletionDate=20"
    )) << information.constData();
}

TEST(Trash, TakesALinkWhoseFileIsOnAnotherVolume)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QTemporaryDir shared(u"/dev/shm/brenvaldo-XXXXXX"_s);
    const QString path = folder.write(u"photo.jpg"_s, "pixels");
    const QString link = shared.filePath(u"link"_s);
    QFile::link(path, link);

    EXPECT_TRUE(moveToTrash(link));

    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
    EXPECT_EQ(QFileInfo(folder.path(u"data/Trash/files/link"_s)).symLinkTarget(), path);
}

TEST(Trash, KeepsLinksOfOneNameApart)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString link = folder.path(u"link"_s);
    for (const auto& target : {u"one"_s, u"two"_s}) {
        QFile::link(target, link);
        EXPECT_TRUE(moveToTrash(link));
    }

    EXPECT_EQ(
        QDir(folder.path(u"data/Trash/files"_s))
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
        (QStringList{u"link"_s, u"link 2"_s})
    );
    EXPECT_EQ(
        QDir(folder.path(u"data/Trash/info"_s)).entryList(QDir::Files),
        (QStringList{u"link 2.trashinfo"_s, u"link.trashinfo"_s})
    );
}

TEST(Trash, OpensItsFoldersToTheirOwnerAlone)
{
    const TemporaryFolder folder;
    const Environment data("XDG_DATA_HOME", folder.path(u"data"_s).toUtf8());
    const QString link = folder.path(u"link"_s);
    QFile::link(u"nowhere"_s, link);

    ASSERT_TRUE(moveToTrash(link));

    constexpr auto others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(folder.path(u"data/Trash"_s)) & others);
}

TEST(Trash, FailsForAMissingFile)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(moveToTrash(folder.path(u"missing"_s)));
    EXPECT_FALSE(moveToTrash(u""_s));
}

TEST(Trash, LeavesTheFileWhereNoTrashCanBeMade)
{
    const TemporaryFolder folder;
    const QString blocked = folder.write(u"data"_s, "a file in the way");
    const Environment data("XDG_DATA_HOME", blocked.toUtf8());
    const QString path = folder.write(u"photo.jpg"_s, "pixels");

    const QString link = folder.path(u"link"_s);
    QFile::link(path, link);

    EXPECT_FALSE(moveToTrash(path));
    EXPECT_FALSE(moveToTrash(link));

    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}
