// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/numbers.h>

#include <support/case_name.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform;
using brenvaldo::test::CaseName;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct NumberCase
{
    const char* name;
    QString text;
    std::int32_t intValue;
    std::int64_t integerValue;
    double doubleValue;
};

void PrintTo(const NumberCase& numberCase, std::ostream* out) { *out << numberCase.name; }

class TextToNumber : public testing::TestWithParam<NumberCase>
{
};

constexpr std::int32_t lowest32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t lowest64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest64 = std::numeric_limits<std::int64_t>::max();

const NumberCase numberCases[] = {
    {"Plain", u"12"_s, 12, 12, 12},
    {"TrailingText", u"123a"_s, 123, 123, 123},
    {"LeadingText", u"a123"_s, 0, 0, 0},
    {"Empty", u""_s, 0, 0, 0},
    {"LeadingWhiteSpace", u" \t\n\u00A012"_s, 12, 12, 12},
    {"WhiteSpaceAfterTheSign", u"- 12"_s, -12, -12, 0},
    {"Plus", u"+12"_s, 12, 12, 12},
    {"Minus", u"-12"_s, -12, -12, -12},
    {"TwoPluses", u"++1"_s, 0, 0, 0},
    {"TwoMinuses", u"--1"_s, 0, 0, 0},
    {"Decimals", u"12.7"_s, 12, 12, 12.7},
    {"NegativeDecimals", u"-12.7"_s, -12, -12, -12.7},
    {"DecimalComma", u"1,5"_s, 1, 1, 1},
    {"Hexadecimal", u"0x10"_s, 0, 0, 0},
    {"Exponent", u"1e3"_s, 1, 1, 1000},
    {"ExponentAndText", u"1e3x"_s, 1, 1, 1000},
    {"CapitalExponent", u"1.5E-2"_s, 1, 1, 0.015},
    {"UnfinishedExponent", u"2e+"_s, 2, 2, 2},
    {"LeadingPoint", u".5"_s, 0, 0, 0.5},
    {"TrailingPoint", u"5."_s, 5, 5, 5},
    {"PointOnly", u"."_s, 0, 0, 0},
    {"TwoPoints", u"1.2.3"_s, 1, 1, 1.2},
    {"InfinityWord", u"inf"_s, 0, 0, 0},
    {"NotANumberWord", u"nan"_s, 0, 0, 0},
    {"ArabicDigits", u"\u0661\u0662"_s, 0, 0, 0},
    {"Highest32", u"2147483647"_s, highest32, 2147483647, 2147483647},
    {"Above32", u"2147483648"_s, highest32, 2147483648, 2147483648},
    {"Lowest32", u"-2147483648"_s, lowest32, -2147483648, -2147483648},
    {"Below32", u"-2147483649"_s, lowest32, -2147483649, -2147483649},
    {"Highest64", u"9223372036854775807"_s, highest32, highest64, 9223372036854775807.0},
    {"Above64", u"9223372036854775808"_s, highest32, highest64, 9223372036854775808.0},
    {"Lowest64", u"-9223372036854775808"_s, lowest32, lowest64, -9223372036854775808.0},
    {"Below64", u"-9223372036854775809"_s, lowest32, lowest64, -9223372036854775809.0},
    {"Overflow", u"1e999"_s, 1, 1, infinity},
    {"NegativeOverflow", u"-1e999"_s, -1, -1, -infinity},
    {"Underflow", u"1e-999"_s, 1, 1, 0},
};

} // namespace

TEST_P(TextToNumber, TakesTheNumberAtTheStart)
{
    EXPECT_EQ(intValue(GetParam().text), GetParam().intValue);
    EXPECT_EQ(integerValue(GetParam().text), GetParam().integerValue);
    EXPECT_EQ(doubleValue(GetParam().text), GetParam().doubleValue);
    EXPECT_EQ(floatValue(GetParam().text), static_cast<float>(GetParam().doubleValue));
}

INSTANTIATE_TEST_SUITE_P(Numbers, TextToNumber, testing::ValuesIn(numberCases), CaseName{});

namespace {

struct HexCase
{
    const char* name;
    QString text;
    std::optional<std::uint32_t> value;
};

void PrintTo(const HexCase& hexCase, std::ostream* out) { *out << hexCase.name; }

class ScanHexInt : public testing::TestWithParam<HexCase>
{
};

const HexCase hexCases[] = {
    {"Colour", u"FF8000"_s, 0xFF8000},
    {"LowerCase", u"ff8000"_s, 0xFF8000},
    {"LeadingWhiteSpace", u" \n1F"_s, 0x1F},
    {"Prefix", u"0x1F"_s, 0x1F},
    {"CapitalPrefix", u"0X1f"_s, 0x1F},
    {"PrefixOnly", u"0x"_s, 0},
    {"PrefixAndText", u"0xg"_s, 0},
    {"ZeroAndText", u"0z"_s, 0},
    {"NumberSign", u"#FF0000"_s, std::nullopt},
    {"Empty", u""_s, std::nullopt},
    {"TrailingText", u"FF0000zz"_s, 0xFF0000},
    {"Full", u"FFFFFFFF"_s, 0xFFFFFFFF},
    {"TooLong", u"FF00000000"_s, 0xFFFFFFFF},
    {"MuchTooLong", u"1"_s + QString(40, u'0'), 0xFFFFFFFF},
};

} // namespace

TEST_P(ScanHexInt, TakesTheDigitsAtTheStart)
{
    EXPECT_EQ(scanHexInt(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ScanHexInt, testing::ValuesIn(hexCases), CaseName{});

TEST(Truncated, CutsTheFractionOff)
{
    EXPECT_EQ(truncated(2.9), 2);
    EXPECT_EQ(truncated(-2.9), -2);
    EXPECT_EQ(truncated(2147483647.9), highest32);
    EXPECT_EQ(truncated(-2147483648.9), lowest32);
}

TEST(Truncated, GivesTheLowestIntegerForWhatNoneHolds)
{
    EXPECT_EQ(truncated(2147483648.0), lowest32);
    EXPECT_EQ(truncated(-2147483649.0), lowest32);
    EXPECT_EQ(truncated(infinity), lowest32);
    EXPECT_EQ(truncated(std::nan("")), lowest32);
}

TEST(Wrapped32, KeepsTheLowBits)
{
    EXPECT_EQ(wrapped32(7), 7);
    EXPECT_EQ(wrapped32(2147483648), lowest32);
    EXPECT_EQ(wrapped32(-2147483649), highest32);
    EXPECT_EQ(wrapped32(50'000'000LL * 100), 705032704);
}

TEST(NumberText, PrintsUpToSixteenDigits)
{
    EXPECT_EQ(numberText(72), u"72"_s);
    EXPECT_EQ(numberText(-3), u"-3"_s);
    EXPECT_EQ(numberText(72.5), u"72.5"_s);
    EXPECT_EQ(numberText(1.0 / 15), u"0.06666666666666667"_s);
    EXPECT_EQ(numberText(0.1), u"0.1"_s);
    EXPECT_EQ(numberText(1e22), u"1e+22"_s);
}
