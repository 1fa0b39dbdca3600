// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/byte_count.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
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
    {0, u"Zero KB"_s},
    {1, u"1 byte"_s},
    {2, u"2 bytes"_s},
    {999, u"999 bytes"_s},
    {1000, u"1 KB"_s},
    {1023, u"1 KB"_s},
    {1024, u"1 KB"_s},
    {4500, u"4 KB"_s},
    {5500, u"6 KB"_s},
    {11999, u"12 KB"_s},
    {55000, u"55 KB"_s},
    {550000, u"550 KB"_s},
    {900000, u"900 KB"_s},
    {999999, u"1,000 KB"_s},
    {1000000, u"1 MB"_s},
    {5500000, u"5.5 MB"_s},
    {12345678, u"12.3 MB"_s},
    {123456789, u"123.5 MB"_s},
    {999900000, u"999.9 MB"_s},
    {1234567898, u"1.23 GB"_s},
    {1050000000, u"1.05 GB"_s},
    {12345678987, u"12.35 GB"_s},
    {1500000000000, u"1.5 TB"_s},
    {2000000000000000, u"2 PB"_s},
    {std::numeric_limits<std::int64_t>::max(), u"9.22 EB"_s},
    {-5500, u"-6 KB"_s},
    {std::numeric_limits<std::int64_t>::min(), u"-9.22 EB"_s},
};

} // namespace

TEST_P(ByteCountText, FollowsTheFileStyle)
{
    EXPECT_EQ(byteCountText(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(ByteCount, ByteCountText, testing::ValuesIn(byteCases));
