// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_watermark_fixture.h"

#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/pixel_probe.h>
#include <support/text_printing.h>

using namespace brenvaldo;
using test::Components;
using test::PhotoBuilder;
using test::PhotoFormat;
using test::PhotoModel;
using test::TextWatermark;

namespace {

constexpr QPoint middle(60, 40);
constexpr QPoint corner(2, 2);

struct KindCase
{
    const char* name;
    PhotoModel model;
    int depth;
    PhotoFormat format;
    const char* outputType;

    friend void PrintTo(const KindCase& row, std::ostream* out) { *out << row.name; }
};

class MarkedPhotoKind : public TextWatermark, public testing::WithParamInterface<KindCase>
{
};

/// The sample values as the file has them, without any conversion of colours.
Components storedComponents(const QString& path, QPoint point)
{
    const QColor color = QImage(path).pixelColor(point);
    return {color.redF(), color.greenF(), color.blueF()};
}

} // namespace

TEST_P(MarkedPhotoKind, KeepsItsKindAndShowsAWhiteMark)
{
    const KindCase& row = GetParam();
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .model(row.model)
                              .depth(row.depth)
                              .solid({40, 40, 40, 128, 255})
                              .format(row.format)
                              .write(sources.path(u"a.tif"_s));
    const platform::codecs::ImageHeader before = test::openedPhoto(photo).header();

    run({photo}, QString::fromLatin1(row.outputType));

    ASSERT_EQ(done.value(0).word, u"OK"_s);
    const platform::codecs::ImageHeader after = test::openedPhoto(done.value(0).target).header();
    EXPECT_EQ(after.bitsPerComponent, before.bitsPerComponent);
    EXPECT_EQ(after.colorModel, before.colorModel);
    EXPECT_EQ(after.hasAlpha, before.hasAlpha);
    const QImage marked = test::storedPixels(done.value(0).target);
    const QRgb shown = marked.pixel(middle);
    EXPECT_GT(qRed(shown), 245);
    EXPECT_GT(qGreen(shown), 245);
    EXPECT_GT(qBlue(shown), 245);
    EXPECT_EQ(qAlpha(shown), 255);
    EXPECT_EQ(marked.pixel(corner), test::storedPixels(photo).pixel(corner));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MarkedPhotoKind,
    testing::Values(
        KindCase{"Gray8", PhotoModel::Gray, 8, PhotoFormat::Tiff, "public.tiff"},
        KindCase{"Gray16", PhotoModel::Gray, 16, PhotoFormat::Tiff, "public.png"},
        KindCase{"GrayAlpha8", PhotoModel::GrayAlpha, 8, PhotoFormat::Png, "public.png"},
        KindCase{"GrayAlpha16", PhotoModel::GrayAlpha, 16, PhotoFormat::Png, "public.png"},
        KindCase{"Rgb16", PhotoModel::Rgb, 16, PhotoFormat::Tiff, "public.tiff"},
        KindCase{"RgbAlpha8", PhotoModel::RgbAlpha, 8, PhotoFormat::Png, "public.png"},
        KindCase{"RgbAlpha16", PhotoModel::RgbAlpha, 16, PhotoFormat::Png, "public.png"},
        KindCase{"Cmyk8", PhotoModel::Cmyk, 8, PhotoFormat::Tiff, "public.tiff"}
    ),
    brenvaldo::test::CaseName()
);

TEST_F(TextWatermark, OnACmykPhotoShowsTheColorThatWasPicked)
{
    panel.cwFontColor.setColor({.red = 0.6, .green = 0.4, .blue = 0.3}); // a colour that ink has
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .model(PhotoModel::Cmyk)
                              .solid({200, 150, 20, 10})
                              .format(PhotoFormat::Tiff)
                              .write(sources.path(u"a.tif"_s));

    run({photo}, u"public.tiff"_s);

    const QRgb shown = test::storedPixels(done.value(0).target).pixel(middle);
    EXPECT_NEAR(qRed(shown), 153, 4);
    EXPECT_NEAR(qGreen(shown), 102, 4);
    EXPECT_NEAR(qBlue(shown), 76, 4);
}

