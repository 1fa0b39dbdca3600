// SPDX-License-Identifier: GPL-3.0-or-later
#include "all_entries.h"

#include <platform/storage/atomic_file.h>

#include <platform/foundation/commit_turn.h>

#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::storage;
using brenvaldo::test::allEntries;
using brenvaldo::test::FullDisk;
using brenvaldo::test::setMode;
using brenvaldo::test::TemporaryFolder;
using brenvaldo::test::WithoutPrivileges;

namespace {

struct stat statusOf(const QString& path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        qFatal("no such file");
    return status;
}

/// Expects that nothing can be written at `path`, nor at a link to it, and that it stays.
void expectRefused(const QString& path)
{
    const QString link = path + u".link"_s;
    ASSERT_TRUE(QFile::link(path, link));
    const struct stat before = statusOf(path);

    EXPECT_FALSE(writeFileAtomically(path, "new"));
    EXPECT_FALSE(writeFileAtomically(link, "new"));

    EXPECT_EQ(statusOf(path).st_ino, before.st_ino);
    EXPECT_EQ(statusOf(path).st_mode, before.st_mode);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(AtomicFile(link).fault(), u"something else than a plain file stands there"_s);
}

} // namespace

TEST(AtomicFile, AppearsWholeAtItsPlace)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"photo.jpg"_s);

    EXPECT_TRUE(writeFileAtomically(path, "pixels"));

    EXPECT_EQ(TemporaryFolder::read(path), "pixels");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

TEST(AtomicFile, ReplacesWhatStandsThere)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "the old and longer contents");

    EXPECT_TRUE(writeFileAtomically(path, "new"));

    EXPECT_EQ(TemporaryFolder::read(path), "new");
}

TEST(AtomicFile, WaitsForTheTurnOfItsThread)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_s, "old");
    const auto contents = [&path] { return TemporaryFolder::read(path); };
    {
        const brenvaldo::platform::CommitTurn turn([&contents] {
            EXPECT_EQ(contents(), "old");
            return true;
        });
        EXPECT_TRUE(writeFileAtomically(path, "new"));
        EXPECT_EQ(contents(), "new");
    }
    {
        const brenvaldo::platform::CommitTurn turn([] { return false; });
        EXPECT_FALSE(writeFileAtomically(path, "dropped"));
    }
    EXPECT_EQ(contents(), "new");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"a.txt"_s});
}

TEST(AtomicFile, LeavesNothingWithoutACommit)
{
    const TemporaryFolder folder;
    {
        const AtomicFile file(folder.path(u"photo.jpg"_s));
        ASSERT_TRUE(file.isValid());
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(AtomicFile, LeavesTheOldFileAndNothingElseWhenItsProcessIsKilled)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "old");

    EXPECT_EXIT(
        {
            const AtomicFile file(path);
            QFile contents(file.temporaryPath());
            if (contents.open(QIODevice::WriteOnly) && contents.write("half") == 4)
                std::raise(SIGKILL);
        },
        testing::KilledBySignal(SIGKILL),
        ""
    );

    EXPECT_EQ(TemporaryFolder::read(path), "old");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

TEST(AtomicFile, CommitsOnce)
{
    const TemporaryFolder folder;
    AtomicFile file(folder.path(u"photo.jpg"_s));

    EXPECT_TRUE(file.commit());
    EXPECT_FALSE(file.commit());
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

TEST(AtomicFile, KeepsModeAndOwnerOfTheTarget)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "old");
    setMode(path, 0604);
    const bool superuser = ::geteuid() == 0;
    if (superuser) {
        ASSERT_EQ(::chown(QFile::encodeName(path).constData(), 1234, 2345), 0);
    }

    ASSERT_TRUE(writeFileAtomically(path, "new"));

    const struct stat status = statusOf(path);
    EXPECT_EQ(status.st_mode & 07777U, 0604U);
    EXPECT_EQ(status.st_uid, superuser ? 1234 : ::geteuid());
    EXPECT_EQ(status.st_gid, superuser ? 2345 : ::getegid());
}

TEST(AtomicFile, FollowsTheUsersMaskWhenItIsNew)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"photo.jpg"_s);
    const mode_t before = ::umask(027);

    const bool written = writeFileAtomically(path, "new");
    ::umask(before);

    EXPECT_TRUE(written);
    EXPECT_EQ(statusOf(path).st_mode & 07777U, 0640U);
}

