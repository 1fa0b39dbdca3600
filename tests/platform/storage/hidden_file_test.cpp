// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/hidden_file.h>

#include <platform/storage/temporary_file.h>

#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::storage;
using brenvaldo::test::TemporaryFolder;

namespace {

QStringList entriesOf(const TemporaryFolder& folder)
{
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

TEST(RemoveAbandonedFiles, RemovesWhatNoProcessUses)
{
    const TemporaryFolder folder;
    static_cast<void>(folder.write(u".brenvaldo-0123abcd"_s, "half a picture"));
    static_cast<void>(folder.write(u".brenvaldo-ffffffff"_s, ""));

    removeAbandonedFiles(folder.path());

    EXPECT_EQ(entriesOf(folder), QStringList());
}

TEST(RemoveAbandonedFiles, KeepsTheFilesOfLivingProcesses)
{
    const TemporaryFolder folder;
    TemporaryFile file(folder.path(), TemporaryFile::Form::Hidden);
    ASSERT_EQ(entriesOf(folder).size(), 1);

    removeAbandonedFiles(folder.path());

    ASSERT_EQ(entriesOf(folder).size(), 1);
    EXPECT_TRUE(file.moveTo(folder.path(u"photo.jpg"_s)));
    EXPECT_EQ(entriesOf(folder), QStringList{u"photo.jpg"_s});
}

TEST(RemoveAbandonedFiles, KeepsTheFileThatIsJustAboutToReplaceAnother)
{
    const TemporaryFolder folder;
    const TemporaryFile file(folder.path());
    const QString hidden = folder.path(u".brenvaldo-01234567"_s);
    const int linked = ::linkat(
        AT_FDCWD,
        QFile::encodeName(file.path()).constData(),
        AT_FDCWD,
        QFile::encodeName(hidden).constData(),
        AT_SYMLINK_FOLLOW
    );
    ASSERT_EQ(linked, 0);

    removeAbandonedFiles(folder.path());

    EXPECT_TRUE(entriesOf(folder).contains(u".brenvaldo-01234567"_s));
}

TEST(RemoveAbandonedFiles, KeepsWhatTheProgramDidNotMake)
{
    const TemporaryFolder folder;
    QDir().mkpath(folder.path(u".brenvaldo-00000001"_s));
    ASSERT_TRUE(QFile::link(u"nowhere"_s, folder.path(u".brenvaldo-00000002"_s)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.path(u".brenvaldo-00000003"_s)), 0600), 0);
    static_cast<void>(folder.write(u".brenvaldo-notes.txt"_s, ""));
    static_cast<void>(folder.write(u".brenvaldo-000000004"_s, ""));
    static_cast<void>(folder.write(u"x.brenvaldo-00000005"_s, ""));
    const QStringList before = entriesOf(folder);
    ASSERT_EQ(before.size(), 6);

    removeAbandonedFiles(folder.path());

    EXPECT_EQ(entriesOf(folder), before);
}

TEST(RemoveAbandonedFiles, KeepsTheFilesOfOtherUsers)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u".brenvaldo-00000001"_s, "");
    const bool isGivenAway = ::chown(QFile::encodeName(path).constData(), 1234, 1234) == 0;

    removeAbandonedFiles(folder.path());

    EXPECT_EQ(QFile::exists(path), isGivenAway);
}

TEST(RemoveAbandonedFiles, DoesNothingWithoutAFolder)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u".brenvaldo-00000001"_s, "");
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());

    removeAbandonedFiles(QString());
    removeAbandonedFiles(folder.path(u"missing"_s));

    QDir::setCurrent(before);
    EXPECT_TRUE(QFile::exists(path));
}
