// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/tool_box.h>

#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;
using namespace brenvaldo::test;

namespace {

/// A program home of its own with an empty `Temp`.
class TemporaryStore : public testing::Test
{
protected:
    TemporaryStore() { QDir().mkpath(cToolBox::hGetTempDir()); }

    TemporaryFolder folder;
    TemporaryFolder data;
    Environment dataHome{"XDG_DATA_HOME", data.path().toUtf8()};
};

} // namespace

TEST_F(TemporaryStore, StandsInTheProgramsHome)
{
    EXPECT_EQ(cToolBox::hGetHomeDir(), data.path(u"Brenvaldo"_s));
    EXPECT_EQ(cToolBox::hGetTempDir(), data.path(u"Brenvaldo/Temp"_s));
}

TEST_F(TemporaryStore, HasTheseStatusTexts)
{
    EXPECT_EQ(text(StoreStatus::Successful), u"successfull"_s);
    EXPECT_EQ(text(StoreStatus::Failed), u"Failed"_s);
}

TEST_F(TemporaryStore, CopiesAFileUnderANewNameInItsFolder)
{
    const QString source = folder.write(u"a.jpg"_s, "a");

    EXPECT_EQ(cToolBox::hStoreFiles({.path = source, .name = u"b.jpg"_s}), StoreStatus::Successful);

    EXPECT_EQ(TemporaryFolder::read(folder.path(u"b.jpg"_s)), "a");
    EXPECT_EQ(TemporaryFolder::read(source), "a");
}

TEST_F(TemporaryStore, FailsForATakenNameAndLeavesATemporaryCopy)
{
    const QString source = folder.write(u"a.jpg"_s, "a");
    const QString taken = folder.write(u"b.jpg"_s, "b");

    EXPECT_EQ(cToolBox::hStoreFiles({.path = source, .name = u"b.jpg"_s}), StoreStatus::Failed);

    EXPECT_EQ(TemporaryFolder::read(taken), "b");
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"b.jpg-temp"_s)), "a");
}

TEST_F(TemporaryStore, FailsForAMissingFile)
{
    EXPECT_EQ(
        cToolBox::hStoreFiles({.path = folder.path(u"missing"_s), .name = u"b.jpg"_s}),
        StoreStatus::Failed
    );
}

TEST_F(TemporaryStore, KeepsAFailureUntilFilesAreStoredAnew)
{
    const QString source = folder.write(u"a.jpg"_s, "a");
    const QString missing = folder.path(u"missing"_s);

    EXPECT_EQ(
        cToolBox::hStoreFiles2({.source = missing, .target = folder.path(u"b"_s)}),
        StoreStatus::Failed
    );
    EXPECT_EQ(
        cToolBox::hStoreFiles2({.source = source, .target = folder.path(u"c"_s)}),
        StoreStatus::Failed
    );
    EXPECT_EQ(cToolBox::hStoreTempFile({.path = source, .name = u"d"_s}), StoreStatus::Failed);
    EXPECT_EQ(cToolBox::hStoreFiles({.path = source, .name = u"e"_s}), StoreStatus::Successful);
    EXPECT_EQ(
        cToolBox::hStoreFiles2({.source = source, .target = folder.path(u"f"_s)}),
        StoreStatus::Successful
    );

    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).join(u' '), u"a.jpg c e f"_s);
}

TEST_F(TemporaryStore, TakesAFileIntoTemp)
{
    const QString source = folder.write(u"a.jpg"_s, "a");
    static_cast<void>(cToolBox::hStoreFiles({.path = source, .name = u"fresh status"_s}));

    EXPECT_EQ(
        cToolBox::hStoreTempFile({.path = source, .name = u"t.jpg"_s}), StoreStatus::Successful
    );
    EXPECT_EQ(cToolBox::hStoreTempFile({.path = source, .name = u"t.jpg"_s}), StoreStatus::Failed);

    EXPECT_EQ(TemporaryFolder::read(data.path(u"Brenvaldo/Temp/t.jpg"_s)), "a");
}
