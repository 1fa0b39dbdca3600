// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/file_handling.h>

#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QFileInfo>

#include <gtest/gtest.h>

using brenvaldo::files::cNSFileHandling;
using namespace brenvaldo::test;

TEST(WriteTextFile, WritesUtf8)
{
    const TemporaryFolder folder;
    const QString page = folder.path(u"index.html"_qs);
    const QString list = folder.path(u"list.txt"_qs);

    cNSFileHandling::hWritHTMLFile({.text = u"<p>é</p>"_qs, .path = page});
    cNSFileHandling::hWriteTextFile({.text = u"a\nb"_qs, .path = list});

    EXPECT_EQ(TemporaryFolder::read(page), "<p>\xC3\xA9</p>");
    EXPECT_EQ(TemporaryFolder::read(list), "a\nb");
}

TEST(WriteTextFile, ReplacesAnExistingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_qs, "a longer text");

    cNSFileHandling::hWriteTextFile({.text = u"new"_qs, .path = path});

    EXPECT_EQ(TemporaryFolder::read(path), "new");
}

TEST(WriteTextFile, IgnoresAFolderThatIsMissing)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"missing/a.txt"_qs);

    cNSFileHandling::hWriteTextFile({.text = u"new"_qs, .path = path});

    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST(WriteTextFile, LeavesTheOldFileOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_qs, "old");
    {
        const FullDisk disk(1000);
        cNSFileHandling::hWriteTextFile({.text = QString(5000, u'x'), .path = path});
    }

    EXPECT_EQ(TemporaryFolder::read(path), "old");
}

TEST(ReadTextFileLbyL, SplitsAtEveryNewlineCharacter)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.txt"_qs, "a\nb\r\nc\xC2\x85\xC3\xA9\n");

    EXPECT_EQ(
        cNSFileHandling::hReadTextFileLbyL(path),
        (QStringList{u"a"_qs, u"b"_qs, u""_qs, u"c"_qs, u"é"_qs, u""_qs})
    );
}

TEST(ReadTextFileLbyL, IsNothingWithoutAText)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hReadTextFileLbyL(folder.path(u"missing"_qs)), std::nullopt);
    EXPECT_EQ(cNSFileHandling::hReadTextFileLbyL(folder.write(u"a"_qs, "\xFF\xFE")), std::nullopt);
}

TEST(Plist, GivesBackAValueThatWasSet)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.plist"_qs, "<plist><dict/></plist>");

    cNSFileHandling::writeToPlist({.path = path, .key = u"one"_qs}, u"é"_qs);
    cNSFileHandling::writeToPlist({.path = path, .key = u"two"_qs}, 2LL);

    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"one"_qs}), QVariant(u"é"_qs));
    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"two"_qs}), QVariant(2LL));
    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"three"_qs}), std::nullopt);
}

TEST(Plist, WritesNothingToAMissingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a.plist"_qs);

    cNSFileHandling::writeToPlist({.path = path, .key = u"one"_qs}, u"1"_qs);

    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(cNSFileHandling::readPlist({.path = path, .key = u"one"_qs}), std::nullopt);
}

TEST(NSData, GoesToAFileAndBack)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a"_qs);
    const QByteArray bytes("\0\xFF\n", 3);

    cNSFileHandling::writeNSDataToFile(bytes, path);

    EXPECT_EQ(cNSFileHandling::readNSDataFromFile(path), bytes);
    EXPECT_EQ(cNSFileHandling::readNSDataFromFile(folder.path(u"missing"_qs)), std::nullopt);
}
