// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/property_list.h>

#include <support/case_name.h>
#include <support/faults.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDateTime>
#include <QSize>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::storage;
using namespace brenvaldo::test;

TEST(PropertyList, GivesBackWhatItTook)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a.plist"_s);
    const QVariantMap dictionary = {
        {u"text"_s, u"<é & \"\n>"_s},
        {u"empty"_s, u""_s},
        {u"integer"_s, -9223372036854775807LL},
        {u"real"_s, 0.1},
        {u"yes"_s, true},
        {u"no"_s, false},
        {u"bytes"_s, QByteArray("\0\xFF", 2)},
        {u"date"_s, QDateTime({2026, 11, 15}, {10, 44, 33}, Qt::UTC)},
        {u"list"_s, QVariantList{u"a"_s, QVariantList(), QVariantMap{{u"k"_s, u"v"_s}}}},
        {u"key & <é>"_s, QVariantMap()},
    };

    ASSERT_TRUE(writePropertyList(path, dictionary));

    EXPECT_EQ(readPropertyList(path), dictionary);
}

TEST(PropertyList, ReadsTheFormOfThePlatform)
{
    const TemporaryFolder folder;
    const QString path = folder.write(
        u"a.plist"_s,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<!DOCTYPE plist>\n"
        "<plist version=\"1.0\">\n<dict>\n"
        "\t<!-- how many -->\n"
        "\t<key>count</key>\n\t<integer> 7 </integer>\n"
        "\t<key>bytes</key>\n\t<data>\n\tYWJj\n\tZGVm\n\t</data>\n"
        "</dict>\n</plist>\n"
    );

    EXPECT_EQ(
        readPropertyList(path), (QVariantMap{{u"count"_s, 7LL}, {u"bytes"_s, QByteArray("abcdef")}})
    );
}

namespace {

struct DamagedCase
{
    const char* name;
    QByteArray contents;
};

void PrintTo(const DamagedCase& damagedCase, std::ostream* out) { *out << damagedCase.name; }

class DamagedPropertyList : public testing::TestWithParam<DamagedCase>
{
};

const DamagedCase damagedCases[] = {
    {"Empty", ""},
    {"Binary", "bplist00\xD1\x01\x02"},
    {"OtherRoot", "<html><dict/></html>"},
    {"List", "<plist><array/></plist>"},
    {"CutOff", "<plist><dict><key>a</key><string>b"},
    {"NoKey", "<plist><dict><string>a</string></dict></plist>"},
    {"NoValue", "<plist><dict><key>a</key></dict></plist>"},
    {"UnknownKind", "<plist><dict><key>a</key><colour>1</colour></dict></plist>"},
    {"NoNumber", "<plist><dict><key>a</key><integer>x</integer></dict></plist>"},
    {"NoDate", "<plist><dict><key>a</key><date>x</date></dict></plist>"},
    {"TextAfterIt", "<plist><dict/></plist><more/>"},
    {"Nesting", "<plist><dict><key>a</key>" + QByteArray("<array>").repeated(100000)},
};

} // namespace

TEST_P(DamagedPropertyList, ReadsAsNothing)
{
    const TemporaryFolder folder;

    EXPECT_EQ(readPropertyList(folder.write(u"a.plist"_s, GetParam().contents)), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    PropertyList, DamagedPropertyList, testing::ValuesIn(damagedCases), CaseName{}
);

TEST(PropertyList, ReadsAsNothingWithoutAFile)
{
    const TemporaryFolder folder;

    EXPECT_EQ(readPropertyList(folder.path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(readPropertyList(folder.path()), std::nullopt);
}

TEST(PropertyList, RefusesAValueOfAnotherKind)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.plist"_s, "old");

    EXPECT_FALSE(writePropertyList(path, {{u"size"_s, QSize(1, 2)}}));

    EXPECT_EQ(TemporaryFolder::read(path), "old");
}

TEST(PropertyList, LeavesTheOldOneOnAFullDisk)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a.plist"_s, "old");
    {
        const FullDisk disk(1000);
        EXPECT_FALSE(writePropertyList(path, {{u"text"_s, QString(5000, u'x')}}));
    }

    EXPECT_EQ(TemporaryFolder::read(path), "old");
}
