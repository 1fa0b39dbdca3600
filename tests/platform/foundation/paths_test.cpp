// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/paths.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
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
    {"File", u"/dir/a.txt"_s, u"a.txt"_s, u"txt"_s, u"/dir/a"_s},
    {"TwoExtensions", u"/dir/a.txt.old"_s, u"a.txt.old"_s, u"old"_s, u"/dir/a.txt"_s},
    {"Folder", u"/dir/"_s, u"dir"_s, u""_s, u"/dir"_s},
    {"FolderWithExtension", u"a.b/"_s, u"a.b"_s, u"b"_s, u"a"_s},
    {"Hidden", u".x"_s, u".x"_s, u""_s, u".x"_s},
    {"HiddenWithExtension", u".x.y"_s, u".x.y"_s, u"y"_s, u".x"_s},
    {"TrailingDot", u"a."_s, u"a."_s, u""_s, u"a."_s},
    {"TwoDots", u"a..b"_s, u"a..b"_s, u"b"_s, u"a."_s},
    {"LeadingTwoDots", u"..a.b"_s, u"..a.b"_s, u""_s, u"..a.b"_s},
    {"DotsOnly", u"..."_s, u"..."_s, u""_s, u"..."_s},
    {"BlankInExtension", u"a.b c"_s, u"a.b c"_s, u""_s, u"a.b c"_s},
    {"BidirectionalControl", u"a.b\u202E"_s, u"a.b\u202E"_s, u""_s, u"a.b\u202E"_s},
    {"Root", u"/"_s, u"/"_s, u""_s, u"/"_s},
    {"Slashes", u"///"_s, u"/"_s, u""_s, u"/"_s},
    {"Empty", u""_s, u""_s, u""_s, u""_s},
    {"DotInFolder", u"/a.b/c"_s, u"c"_s, u""_s, u"/a.b/c"_s},
    {"NonAscii", u"/dir/été.jpg"_s, u"été.jpg"_s, u"jpg"_s, u"/dir/été"_s},
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
    {"Name", u"a"_s, u"txt"_s, u"a.txt"_s},
    {"NameWithExtension", u"a.txt"_s, u"old"_s, u"a.txt.old"_s},
    {"EmptyExtension", u"a.txt"_s, u""_s, u"a.txt."_s},
    {"EmptyPath", u""_s, u"txt"_s, u""_s},
    {"TrailingSlash", u"a/"_s, u"txt"_s, u"a.txt"_s},
    {"Root", u"/"_s, u"txt"_s, u"/"_s},
};

class AppendingPathComponent : public testing::TestWithParam<JoinCase>
{
};

const JoinCase componentCases[] = {
    {"Plain", u"/dir"_s, u"a"_s, u"/dir/a"_s},
    {"SlashesOnBothSides", u"/dir/"_s, u"/a"_s, u"/dir/a"_s},
    {"SlashOnTheRight", u"/dir"_s, u"/a"_s, u"/dir/a"_s},
    {"EmptyPath", u""_s, u"a"_s, u"a"_s},
    {"EmptyComponent", u"/dir"_s, u""_s, u"/dir"_s},
    {"TrailingSlash", u"/dir"_s, u"a/"_s, u"/dir/a"_s},
    {"Root", u"/"_s, u"a"_s, u"/a"_s},
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
    EXPECT_EQ(deletingLastPathComponent(u"/dir/a"_s), u"/dir"_s);
    EXPECT_EQ(deletingLastPathComponent(u"/dir/a/"_s), u"/dir"_s);
    EXPECT_EQ(deletingLastPathComponent(u"/dir"_s), u"/"_s);
    EXPECT_EQ(deletingLastPathComponent(u"/"_s), u"/"_s);
    EXPECT_EQ(deletingLastPathComponent(u"a"_s), u""_s);
}
