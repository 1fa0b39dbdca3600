// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/bar_code.h>
#include <services/qr_code.h>

#include <platform/foundation/literals.h>

#include <support/code_reader.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::services::cBarCode;
using brenvaldo::services::cQRCode;
using brenvaldo::test::readCode;

TEST(QrCodePicture, HasTwoPixelsAPoint)
{
    const auto code = cQRCode::QRCodeImageWithData("text", 1000);
    ASSERT_TRUE(code);
    EXPECT_EQ(code->pixelSize(), (PixelSize{1000, 1000}));
    EXPECT_DOUBLE_EQ(code->dotsPerInch(), 144);
    EXPECT_EQ(readCode(code->toQImage()), "text");
}

TEST(QrCodePicture, CanBeReadInManySizes)
{
    for (const int size : {60, 100, 150, 299, 300, 640, 1000, 2000}) {
        const auto code = cQRCode::QRCodeImageWithData("https://www.example/photos", size);
        ASSERT_TRUE(code) << size;
        EXPECT_EQ(readCode(code->toQImage()), "https://www.example/photos") << size;
    }
}

TEST(QrCodePicture, HasSharpModules)
{
    const QImage code = cQRCode::QRCodeImageWithData("text", 333)->toQImage();
    for (int x = 0; x < code.width(); ++x) {
        const int level = qGray(code.pixel(x, 166));
        EXPECT_TRUE(level == 0 || level == 255) << x;
    }
}

TEST(CodePicture, IsNoneWithoutPixels)
{
    for (const double size : {0.0, -1.0, -1000.0, 1e9}) {
        EXPECT_FALSE(cQRCode::QRCodeImageWithData("text", size)) << size;
        EXPECT_FALSE(cBarCode::hBarCodeImageWithNSString(u"text"_s, size)) << size;
    }
}

TEST(BarCodePicture, IsAsHighAsItsWidthTells)
{
    const auto code = cBarCode::hBarCodeImageWithNSString(u"12345"_s, 1000);
    ASSERT_TRUE(code);
    EXPECT_EQ(code->pixelSize(), (PixelSize{1000, 147}));
    EXPECT_EQ(readCode(code->toQImage()), "12345");
    EXPECT_EQ(
        cBarCode::hBarCodeImageWithNSString(u"a much longer text"_s, 1000)->pixelSize(),
        (PixelSize{1000, 147})
    );
    EXPECT_EQ(cBarCode::hBarCodeImageWithNSString(u"1"_s, 99)->pixelSize(), (PixelSize{99, 15}));
}

TEST(BarCodePicture, IsNoneForLettersBeyondAscii)
{
    EXPECT_FALSE(cBarCode::hBarCodeImageWithNSString(u"Müller"_s, 1000));
}
