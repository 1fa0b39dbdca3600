// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/slide_show_stylesheets.h>

#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

namespace {

SlideShowValues show()
{
    return {
        .fontFamily = u"Roboto"_s,
        .width = u"640"_s,
        .height = u"480"_s,
        .title = {u"32px"_s, u"700"_s, u"#A1A1A1"_s, u"center"_s},
        .caption = {u"12px"_s, u"300"_s, u"#B2B2B2"_s, u"right"_s},
        .pageBackground = u"#C3C3C3"_s,
        .castsShadow = true,
        .pattern = {.shown = true, .file = u"dots.png"_s, .scale = u"25"_s, .opacity = u"0.5"_s},
        .dotColor = u"D4D4D4"_s};
}

ResponsiveGridValues grid()
{
    return {
        .fontFamily = u"Kanit"_s,
        .title = {u"32px"_s, u"700"_s, u"#A1A1A1"_s, u"center"_s},
        .caption = {u"12px"_s, u"300"_s, u"#B2B2B2"_s, u"right"_s},
        .pageBackground = u"#C3C3C3"_s,
        .pattern = {.shown = false, .file = u"dots.png"_s, .scale = u"25"_s, .opacity = u"0.5"_s},
        .columnSize = u"200"_s,
        .rowSize = u"150"_s,
        .lightboxBackground = {.red = 1, .green = 0, .blue = 1},
        .lightboxOpacity = u"0.75"_s};
}

} // namespace

TEST(SlideShowStylesheet, BeginsWithItsContainerBodyAndPattern)
{
    EXPECT_TRUE(slideShowStylesheet(show()).startsWith(
        u".dvSsSlideshow-container {background-color: #000000;\nbox-shadow: 3px 3px 10px black;\n"
        "max-width: 640px;\nposition: relative;\nmargin: auto;\nz-index: 2;\n}\n\n"
        ".dvSsSlideshow-container::after {\ncontent: \"\";\ntop: 0;\nleft: 0;\nposition: fixed;\n"
        "z-index: -10;\nwidth: 100%;\nheight: 100%;\n}\n\n"
        "body, html {\nbackground-color:#C3C3C3;\n}\n\n"
        ".dvSsPatternBox::before {\ncontent: \"\";\ntop: 0;\nleft: 0;\nposition: absolute;\n"
        "z-index: 0;\ndisplay: block;\nwidth: 100%;\nheight: 100%;\n"
        "background-image: url(../DVpgPatterns/dots.png);\nbackground-repeat: repeat;\n"
        "background-size: 25%;\nopacity: 0.5;\n}\n\n.dvSsSlides {\ndisplay: none;\n}\n\n"_s
    ));
}

TEST(SlideShowStylesheet, EndsWithItsTexts)
{
    const QString css = slideShowStylesheet(show());
    EXPECT_TRUE(css.contains(
        u".dvSsText {\nfont-family: 'Roboto', sans-serif;\nfont-weight:300;\ncolor:#B2B2B2;\n"
        "font-size:12px;\npadding: 8px 12px;\nposition: absolute;\nbottom: 8px;\nwidth: 100%;\n"
        "text-align:right;\nz-index: 2;\n}\n\n.dvSsNumbertext {\n"_s
    ));
    EXPECT_TRUE(css.endsWith(
        u"@-webkit-keyframes fade {\nfrom {opacity: .4}\nto {opacity: 1}\n}\n\n"
        "@keyframes fade {\nfrom {opacity: .4}\nto {opacity: 1}\n}\n\n"
        ".dvSstitle {\nfont-family: 'Roboto', sans-serif;\nfont-size:32px;\nfont-weight:700;\n"
        "color:#A1A1A1;\ntext-align:center;\nmax-width: 640px;\nposition: relative;\n"
        "margin: auto;\nmargin-top: 20px;\nmargin-bottom: 20px;\nz-index: 10;\n}\n\n"_s
    ));
}

TEST(SlideShowStylesheet, LeavesOutShadowPatternAndDots)
{
    SlideShowValues plain = show();
    plain.castsShadow = false;
    plain.pattern.shown = false;
    plain.dotColor = u"0"_s;
    const QString css = slideShowStylesheet(plain);
    EXPECT_FALSE(css.contains(u"box-shadow"_s));
    EXPECT_FALSE(css.contains(u"dvSsPatternBox"_s));
    EXPECT_TRUE(css.contains(u"margin: 0 2px;\nbackground-color: #0;\nz-index: 10;\n"
                             "transition: background-color 0.6s ease;\n"_s));
    EXPECT_TRUE(slideShowStylesheet(show()).contains(u"z-index: 10;\ndisplay: inline-block;\n"_s));
}

