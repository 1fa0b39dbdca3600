// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/gallery_stylesheets.h>

#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <QFile>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

namespace {

/// A text that was written by hand, not by the program.
QString expectedText(const QString& name)
{
    QFile file(QStringLiteral(BRENVALDO_GALLERY_TEXTS) + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Each value is another one.
StylesheetValues values()
{
    return {
        .fontFamily = u"Exo 2"_s,
        .pageBackground = u"#C0FF01"_s,
        .cellBackground = u"#C0FF02"_s,
        .title = {u"48px"_s, u"700"_s, u"#C0FF03"_s, u"center"_s},
        .fileName = {u"18px"_s, u"400"_s, u"#C0FF04"_s, u"right"_s},
        .caption = {u"11px"_s, u"300"_s, u"#C0FF05"_s, u"left"_s},
        .thumbnailBorder = {u"11"_s, u"C0FF06"_s, u"12"_s},
        .thumbnailShadow = {.x = u"14"_s, .y = u"15"_s, .blur = u"13"_s, .color = u"C0FF07"_s},
        .lightbox
        = {.border = {u"16"_s, u"C0FF08"_s, u"17"_s},
           .shadow = {.x = u"19"_s, .y = u"20"_s, .blur = u"18"_s, .color = u"C0FF09"_s},
           .background = {.red = 1, .green = 128.0 / 255, .blue = 0},
           .opacity = u"0.45"_s},
        .columnWidths
        = {u"14.000000"_s,
           u"17.500000"_s,
           u"26.250000"_s,
           u"45.937500"_s,
           u"91.875000"_s,
           u"100"_s},
        .columns = 6,
        .cropHeight = 202,
        .magnifies = false,
        .limitsHeights = false};
}

} // namespace

TEST(TableStylesheet, IsThisText)
{
    StylesheetValues all = values();
    all.magnifies = true;
    all.limitsHeights = true;
    EXPECT_EQ(tableStylesheet(all), expectedText(u"table.css"_s));
}

TEST(GridStylesheet, IsThisText)
{
    EXPECT_EQ(gridStylesheet(values()), expectedText(u"grid.css"_s));
}

TEST(TableStylesheet, FillsTheWidthWhereThumbnailsDoNotGrow)
{
    const QString css = tableStylesheet(values());
    EXPECT_TRUE(css.contains(
        u".dvPGimg img {\nfont-family: 'Exo 2', sans-serif;\nwidth: 100%;\nheight: auto;\n"
        "border:11px solid #C0FF06;\nbox-shadow: 14px 15px 13px #C0FF07;\n}\n\n"
        "div.dvPGphotoname {\n"_s
    ));
}

TEST(TableStylesheet, BearsNoHeightsForTheFirstAction)
{
    const QString css = tableStylesheet(values());
    EXPECT_TRUE(css.contains(u"width: 24.99999%;\n}\n"_s));
    EXPECT_TRUE(css.contains(u"width: 14.000000%;\nmargin: 1% 0;\n"_s));
    EXPECT_TRUE(css.contains(u"width: 17.500000%;\nmargin: 1% 0;\n"_s));
    EXPECT_TRUE(css.contains(u"width: 100%;\n\ncontent"_s));
}

TEST(TableStylesheet, LeavesTheBorderOutWithoutAThickness)
{
    for (const QString& thickness : {u"0"_s, u""_s}) {
        StylesheetValues plain = values();
        plain.thumbnailBorder.thickness = thickness;
        const QString css = tableStylesheet(plain);
        EXPECT_FALSE(css.contains(u"solid #C0FF06"_s));
        EXPECT_EQ(css.count(u"box-shadow: 14px 15px 13px #C0FF07;"_s), 1);
    }
}

TEST(TableStylesheet, FillsCellsWithAColourOnly)
{
    StylesheetValues empty = values();
    empty.thumbnailBorder.color = QString();
    EXPECT_TRUE(
        tableStylesheet(empty).contains(u".dvPGimg {\nfont-family: 'Exo 2', sans-serif;\n}\n\n"_s)
    );
}

TEST(GridStylesheet, GrowsWithoutAFilledCell)
{
    StylesheetValues growing = values();
    growing.magnifies = true;
    const QString css = gridStylesheet(growing);
    EXPECT_TRUE(css.contains(
        u"align-items: center;\n}\n\n\n.dvPGimg img {\nfont-family: 'Exo 2', sans-serif;\n"
        "border:11px solid #C0FF06;\nbox-shadow: 14px 15px 13px #C0FF07;\n"
        "object-fit: cover;\nopacity: 1;\ntransition: 0.5s;\n-webkit-transition: 0.3s;\n"
        "-moz-transition: 0.3s;\n}\n\n.dvPGimg img:hover {\ntransform: scale(1.5);\n"_s
    ));
    EXPECT_FALSE(css.contains(u"background-color:C0FF06;"_s));
}

TEST(GridStylesheet, BearsOneHeightForTheOtherAction)
{
    StylesheetValues limited = values();
    limited.limitsHeights = true;
    const QString css = gridStylesheet(limited);
    EXPECT_EQ(css.count(u"height: 24.99999%;"_s), 1);
    EXPECT_FALSE(css.contains(u"14.000000"_s));
}

TEST(GridStylesheet, CountsItsColumnsByTruncatedDivisions)
{
    const auto columnsOf = [](int columns) {
        StylesheetValues each = values();
        each.columns = columns;
        QStringList counts;
        for (const QString& part : gridStylesheet(each).split(u"repeat("_s).mid(1))
            counts.append(part.section(u',', 0, 0));
        return counts.join(u' ');
    };
    EXPECT_EQ(columnsOf(1), u"1 1 1 1 1"_s);
    EXPECT_EQ(columnsOf(2), u"0 1 2 2 2"_s);
    EXPECT_EQ(columnsOf(4), u"2 2 3 4 4"_s);
    EXPECT_EQ(columnsOf(7), u"3 4 6 6 7"_s);
    EXPECT_EQ(columnsOf(20), u"6 10 15 17 20"_s);
}
