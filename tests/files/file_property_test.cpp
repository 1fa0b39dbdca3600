// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/file_handling.h>
#include <files/file_property.h>

#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDateTime>

#include <gtest/gtest.h>

#include <sys/xattr.h>

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
    const QString path = folder.write(u"a.jpg"_qs, "");
    setModificationDate(path, QDateTime({2026, 11, 15}, {10, 44, 33}));

    for (const QString& mode : {u"0"_qs, u"1"_qs, u"2"_qs}) {
        cNSFileHandling files;
        EXPECT_EQ(
            files.hGetModificationDateFile({.path = path, .mode = mode}), u"15-Nov-2026T10-44-33"_qs
        );
    }
}

TEST(FileDate, IsTheDayOfCreation)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_qs, "");
    setModificationDate(path, QDateTime({2001, 2, 3}, {4, 5, 6}));
    cNSFileHandling files;

    const QString text = files.hGetCreationDateFile({.path = path, .mode = u"0"_qs});

    EXPECT_TRUE(text.contains(QString::number(QDate::currentDate().year()))) << text.toStdString();
}

TEST(FileDate, AnswersThePreviousTextInOtherModes)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_qs, "");
    setModificationDate(path, QDateTime({2026, 11, 15}, {10, 44, 33}));
    cNSFileHandling files;

    EXPECT_EQ(files.hGetModificationDateFile({.path = path, .mode = u"3"_qs}), u""_qs);

    files.hGetModificationDateFile({.path = path, .mode = u"0"_qs});
    EXPECT_EQ(
        files.hGetCreationDateFile({.path = path, .mode = u"3"_qs}), u"15-Nov-2026T10-44-33"_qs
    );
}

TEST(FileDate, IsEmptyForAMissingFile)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.jpg"_qs, "");
    cNSFileHandling files;
    ASSERT_NE(files.hGetCreationDateFile({.path = path, .mode = u"0"_qs}), u""_qs);

    EXPECT_EQ(
        files.hGetCreationDateFile({.path = folder.path(u"missing"_qs), .mode = u"0"_qs}), u""_qs
    );
    EXPECT_EQ(files.hGetCreationDateFile({.path = path, .mode = u"3"_qs}), u""_qs);
}

TEST(FileSize, IsTheTextOfTheByteCount)
{
    const TemporaryFolder folder;
    cNSFileHandling files;

    EXPECT_EQ(files.getFileSize(folder.write(u"a"_qs, QByteArray(5500, 'x'))), u"6 KB"_qs);
    EXPECT_EQ(files.getFileSize(folder.write(u"b"_qs, "")), u"Zero KB"_qs);
}

TEST(FileSize, KeepsTheLastTextForAMissingFile)
{
    const TemporaryFolder folder;
    cNSFileHandling files;

    EXPECT_EQ(files.getFileSize(folder.path(u"missing"_qs)), u""_qs);

    files.getFileSize(folder.write(u"a"_qs, "1"));
    EXPECT_EQ(files.getFileSize(folder.path(u"missing"_qs)), u"1 byte"_qs);
}

TEST(FileType, IsTheIdentifierOfTheExtension)
{
    const TemporaryFolder folder;

    EXPECT_EQ(cNSFileHandling::hGetFileType(folder.write(u"a.JPG"_qs, "")), u"public.jpeg"_qs);
    EXPECT_EQ(cNSFileHandling::hGetFileType(folder.write(u"b"_qs, "")), u"public.data"_qs);
    EXPECT_EQ(cNSFileHandling::hGetFileType(folder.path()), u"public.folder"_qs);
}

TEST(FileType, IsEmptyForAMissingFile)
{
    EXPECT_EQ(cNSFileHandling::hGetFileType(u"/nowhere/a.jpg"_qs), u""_qs);
}

TEST(FileLabel, IsNoneForAMissingFile)
{
    const TemporaryFolder folder;

    EXPECT_EQ(DVFileProperty::dvGetFileLabel(folder.path(u"missing"_qs)), u"none"_qs);
}

TEST(FileLabel, IsANumber)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_qs, "");
    EXPECT_EQ(DVFileProperty::dvGetFileLabel(path), u"0"_qs);

    ASSERT_EQ(::setxattr(path.toUtf8().constData(), "user.kMDItemFSLabel", "6", 1, 0), 0);

    EXPECT_EQ(DVFileProperty::dvGetFileLabel(path), u"6"_qs);
}

TEST(FileNameProps, AreNameExtensionAndBareName)
{
    EXPECT_EQ(
        DVFileProperty::hGetFileNameProps(u"/dir/a.b.jpg"_qs),
        (QStringList{u"a.b.jpg"_qs, u"jpg"_qs, u"a.b"_qs})
    );
    EXPECT_EQ(
        DVFileProperty::hGetFileNameProps(u"/dir/name"_qs),
        (QStringList{u"name"_qs, u""_qs, u"name"_qs})
    );
}
