// SPDX-License-Identifier: GPL-3.0-or-later
#include "css_create.h"

#include "gallery_icons.h"
#include "gallery_stylesheets.h"
#include "slide_show_stylesheets.h"

#include <files/file_handling.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

using files::cNSFileHandling;

void writeIntoNewFolder(const QString& text, const QString& folder, const QString& name)
{
    cNSFileHandling::hCreateDirectory(folder);
    cNSFileHandling::hAddIconToFile(folder, icon(u"Holmvane_folderIcon2"_s));
    cNSFileHandling::hWritHTMLFile({text, folder + name});
}

} // namespace

void cCssCreate::hCreateCss9(const StylesheetValues& values, const QString& destination)
{
    cNSFileHandling::hWritHTMLFile({tableStylesheet(values), destination + u"DVcss/dvGScss.css"_s});
}

void cCssCreate::hCreateCssGridMod9(const StylesheetValues& values, const QString& destination)
{
    cNSFileHandling::hWritHTMLFile({gridStylesheet(values), destination + u"DVcss/dvGScss.css"_s});
}

void cCssCreate::hCreateSlideShowCss(const SlideShowValues& values, const QString& destination)
{
    writeIntoNewFolder(
        slideShowStylesheet(values), destination + u"DVSlideShowcss/"_s, u"dvpgrSlideshow.css"_s
    );
}

void cCssCreate::hCreateSlideSliderShowCss(
    const SlidingShowValues& values, const QString& destination
)
{
    writeIntoNewFolder(
        slidingShowStylesheet(values), destination + u"DVSlideShowcss/"_s, u"dvpgrSlideshow.css"_s
    );
}

void cCssCreate::hCreateResponsiveGridCss(
    const ResponsiveGridValues& values, const QString& destination
)
{
    writeIntoNewFolder(
        responsiveGridStylesheet(values),
        destination + u"DVResponsiveGridCss/"_s,
        u"dvpgrResponsiveGrid.css"_s
    );
}

} // namespace brenvaldo::gallery
