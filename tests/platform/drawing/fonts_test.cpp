// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/attributed_text.h>
#include <platform/drawing/fonts.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::drawing;

namespace {

QPainterPath sampleIn(QFont font)
{
    font.setPixelSize(80);
    return AttributedText(u"Rags 12"_qs, {.font = font}).drawing().shape;
}

} // namespace

TEST(Fonts, AreListedOnceByFamilyAndFace)
{
    const QStringList names = installedFontNames();

    EXPECT_TRUE(names.contains(u"DejaVu Sans"_qs));
    EXPECT_TRUE(names.contains(u"DejaVu Sans Bold"_qs));
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

TEST(Fonts, OfFacesAreFoundByName)
{
    EXPECT_EQ(fontNamed(u"DejaVu Sans Mono"_qs).family(), u"DejaVu Sans Mono"_qs);
    EXPECT_NE(sampleIn(fontNamed(u"DejaVu Sans"_qs)), sampleIn(fontNamed(u"DejaVu Serif"_qs)));
    EXPECT_NE(sampleIn(fontNamed(u"DejaVu Sans"_qs)), sampleIn(fontNamed(u"DejaVu Sans Bold"_qs)));
}

TEST(Fonts, ThatAreNotInstalledHaveAStandIn)
{
    EXPECT_FALSE(sampleIn(fontNamed(u"No Such Font"_qs)).isEmpty());
}

TEST(Fonts, HaveTheBoldFaceOfTheirFamily)
{
    for (const QString& family : {u"DejaVu Sans"_qs, u"DejaVu Sans Mono"_qs, u"DejaVu Serif"_qs})
        EXPECT_EQ(
            sampleIn(boldFaceOf(fontNamed(family))), sampleIn(fontNamed(family + u" Bold"_qs))
        ) << family.toStdString();
}

TEST(Fonts, KeepTheirWidthAndSlantWhenTheyGetBold)
{
    const QList<std::pair<QString, QString>> faces{
        {u"DejaVu Sans Condensed"_qs, u"DejaVu Sans Condensed Bold"_qs},
        {u"DejaVu Serif Condensed"_qs, u"DejaVu Serif Condensed Bold"_qs},
        {u"DejaVu Sans Condensed Oblique"_qs, u"DejaVu Sans Condensed Bold Oblique"_qs},
        {u"DejaVu Sans Oblique"_qs, u"DejaVu Sans Bold Oblique"_qs},
        {u"DejaVu Sans ExtraLight"_qs, u"DejaVu Sans Bold"_qs}};
    for (const auto& [plain, bold] : faces) {
        EXPECT_EQ(sampleIn(boldFaceOf(fontNamed(plain))), sampleIn(fontNamed(bold)))
            << plain.toStdString();
        EXPECT_NE(sampleIn(fontNamed(plain)), sampleIn(fontNamed(bold))) << plain.toStdString();
    }
}

TEST(Fonts, ThatAreBoldStayAsTheyAre)
{
    const QFont bold = fontNamed(u"DejaVu Sans Bold"_qs);

    EXPECT_EQ(boldFaceOf(bold), bold);
}
