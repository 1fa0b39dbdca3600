// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/services/code_generator.h>

#include <support/code_reader.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::services;
using brenvaldo::test::readCode;

namespace {

/// The modules large enough for a reader.
QImage enlarged(const QImage& modules, int width, int height)
{
    return modules.scaled(width, height);
}

} // namespace

TEST(QrCode, HoldsTheBytesOfItsMessage)
{
    const auto code = qrCode(QByteArray("h\xc3\xa9llo \xe2\x82\xac \xf0\x9f\x98\x80"));
    ASSERT_TRUE(code);
    EXPECT_EQ(readCode(enlarged(*code, 300, 300)), "h\xc3\xa9llo \xe2\x82\xac \xf0\x9f\x98\x80");
}

TEST(QrCode, HasFourQuietModulesAroundAFinder)
{
    const auto code = qrCode("a");
    ASSERT_TRUE(code);
    EXPECT_EQ(code->size(), QSize(21 + 8, 21 + 8));
    EXPECT_EQ(qGray(code->pixel(3, 3)), 255);
    EXPECT_EQ(qGray(code->pixel(4, 4)), 0);
    EXPECT_EQ(qGray(code->pixel(5, 5)), 255);
    EXPECT_EQ(qGray(code->pixel(24, 4)), 0);
    EXPECT_EQ(qGray(code->pixel(25, 4)), 255);
}

TEST(QrCode, HoldsAsManyBytesAsLevelMAllows)
{
    const auto largest = qrCode(QByteArray(2331, 'a'));
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->width(), 177 + 8);
    EXPECT_FALSE(qrCode(QByteArray(2332, 'a')));
    EXPECT_FALSE(qrCode({}));
}

TEST(Code128, HoldsAsciiText)
{
    const auto code = code128("Ab 12~", 7);
    ASSERT_TRUE(code);
    EXPECT_EQ(code->height(), 1);
    EXPECT_EQ(qGray(code->pixel(6, 0)), 255);
    EXPECT_EQ(qGray(code->pixel(7, 0)), 0);
    EXPECT_EQ(qGray(code->pixel(code->width() - 8, 0)), 0);
    EXPECT_EQ(qGray(code->pixel(code->width() - 7, 0)), 255);
    EXPECT_EQ(readCode(enlarged(*code, code->width() * 3, 60)), "Ab 12~");
}

TEST(Code128, HoldsNoOtherLetters)
{
    EXPECT_FALSE(code128("h\xc3\xa9", 7));
    EXPECT_FALSE(code128("M\xfcller", 7));
    EXPECT_FALSE(code128({}, 7));
    EXPECT_TRUE(code128(QByteArray(60, 'a'), 7));
    EXPECT_FALSE(code128(QByteArray(61, 'a'), 7));
}
