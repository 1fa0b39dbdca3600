// SPDX-License-Identifier: GPL-3.0-or-later
#include "all_entries.h"

#include <platform/storage/temporary_file.h>

#include <support/case_name.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::storage;
using brenvaldo::test::allEntries;
using brenvaldo::test::CaseName;
using brenvaldo::test::TemporaryFolder;

namespace {

struct FormCase
{
    const char* name;
    TemporaryFile::Form form;

    friend void PrintTo(const FormCase& row, std::ostream* out) { *out << row.name; }
};

bool fill(const TemporaryFile& temporary, const QByteArray& contents)
{
    QFile file(temporary.path());
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size()
        && file.flush();
}

} // namespace

class TemporaryFileForm : public testing::TestWithParam<FormCase>
{
};

TEST_P(TemporaryFileForm, TakesANewName)
{
    const TemporaryFolder folder;
    TemporaryFile file(folder.path(), GetParam().form);

    ASSERT_TRUE(fill(file, "contents"));
    EXPECT_TRUE(file.moveTo(folder.path(u"photo.jpg"_s)));

    EXPECT_FALSE(file.isValid());
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"photo.jpg"_s)), "contents");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

TEST_P(TemporaryFileForm, TakesTheNameOfAnother)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"photo.jpg"_s, "the old and longer contents");
    TemporaryFile file(folder.path(), GetParam().form);

    ASSERT_TRUE(fill(file, "new"));
    EXPECT_TRUE(file.moveTo(path));

    EXPECT_EQ(TemporaryFolder::read(path), "new");
    EXPECT_EQ(allEntries(folder.path()), QStringList{u"photo.jpg"_s});
}

TEST_P(TemporaryFileForm, GoesAwayWithItsObject)
{
    const TemporaryFolder folder;
    {
        const TemporaryFile file(folder.path(), GetParam().form);
        ASSERT_TRUE(fill(file, "contents"));
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList());
}

TEST_P(TemporaryFileForm, StaysTemporaryWhereItCanNotGo)
{
    const TemporaryFolder folder;
    QDir().mkpath(folder.path(u"taken/by a folder"_s));
    {
        TemporaryFile file(folder.path(), GetParam().form);

        EXPECT_FALSE(file.moveTo(folder.path(u"taken"_s)));
        EXPECT_FALSE(file.moveTo(folder.path(u"missing/photo.jpg"_s)));
        EXPECT_TRUE(fill(file, "contents"));
    }

    EXPECT_EQ(allEntries(folder.path()), QStringList{u"taken"_s});
}

TEST_P(TemporaryFileForm, TakesNoNameThatIsToBeKept)
{
    const TemporaryFolder folder;
    const QString taken = folder.write(u"taken.jpg"_s, "old");
    TemporaryFile file(folder.path(), GetParam().form);
    ASSERT_TRUE(fill(file, "new"));

    EXPECT_FALSE(file.moveTo(taken, TemporaryFile::Existing::Kept));
    EXPECT_TRUE(file.moveTo(folder.path(u"free.jpg"_s), TemporaryFile::Existing::Kept));

    EXPECT_EQ(TemporaryFolder::read(taken), "old");
    EXPECT_EQ(TemporaryFolder::read(folder.path(u"free.jpg"_s)), "new");
}

INSTANTIATE_TEST_SUITE_P(
    Forms,
    TemporaryFileForm,
    testing::Values(
        FormCase{"Nameless", TemporaryFile::Form::Nameless},
        FormCase{"Hidden", TemporaryFile::Form::Hidden}
    ),
    CaseName{}
);

TEST(TemporaryFile, ShowsInItsFolderWhenHiddenAlone)
{
    const TemporaryFolder folder;
    const TemporaryFile nameless(folder.path());
    EXPECT_EQ(allEntries(folder.path()), QStringList());

    const TemporaryFile hidden(folder.path(), TemporaryFile::Form::Hidden);

    ASSERT_EQ(allEntries(folder.path()).size(), 1);
    EXPECT_TRUE(allEntries(folder.path()).first().startsWith(u".brenvaldo-"));
}

TEST(TemporaryFile, IsInvalidWithoutItsFolder)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(TemporaryFile(folder.path(u"missing"_s)).isValid());
}