TEST(AtomicFile, WritesThroughALink)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "old");
    const QString link = folder.path(u"link.jpg"_s);
    ASSERT_TRUE(QFile::link(path, link));

    EXPECT_TRUE(writeFileAtomically(link, "new"));

    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(TemporaryFolder::read(path), "new");
}

TEST(AtomicFile, TakesTheLongestNames)
{
    const TemporaryFolder folder;
    const QString ascii(255, u'n');
    const QString accents = QString(127, u'é') + u'n';

    EXPECT_TRUE(writeFileAtomically(folder.path(ascii), "a"));
    EXPECT_TRUE(writeFileAtomically(folder.path(accents), "b"));

    EXPECT_EQ(allEntries(folder.path()).size(), 2);
    EXPECT_EQ(TemporaryFolder::read(folder.path(accents)), "b");
}

TEST(AtomicFile, FailsForANameThatIsTooLong)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(writeFileAtomically(folder.path(QString(256, u'n')), "a"));

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST(AtomicFile, FailsWithoutItsFolder)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"missing/photo.jpg"_s);

    EXPECT_FALSE(AtomicFile(path).isValid());
    EXPECT_FALSE(writeFileAtomically(path, "a"));
    EXPECT_EQ(allEntries(folder.path()), QStringList());
    EXPECT_EQ(AtomicFile(path).fault(), u"No such file or directory"_s);
}

TEST(AtomicFile, RefusesTheNameOfAFolder)
{
    const TemporaryFolder folder;
    QDir().mkpath(folder.path(u"target"_s));

    expectRefused(folder.path(u"target"_s));
}

TEST(AtomicFile, RefusesTheNameOfAPipe)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"pipe.png"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    expectRefused(path);
}

TEST(AtomicFile, RefusesTheNameOfASocket)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"socket.png"_s);
    ASSERT_EQ(::mknod(QFile::encodeName(path).constData(), S_IFSOCK | 0600, 0), 0);

    expectRefused(path);
}

TEST(AtomicFile, RefusesTheNameOfADevice)
{
    const TemporaryFolder folder;
    QString device = folder.path(u"device.png"_s);
    const QString link = folder.path(u"link.png"_s);
    // Who may not make a device may not replace that of the machine either.
    if (::mknod(QFile::encodeName(device).constData(), S_IFCHR | 0600, makedev(1, 3)) != 0)
        device = u"/dev/null"_s;
    ASSERT_TRUE(QFile::link(device, link));
    const QStringList before = allEntries(folder.path());

    for (const QString& path : {device, link}) {
        EXPECT_FALSE(writeFileAtomically(path, "new"));
        EXPECT_EQ(AtomicFile(path).fault(), u"something else than a plain file stands there"_s);
    }

    EXPECT_TRUE(S_ISCHR(statusOf(device).st_mode));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(allEntries(folder.path()), before);
}

TEST(AtomicFile, TakesTheNameOfABrokenLink)
{
    const TemporaryFolder folder;
    const QString link = folder.path(u"link.png"_s);
    ASSERT_TRUE(QFile::link(folder.path(u"missing"_s), link));

    EXPECT_TRUE(writeFileAtomically(link, "new"));

    EXPECT_EQ(TemporaryFolder::read(link), "new");
}

TEST(AtomicFile, KeepsWhatAppearedMeanwhileWhenToldSo)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"photo.jpg"_s);
    AtomicFile file(path);
    ASSERT_EQ(folder.write(u"photo.jpg"_s, "of another"), path);

    EXPECT_FALSE(file.commit(AtomicFile::Existing::Kept));

    EXPECT_EQ(file.fault(), u"File exists"_s);
    EXPECT_EQ(TemporaryFolder::read(path), "of another");
}

TEST(AtomicFile, FailsInAReadOnlyFolder)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "old");
    setMode(folder.path(), 0555);
    {
        const WithoutPrivileges user;
        EXPECT_FALSE(AtomicFile(path).isValid());
        EXPECT_FALSE(writeFileAtomically(path, "new"));
    }
    setMode(folder.path(), 0755);

    EXPECT_EQ(TemporaryFolder::read(path), "old");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

TEST(AtomicFile, LeavesTheOldFileOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "old");
    {
        const FullDisk disk(4096);
        EXPECT_FALSE(writeFileAtomically(path, QByteArray(100000, 'x')));
    }

    EXPECT_EQ(TemporaryFolder::read(path), "old");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}