TEST(SlidingShowStylesheet, SlidesOneImageAfterTheOther)
{
    const QString css = slidingShowStylesheet(
        {.show = show(), .images = {u"a"_s, u"b"_s, u"c"_s}, .secondsPerImage = 4}
    );
    EXPECT_TRUE(css.startsWith(
        u"@charset \"UTF-8\";\n* {\nbox-sizing: border-box;\n}\n\n"
        ".dvSsSlideshow-container {box-shadow: 3px 3px 10px black;\nwidth: 640px;\n"
        "height: 480px;\nposition: relative;\noverflow: hidden;\nmargin: auto;\n}\n\n"_s
    ));
    EXPECT_TRUE(css.endsWith(
        u".slideProp {\nposition: absolute;\ntop: 0;\nleft: 0;\nz-index: 3;\ndisplay: flex;\n"
        "align-items: center;\nwidth: 100%;\nheight: 100%;\ntransform: translateX( 640px );\n"
        "background-image: url( ../DVSsImages/a.jpeg);\n"
        "animation: opaqTransition 16s cubic-bezier(0, 0, 0, 0.97) infinite;\n}\n\n"
        ".slide1 {\nz-index: 2;\nbackground-image: url( ../DVSsImages/b.jpeg);\n"
        "animation-delay: 4s;\n}\n\n"
        ".slide2 {\nz-index: 1;\nbackground-image: url( ../DVSsImages/c.jpeg);\n"
        "animation-delay: 8s;\n}\n\n"
        "@keyframes opaqTransition {\n3% { transform: translateX( 0 ); }\n"
        "25% { transform: translateX( 0 ); }\n28% { transform: translateX( -640px ); }\n"
        "100% { transform: translateX( -640px ); }\n}\n\n"_s
    ));
    EXPECT_TRUE(css.contains(u"text-align:right;\nz-index:2;\n}"_s));
    EXPECT_TRUE(css.contains(u"margin-bottom: 20px;\nz-index:10;\n}"_s));
}

TEST(SlidingShowStylesheet, HasNoSlidesWithoutImages)
{
    const QString css = slidingShowStylesheet({.show = show(), .images = {}, .secondsPerImage = 4});
    EXPECT_FALSE(css.contains(u".slide"_s));
    EXPECT_TRUE(css.contains(u"@keyframes opaqTransition"_s));
}

TEST(ResponsiveGridStylesheet, LaysCellsOfThreeSizes)
{
    const QString css = responsiveGridStylesheet(grid());
    EXPECT_TRUE(css.startsWith(
        u".dvpgrResponsiveGrid-container {\nmax-width: 1200px;\nmargin: 0 auto;\n}\n\n"
        ".dvpgrResponsiveGrid-container::after {\ncontent: \"\";\ntop: 0;\nleft: 0;\n"
        "position: fixed;\nz-index: -1;\nwidth: 100%;\nheight: 100%;\n"
        "background-color:#C3C3C3;}\n\n"
        ".dvpgrResponsiveGrid-container::before {\n"
        "background-image: url(../DVpgPatterns/dots.png);\nbackground-size: 25%;\n"
        "opacity: 0.5;\n}\n\n"_s
    ));
    EXPECT_TRUE(css.contains(
        u".dvpgrGrid {\ndisplay: grid;\n"
        "grid-template-columns: repeat(auto-fill, minmax(200px, 1fr));\n"
        "grid-template-rows: repeat(auto-fill, minmax(150px, 1fr));\ngrid-gap: 6px;\n"
        "grid-auto-flow: row dense;\n}\n\n.dvpgrImage {\nposition: relative;\n}\n\n"
        ".dvpgrImageVertical {\nposition: relative;\ngrid-row: span 2;\ngrid-column: span 2;\n}\n\n"
        ".dvpgrImageVertical, .dvpgrImageVertical img {\nwidth: 100%;\nheight: 100%;\n}\n\n"
        ".dvpgrImageVertical img {\nobject-fit: cover;\n}\n\n"
        ".dvpgrImage4 {\nposition: relative;\ngrid-row: span 3;\ngrid-column: span 3;\n}\n\n"
        ".dvpgrImage4, .dvpgrImage4 img {\nwidth: 100%;\nheight: 100%;\n}\n\n"_s
    ));
}

TEST(ResponsiveGridStylesheet, HasALightboxOfItsOwn)
{
    const QString css = responsiveGridStylesheet(grid());
    EXPECT_TRUE(css.contains(u"rgba(255.000000,0.000000,255.000000,0.75)"_s));
    EXPECT_TRUE(
        css.contains(u"border: 4 px solid #000000;\nbox-shadow: 10px 10px 10px #000000;\n}\n"_s)
    );
    EXPECT_TRUE(css.contains(u"width: 100%;\ntext-align: right;\nz-index: 9998;\n"_s));
    EXPECT_TRUE(css.contains(u"padding: 10px;\nfont-weight:300;\ncolor:#B2B2B2;\nfont-size:12px;\n"
                             "font-family: 'Kanit', sans-serif;\n}\n"_s));
}

TEST(ResponsiveGridStylesheet, MagnifiesByEitherFlag)
{
    EXPECT_FALSE(responsiveGridStylesheet(grid()).contains(u"scale(1.5)"_s));
    ResponsiveGridValues first = grid();
    first.magnifies = true;
    ResponsiveGridValues second = grid();
    second.magnifiesToo = true;
    for (const ResponsiveGridValues& values : {first, second}) {
        const QString css = responsiveGridStylesheet(values);
        EXPECT_TRUE(css.contains(u".dvpgrImage img:hover {\ntransform: scale(1.5);\n"_s));
        EXPECT_TRUE(css.contains(u".dvpgrImage4 img:hover {\ntransform: scale(1.5);\n"_s));
        EXPECT_TRUE(css.contains(u".dvpgrImage4 img {\nobject-fit: cover;\n"_s));
    }
}
