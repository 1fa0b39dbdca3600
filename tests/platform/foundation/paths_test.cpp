// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/paths.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;
using brenvaldo::test::CaseName;

namespace {

struct PathCase
{
    const char* name;
    QString path;
    QString last;
    QString extension;
    QString withoutExtension;
};

void PrintTo(const PathCase& pathCase, std::ostream* out) { *out << pathCase.name; }

class PathParts : public testing::TestWithParam<PathCase>
{
};

const PathCase pathCases[] = {
    {"File", u"/dir/a.txt"_qs, u"a.txt"_qs, u"txt"_qs, u"/dir/a"_qs},
    {"TwoExtensions", u"/dir/a.txt.old"_qs, u"a.txt.old"_qs, u"old"_qs, u"/dir/a.txt"_qs},
    {"Folder", u"/dir/"_qs, u"dir"_qs, u""_qs, u"/dir"_qs},
    {"FolderWithExtension", u"a.b/"_qs, u"a.b"_qs, u"b"_qs, u"a"_qs},
    {"Hidden", u".x"_qs, u".x"_qs, u""_qs, u".x"_qs},
    {"HiddenWithExtension", u".x.y"_qs, u".x.y"_qs, u"y"_qs, u".x"_qs},
    {"TrailingDot", u"a."_qs, u"a."_qs, u""_qs, u"a."_qs},
    {"TwoDots", u"a..b"_qs, u"a..b"_qs, u"b"_qs, u"a."_qs},
    {"LeadingTwoDots", u"..a.b"_qs, u"..a.b"_qs, u""_qs, u"..a.b"_qs},
    {"DotsOnly", u"..."_qs, u"..."_qs, u""_qs, u"..."_qs},
    {"BlankInExtension", u"a.b c"_qs, u"a.b c"_qs, u""_qs, u"a.b c"_qs},
    {"BidirectionalControl", u"a.b\u202E"_qs, u"a.b\u202E"_qs, u""_qs, u"a.b\u202E"_qs},
    {"Root", u"/"_qs, u"/"_qs, u""_qs, u"/"_qs},
    {"Slashes", u"///"_qs, u"/"_qs, u""_qs, u"/"_qs},
    {"Empty", u""_qs, u""_qs, u""_qs, u""_qs},
    {"DotInFolder", u"/a.b/c"_qs, u"c"_qs, u""_qs, u"/a.b/c"_qs},
    {"NonAscii", u"/dir/été.jpg"_qs, u"été.jpg"_qs, u"jpg"_qs, u"/dir/été"_qs},
};

} // namespace

TEST_P(PathParts, AreThoseOfThePlatform)
{
    EXPECT_EQ(lastPathComponent(GetParam().path), GetParam().last);
    EXPECT_EQ(pathExtension(GetParam().path), GetParam().extension);
    EXPECT_EQ(deletingPathExtension(GetParam().path), GetParam().withoutExtension);
}

INSTANTIATE_TEST_SUITE_P(Paths, PathParts, testing::ValuesIn(pathCases), CaseName{});

namespace {

struct JoinCase
{
    const char* name;
    QString left;
    QString right;
    QString joined;
};

void PrintTo(const JoinCase& joinCase, std::ostream* out) { *out << joinCase.name; }

class AppendingPathExtension : public testing::TestWithParam<JoinCase>
{
};

const JoinCase extensionCases[] = {
    {"Name", u"a"_qs, u"txt"_qs, u"a.txt"_qs},
    {"NameWithExtension", u"a.txt"_qs, u"old"_qs, u"a.txt.old"_qs},
    {"EmptyExtension", u"a.txt"_qs, u""_qs, u"a.txt."_qs},
    {"EmptyPath", u""_qs, u"txt"_qs, u""_qs},
    {"TrailingSlash", u"a/"_qs, u"txt"_qs, u"a.txt"_qs},
    {"Root", u"/"_qs, u"txt"_qs, u"/"_qs},
};

class AppendingPathComponent : public testing::TestWithParam<JoinCase>
{
};

const JoinCase componentCases[] = {
    {"Plain", u"/dir"_qs, u"a"_qs, u"/dir/a"_qs},
    {"SlashesOnBothSides", u"/dir/"_qs, u"/a"_qs, u"/dir/a"_qs},
    {"SlashOnTheRight", u"/dir"_qs, u"/a"_qs, u"/dir/a"_qs},
    {"EmptyPath", u""_qs, u"a"_qs, u"a"_qs},
    {"EmptyComponent", u"/dir"_qs, u""_qs, u"/dir"_qs},
    {"TrailingSlash", u"/dir"_qs, u"a/"_qs, u"/dir/a"_qs},
    {"Root", u"/"_qs, u"a"_qs, u"/a"_qs},
};

} // namespace

TEST_P(AppendingPathExtension, FollowsThePlatform)
{
    EXPECT_EQ(appendingPathExtension(GetParam().left, GetParam().right), GetParam().joined);
}

TEST_P(AppendingPathComponent, JoinsWithOneSlash)
{
    EXPECT_EQ(appendingPathComponent(GetParam().left, GetParam().right), GetParam().joined);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, AppendingPathExtension, testing::ValuesIn(extensionCases), CaseName{}
);
INSTANTIATE_TEST_SUITE_P(
    Paths, AppendingPathComponent, testing::ValuesIn(componentCases), CaseName{}
);

TEST(DeletingLastPathComponent, AnswersTheFolder)
{
    EXPECT_EQ(deletingLastPathComponent(u"/dir/a"_qs), u"/dir"_qs);
    EXPECT_EQ(deletingLastPathComponent(u"/dir/a/"_qs), u"/dir"_qs);
    EXPECT_EQ(deletingLastPathComponent(u"/dir"_qs), u"/"_qs);
    EXPECT_EQ(deletingLastPathComponent(u"/"_qs), u"/"_qs);
    EXPECT_EQ(deletingLastPathComponent(u"a"_qs), u""_qs);
}
