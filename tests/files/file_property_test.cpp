// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/file_handling.h>
#include <files/file_property.h>

#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDateTime>

#include <gtest/gtest.h>

#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;
using brenvaldo::test::TemporaryFolder;

namespace {

void setModificationDate(const QString& path, const QDateTime& date)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(date, QFileDevice::FileModificationTime))
        qFatal("the date can't be set");
}

} // namespace

TEST(FileDate, MayStandInAFileName)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_s, "");
    setModificationDate(path, QDateTime({2026, 11, 15}, {10, 44, 33}));

    for (const QString& mode : {u"0"_s, u"1"_s, u"2"_s}) {
        cNSFileHandling files;
        EXPECT_EQ(
            files.hGetModificationDateFile({.path = path, .mode = mode}), u"15-Nov-2026T10-44-33"_s
        );
    }
}

TEST(FileDate, IsTheDayOfCreation)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_s, "");
    setModificationDate(path, QDateTime({2001, 2, 3}, {4, 5, 6}));
    cNSFileHandling files;

    const QString text = files.hGetCreationDateFile({.path = path, .mode = u"0"_s});

    EXPECT_TRUE(text.contains(QString::number(QDate::currentDate().year()))) << text.toStdString();
}

TEST(FileDate, AnswersThePreviousTextInOtherModes)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_s, "");
    setModificationDate(path, QDateTime({2026, 11, 15}, {10, 44, 33}));
    cNSFileHandling files;

    EXPECT_EQ(files.hGetModificationDateFile({.path = path, .mode = u"3"_s}), u""_s);

    files.hGetModificationDateFile({.path = path, .mode = u"0"_s});
    EXPECT_EQ(
        files.hGetCreationDateFile({.path = path, .mode = u"3"_s}), u"15-Nov-2026T10-44-33"_s
    );
}

TEST(FileDate, IsEmptyForAMissingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_s, "");
    cNSFileHandling files;
    ASSERT_NE(files.hGetCreationDateFile({.path = path, .mode = u"0"_s}), u""_s);

    EXPECT_EQ(
        files.hGetCreationDateFile({.path = folder.path(u"missing"_s), .mode = u"0"_s}), u""_s
    );
    EXPECT_EQ(files.hGetCreationDateFile({.path = path, .mode = u"3"_s}), u""_s);
}

TEST(FileSize, IsTheTextOfTheByteCount)
{
    const TemporaryFolder folder;
    cNSFileHandling files;

    EXPECT_EQ(files.getFileSize(folder.write(u"a"_s, QByteArray(5500, 'x'))), u"6 KB"_s);
    EXPECT_EQ(files.getFileSize(folder.write(u"b"_s, "")), u"Zero KB"_s);
}

TEST(FileSize, KeepsTheLastTextForAMissingFile)
{
    const TemporaryFolder folder;
    cNSFileHandling files;

    EXPECT_EQ(files.getFileSize(folder.path(u"missing"_s)), u""_s);

    files.getFileSize(folder.write(u"a"_s, "1"));
    EXPECT_EQ(files.getFileSize(folder.path(u"missing"_s)), u"1 byte"_s);
}

TEST(FileType, IsTheIdentifierOfTheExtension)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hGetFileType(folder.write(u"a.JPG"_s, "")), u"public.jpeg"_s);
    EXPECT_EQ(cNSFileHandling::hGetFileType(folder.write(u"b"_s, "")), u"public.data"_s);
    EXPECT_EQ(cNSFileHandling::hGetFileType(folder.path()), u"public.folder"_s);
}

TEST(FileType, IsEmptyForAMissingFile)
{
    EXPECT_EQ(cNSFileHandling::hGetFileType(u"/nowhere/a.jpg"_s), u""_s);
}

TEST(FileLabel, IsNoneForAMissingFile)
{
    const TemporaryFolder folder;

    EXPECT_EQ(DVFileProperty::dvGetFileLabel(folder.path(u"missing"_s)), u"none"_s);
}

TEST(FileLabel, IsANumber)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "");
    EXPECT_EQ(DVFileProperty::dvGetFileLabel(path), u"0"_s);

    ASSERT_EQ(::setxattr(path.toUtf8().constData(), "user.kMDItemFSLabel", "6", 1, 0), 0);

    EXPECT_EQ(DVFileProperty::dvGetFileLabel(path), u"6"_s);
}

TEST(FileNameProps, AreNameExtensionAndBareName)
{
    EXPECT_EQ(
        DVFileProperty::hGetFileNameProps(u"/dir/a.b.jpg"_s),
        (QStringList{u"a.b.jpg"_s, u"jpg"_s, u"a.b"_s})
    );
    EXPECT_EQ(
        DVFileProperty::hGetFileNameProps(u"/dir/name"_s),
        (QStringList{u"name"_s, u""_s, u"name"_s})
    );
}
