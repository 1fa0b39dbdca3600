// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_source.h>
#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/metadata/metadata_reader.h>

#include <QStringList>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::platform;

namespace {

/// Notes who is waited for.
class NotedPaths : public FilesInTheMaking
{
public:
    void waitFor(const QString& path) override { paths.append(path); }
    void waitForUsesOf(const QString& path) override { used.append(path); }
    void waitForAll() override { }

    QStringList paths;
    QStringList used;
};

} // namespace

TEST(ReadingAPhoto, WaitsForItToBeMade)
{
    NotedPaths files;

    EXPECT_FALSE(codecs::ImageSource::open(u"/nowhere/a.jpg"_s));
    EXPECT_FALSE(metadata::readMetadataBlocks(u"/nowhere/b.jpg"_s));

    EXPECT_EQ(files.paths, (QStringList{u"/nowhere/a.jpg"_s, u"/nowhere/b.jpg"_s}));
    EXPECT_EQ(files.used, QStringList());
}
