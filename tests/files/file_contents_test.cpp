// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/file_handling.h>

#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::files::cNSFileHandling;
using namespace brenvaldo::test;

TEST(WriteTextFile, WritesUtf8)
{
    const TemporaryFolder folder;
    const QString page = folder.path(u"index.html"_s);
    const QString list = folder.path(u"list.txt"_s);

    cNSFileHandling::hWritHTMLFile({.text = u"<p>é</p>"_s, .path = page});
    cNSFileHandling::hWriteTextFile({.text = u"a\nb"_s, .path = list});

    EXPECT_EQ(TemporaryFolder::read(page), "<p>\xC3\xA9</p>");
    EXPECT_EQ(TemporaryFolder::read(list), "a\nb");
}

TEST(WriteTextFile, ReplacesAnExistingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_s, "a longer text");

    cNSFileHandling::hWriteTextFile({.text = u"new"_s, .path = path});

    EXPECT_EQ(TemporaryFolder::read(path), "new");
}

TEST(WriteTextFile, IgnoresAFolderThatIsMissing)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"missing/a.txt"_s);

    cNSFileHandling::hWriteTextFile({.text = u"new"_s, .path = path});

    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST(WriteTextFile, LeavesTheOldFileOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_s, "old");
    {
        const FullDisk disk(1000);
        cNSFileHandling::hWriteTextFile({.text = QString(5000, u'x'), .path = path});
    }

    EXPECT_EQ(TemporaryFolder::read(path), "old");
}

TEST(ReadTextFileLbyL, SplitsAtEveryNewlineCharacter)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_s, "a\nb\r\nc\xC2\x85\xC3\xA9\n");

    EXPECT_EQ(
        cNSFileHandling::hReadTextFileLbyL(path),
        (QStringList{u"a"_s, u"b"_s, u""_s, u"c"_s, u"é"_s, u""_s})
    );
}

TEST(ReadTextFileLbyL, IsNothingWithoutAText)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hReadTextFileLbyL(folder.path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(cNSFileHandling::hReadTextFileLbyL(folder.write(u"a"_s, "\xFF\xFE")), std::nullopt);
}

TEST(Plist, GivesBackAValueThatWasSet)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.plist"_s, "<plist><dict/></plist>");

    cNSFileHandling::writeToPlist({.path = path, .key = u"one"_s}, u"é"_s);
    cNSFileHandling::writeToPlist({.path = path, .key = u"two"_s}, 2LL);

    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"one"_s}), QVariant(u"é"_s));
    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"two"_s}), QVariant(2LL));
    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"three"_s}), std::nullopt);
}

TEST(Plist, WritesNothingToAMissingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a.plist"_s);

    cNSFileHandling::writeToPlist({.path = path, .key = u"one"_s}, u"1"_s);

    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"one"_s}), std::nullopt);
}

TEST(NSData, GoesToAFileAndBack)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a"_s);
    const QByteArray bytes("\0\xFF\n", 3);

    cNSFileHandling::writeNSDataToFile(bytes, path);

    EXPECT_EQ(cNSFileHandling::readNSDataFromFile(path), bytes);
    EXPECT_EQ(cNSFileHandling::readNSDataFromFile(folder.path(u"missing"_s)), std::nullopt);
}

TEST(NSData, IsNothingWhereAPipeStands)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    EXPECT_EQ(cNSFileHandling::readNSDataFromFile(path), std::nullopt);
}
