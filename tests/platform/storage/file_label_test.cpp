// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/file_label.h>

#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::storage::fileLabel;
using brenvaldo::test::TemporaryFolder;

namespace {

void setAttribute(const QString& path, const char* name, const QByteArray& value)
{
    const auto size = static_cast<std::size_t>(value.size());
    if (::setxattr(QFile::encodeName(path).constData(), name, value.constData(), size, 0) != 0)
        qFatal("the file system keeps no attributes");
}

QByteArray serverInformation(char flags)
{
    QByteArray information(32, '\0');
    information[9] = flags;
    return information;
}

} // namespace

TEST(FileLabel, IsNothingForAMissingFile)
{
    const TemporaryFolder folder;

    EXPECT_EQ(fileLabel(folder.path(u"missing"_s)), std::nullopt);
}

TEST(FileLabel, IsZeroWithoutALabel)
{
    const TemporaryFolder folder;

    EXPECT_EQ(fileLabel(folder.write(u"a"_s, "")), 0);
    EXPECT_EQ(fileLabel(folder.path()), 0);
}

TEST(FileLabel, IsReadFromTheFilesAttribute)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "");
    setAttribute(path, "user.com.apple.FinderInfo", serverInformation(0x04));
    setAttribute(path, "user.kMDItemFSLabel", "6");

    EXPECT_EQ(fileLabel(path), 6);
}

TEST(FileLabel, FallsBackOnTheInformationOfFileServers)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "");
    setAttribute(path, "user.com.apple.FinderInfo", serverInformation(0x0C));

    EXPECT_EQ(fileLabel(path), 6);
}

TEST(FileLabel, IgnoresWhatIsNoLabel)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "");
    setAttribute(path, "user.com.apple.FinderInfo", "short");
    for (const char* const value : {"8", "-1", "red", "1000000000000"}) {
        setAttribute(path, "user.kMDItemFSLabel", value);
        EXPECT_EQ(fileLabel(path), 0) << value;
    }
}
