// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/output_file.h>

#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::OutputFile;
using namespace brenvaldo::test;

TEST(OutputFile, ReplacesWhatTheFileHeld)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "the old and longer contents");
    OutputFile file(path);

    EXPECT_EQ(file.write("new"), 3);

    EXPECT_TRUE(file.finish());
    EXPECT_EQ(file.fault(), QString());
    EXPECT_EQ(TemporaryFolder::read(path), "new");
}

TEST(OutputFile, CanBeWrittenOutOfOrderAndReadBack)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a"_s);
    OutputFile file(path);

    EXPECT_EQ(file.write("0123456789"), 10);
    EXPECT_TRUE(file.seek(2));
    EXPECT_EQ(file.write("ab"), 2);
    EXPECT_EQ(file.pos(), 4);
    EXPECT_EQ(file.read(3), "456");
    EXPECT_EQ(file.size(), 10);

    EXPECT_TRUE(file.finish());
    EXPECT_EQ(TemporaryFolder::read(path), "01ab456789");
}

TEST(OutputFile, StaysSpoiledWhenThereIsRoomAgain)
{
    const TemporaryFolder folder;
    OutputFile file(folder.path(u"a"_s));
    {
        const FullDisk disk(4096);
        EXPECT_EQ(file.write(QByteArray(100000, 'x')), -1);
        EXPECT_FALSE(file.isWhole());
    }

    EXPECT_EQ(file.write("y"), -1);
    EXPECT_FALSE(file.seek(0));
    EXPECT_EQ(file.read(1), QByteArray());

    EXPECT_FALSE(file.finish());
    EXPECT_EQ(file.fault(), u"File too large"_s);
}

TEST(OutputFile, IsSpoiledByBytesThatAreRefusedAtTheEnd)
{
    const TemporaryFolder folder;
    OutputFile file(folder.path(u"a"_s));
    const FullDisk disk(2);
    EXPECT_EQ(file.write("few bytes wait until the end"), 28);
    EXPECT_TRUE(file.isWhole());

    EXPECT_FALSE(file.finish());

    EXPECT_FALSE(file.isWhole());
    EXPECT_FALSE(file.fault().isEmpty());
}

TEST(OutputFile, IsSpoiledWithoutItsFolder)
{
    const TemporaryFolder folder;
    OutputFile file(folder.path(u"missing/a"_s));

    EXPECT_FALSE(file.isWhole());
    EXPECT_EQ(file.fault(), u"No such file or directory"_s);
    EXPECT_FALSE(file.finish());
}
