// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/attributed_text.h>
#include <platform/drawing/fonts.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::drawing;

namespace {

QPainterPath sampleIn(QFont font)
{
    font.setPixelSize(80);
    return AttributedText(u"Rags 12"_s, {.font = font}).drawing().shape;
}

} // namespace

TEST(Fonts, AreListedOnceByFamilyAndFace)
{
    const QStringList names = installedFontNames();

    EXPECT_TRUE(names.contains(u"DejaVu Sans"_s));
    EXPECT_TRUE(names.contains(u"DejaVu Sans Bold"_s));
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

TEST(Fonts, OfFacesAreFoundByName)
{
    EXPECT_EQ(fontNamed(u"DejaVu Sans Mono"_s).family(), u"DejaVu Sans Mono"_s);
    EXPECT_NE(sampleIn(fontNamed(u"DejaVu Sans"_s)), sampleIn(fontNamed(u"DejaVu Serif"_s)));
    EXPECT_NE(sampleIn(fontNamed(u"DejaVu Sans"_s)), sampleIn(fontNamed(u"DejaVu Sans Bold"_s)));
}

TEST(Fonts, ThatAreNotInstalledHaveAStandIn)
{
    EXPECT_FALSE(sampleIn(fontNamed(u"No Such Font"_s)).isEmpty());
}

TEST(Fonts, HaveTheBoldFaceOfTheirFamily)
{
    for (const QString& family : {u"DejaVu Sans"_s, u"DejaVu Sans Mono"_s, u"DejaVu Serif"_s})
        EXPECT_EQ(sampleIn(boldFaceOf(fontNamed(family))), sampleIn(fontNamed(family + u" Bold"_s)))
            << family.toStdString();
}

TEST(Fonts, KeepTheirWidthAndSlantWhenTheyGetBold)
{
    const QList<std::pair<QString, QString>> faces{
        {u"DejaVu Sans Condensed"_s, u"DejaVu Sans Condensed Bold"_s},
        {u"DejaVu Serif Condensed"_s, u"DejaVu Serif Condensed Bold"_s},
        {u"DejaVu Sans Condensed Oblique"_s, u"DejaVu Sans Condensed Bold Oblique"_s},
        {u"DejaVu Sans Oblique"_s, u"DejaVu Sans Bold Oblique"_s},
        {u"DejaVu Sans ExtraLight"_s, u"DejaVu Sans Bold"_s}};
    for (const auto& [plain, bold] : faces) {
        EXPECT_EQ(sampleIn(boldFaceOf(fontNamed(plain))), sampleIn(fontNamed(bold)))
            << plain.toStdString();
        EXPECT_NE(sampleIn(fontNamed(plain)), sampleIn(fontNamed(bold))) << plain.toStdString();
    }
}

TEST(Fonts, ThatAreBoldStayAsTheyAre)
{
    const QFont bold = fontNamed(u"DejaVu Sans Bold"_s);

    EXPECT_EQ(boldFaceOf(bold), bold);
}
