// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <watermark/text_mark.h>

#include <platform/graphics/image.h>
#include <support/golden_image.h>

#include <gtest/gtest.h>

#include <QFont>

using namespace brenvaldo;
using namespace brenvaldo::watermark;

namespace {

struct LookCase
{
    const char* name;
    TextEffect effect = TextEffect::Plain;
    bool hasShadow = false;
    int angle = 0;

    friend void PrintTo(const LookCase& row, std::ostream* out) { *out << row.name; }
};

class TextMarkLook : public testing::TestWithParam<LookCase>
{
};

platform::graphics::Image ground()
{
    QImage image(120, 72, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(70 + x, 110 + y / 2, 180 - y));
    }
    return platform::graphics::Image::fromQImage(image);
}

} // namespace

TEST_P(TextMarkLook, IsThatOfTheGoldenPicture)
{
    const LookCase& row = GetParam();
    TextWatermarkSettings settings;
    settings.text = u"Abg"_s;
    settings.fontSize = 44;
    settings.isBold = true;
    settings.fontColor = {.red = 1, .green = 0.9, .blue = 0.3};
    settings.embossColor = {.red = 0.9, .green = 0.2, .blue = 0.1};
    settings.effect = row.effect;
    settings.placement = {.anchor = 4, .xOffset = 0, .yOffset = 0, .angle = row.angle};
    if (row.hasShadow)
        settings.shadow = platform::drawing::Shadow{
            .color = {.red = 0, .green = 0, .blue = 0},
            .xOffset = 3,
            .yOffset = -3,
            .blurRadius = 4};
    const platform::graphics::Image photo = ground();

    const QImage marked
        = platform::drawing::stamped(
              photo, textMark(settings, settings.text, QFont(u"DejaVu Sans"_s), photo)
        )
              .toQImage();

    EXPECT_TRUE(test::looksLike(marked, u"watermark/"_s + QString::fromLatin1(row.name)));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextMarkLook,
    testing::Values(
        LookCase{.name = "shadow", .hasShadow = true},
        LookCase{.name = "shadow-turned", .hasShadow = true, .angle = 20},
        LookCase{.name = "emboss-gold", .effect = TextEffect::Relief2},
        LookCase{.name = "emboss-colour", .effect = TextEffect::ColoredRelief},
        LookCase{.name = "emboss-shadow", .effect = TextEffect::Relief3, .hasShadow = true}
    ),
    [](const auto& row) { return QString::fromLatin1(row.param.name).remove(u'-').toStdString(); }
);