TEST_F(TextWatermark, OnAGrayPhotoIsAsLightAsTheColorThatWasPicked)
{
    const Components picked{0.8, 0.2, 0.4};
    panel.cwFontColor.setColor({.red = picked[0], .green = picked[1], .blue = picked[2]});
    const auto markOn = [this](const QString& name, const QByteArray& profile) {
        PhotoBuilder builder;
        builder.size(120, 80).model(PhotoModel::Gray).solid({40}).format(PhotoFormat::Png);
        if (!profile.isEmpty())
            builder.iccProfile(profile);
        run({builder.write(sources.path(name))});
        return storedComponents(done.last().target, middle)[0];
    };

    EXPECT_NEAR(markOn(u"plain.png"_s, {}), test::grayOf(picked, test::srgb, 0), 1 / 255.0);
    EXPECT_NEAR(
        markOn(u"profile.png"_s, test::grayProfile()),
        test::grayOf(picked, test::srgb, 1.8),
        1 / 255.0
    );
}

namespace {

struct WideCase
{
    const char* name;
    const test::RgbSpace& space;
    int depth = 8;
    PhotoModel model = PhotoModel::Rgb;
    Components picked{0.8, 0.2, 0.4};

    friend void PrintTo(const WideCase& row, std::ostream* out) { *out << row.name; }
};

class MarkedWidePhoto : public TextWatermark, public testing::WithParamInterface<WideCase>
{
};

} // namespace

TEST_P(MarkedWidePhoto, KeepsItsProfileAndHoldsThePickedColorInItsOwnNumbers)
{
    const WideCase& row = GetParam();
    panel.cwFontColor.setColor({row.picked[0], row.picked[1], row.picked[2]});
    const QByteArray profile = test::profileOf(row.space);
    const QString photo = PhotoBuilder()
                              .size(120, 80)
                              .model(row.model)
                              .depth(row.depth)
                              .solid({40, 80, 120, 255})
                              .iccProfile(profile)
                              .format(PhotoFormat::Png)
                              .write(sources.path(u"a.png"_s));

    run({photo});

    const auto written = test::openedPhoto(done.value(0).target).image();
    ASSERT_TRUE(written.has_value());
    EXPECT_EQ(written->iccProfile(), profile);
    EXPECT_EQ(written->bitsPerComponent(), row.depth);
    EXPECT_EQ(written->hasAlpha(), row.model == PhotoModel::RgbAlpha);
    const Components stored = storedComponents(done.value(0).target, middle);
    const Components expected = test::converted(row.picked, test::srgb, row.space);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(stored[i], expected[i], 1.1 / 255) << i;
    const Components kept = storedComponents(done.value(0).target, corner);
    EXPECT_EQ(kept, storedComponents(photo, corner));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MarkedWidePhoto,
    testing::Values(
        WideCase{.name = "AdobeRgb8", .space = test::adobeRgb},
        WideCase{.name = "AdobeRgb16", .space = test::adobeRgb, .depth = 16},
        WideCase{.name = "AdobeRgbAlpha8", .space = test::adobeRgb, .model = PhotoModel::RgbAlpha},
        WideCase{.name = "AdobeRgbGreen", .space = test::adobeRgb, .picked = {0, 1, 0}},
        WideCase{.name = "AdobeRgbWhite", .space = test::adobeRgb, .picked = {1, 1, 1}},
        WideCase{.name = "DisplayP38", .space = test::displayP3},
        WideCase{.name = "DisplayP316", .space = test::displayP3, .depth = 16},
        WideCase{
            .name = "DisplayP3Alpha16",
            .space = test::displayP3,
            .depth = 16,
            .model = PhotoModel::RgbAlpha},
        WideCase{.name = "DisplayP3Red", .space = test::displayP3, .picked = {1, 0, 0}},
        WideCase{.name = "DisplayP3Gray", .space = test::displayP3, .picked = {0.5, 0.5, 0.5}}
    ),
    brenvaldo::test::CaseName()
);
