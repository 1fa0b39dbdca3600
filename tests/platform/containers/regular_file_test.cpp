// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/mapped_file.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/regular_file.h>

#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace brenvaldo;
using platform::openRegularFile;
using platform::containers::MappedFile;
using test::TemporaryFolder;

namespace {

QString pipeIn(const TemporaryFolder& folder)
{
    const QString path = folder.path(u"pipe"_s);
    if (::mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
        qFatal("the pipe can't be made");
    return path;
}

bool opens(const QString& path)
{
    QFile file(path);
    return openRegularFile(file);
}

} // namespace

TEST(RegularFile, IsReadFromItsStart)
{
    const TemporaryFolder folder;
    QFile file(folder.write(u"a"_s, "bytes"));

    ASSERT_TRUE(openRegularFile(file));

    EXPECT_EQ(file.size(), 5);
    EXPECT_EQ(file.readAll(), "bytes");
}

TEST(RegularFile, IsNeitherAPipeNorAFolderNorADevice)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(opens(pipeIn(folder)));
    EXPECT_FALSE(opens(folder.path()));
    EXPECT_FALSE(opens(u"/dev/zero"_s));
    EXPECT_FALSE(opens(folder.path(u"missing"_s)));
}

TEST(MappedFileOf, APipeIsEmpty)
{
    const TemporaryFolder folder;

    EXPECT_TRUE(MappedFile(pipeIn(folder)).bytes().isEmpty());
}

TEST(MappedFileOf, AFileHoldsItsBytes)
{
    const TemporaryFolder folder;
    const MappedFile file(folder.write(u"a"_s, "bytes"));

    EXPECT_EQ(file.bytes(), QByteArrayView("bytes"));
}
