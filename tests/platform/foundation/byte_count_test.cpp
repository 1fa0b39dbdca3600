// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/byte_count.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <limits>

using brenvaldo::platform::byteCountText;

namespace {

struct ByteCase
{
    std::int64_t bytes;
    QString text;
};

void PrintTo(const ByteCase& byteCase, std::ostream* out) { *out << byteCase.bytes; }

class ByteCountText : public testing::TestWithParam<ByteCase>
{
};

const ByteCase byteCases[] = {
    {0, u"Zero KB"_qs},
    {1, u"1 byte"_qs},
    {2, u"2 bytes"_qs},
    {999, u"999 bytes"_qs},
    {1000, u"1 KB"_qs},
    {1023, u"1 KB"_qs},
    {1024, u"1 KB"_qs},
    {4500, u"4 KB"_qs},
    {5500, u"6 KB"_qs},
    {11999, u"12 KB"_qs},
    {55000, u"55 KB"_qs},
    {550000, u"550 KB"_qs},
    {900000, u"900 KB"_qs},
    {999999, u"1,000 KB"_qs},
    {1000000, u"1 MB"_qs},
    {5500000, u"5.5 MB"_qs},
    {12345678, u"12.3 MB"_qs},
    {123456789, u"123.5 MB"_qs},
    {999900000, u"999.9 MB"_qs},
    {1234567898, u"1.23 GB"_qs},
    {1050000000, u"1.05 GB"_qs},
    {12345678987, u"12.35 GB"_qs},
    {1500000000000, u"1.5 TB"_qs},
    {2000000000000000, u"2 PB"_qs},
    {std::numeric_limits<std::int64_t>::max(), u"9.22 EB"_qs},
    {-5500, u"-6 KB"_qs},
    {std::numeric_limits<std::int64_t>::min(), u"-9.22 EB"_qs},
};

} // namespace

TEST_P(ByteCountText, FollowsTheFileStyle)
{
    EXPECT_EQ(byteCountText(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(ByteCount, ByteCountText, testing::ValuesIn(byteCases));
