// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "slide_show_values.h"
#include "stylesheet_values.h"

#include <QString>

namespace brenvaldo::gallery {

/// The stylesheets of web galleries: one file a gallery, the pages only bear the class names.
///
/// Each writer takes the folder of the gallery, which ends in "/".
class cCssCreate
{
public:
    /// The table model: "DVcss/dvGScss.css".
    static void hCreateCss9(const StylesheetValues& values, const QString& destination);

    /// The grid model: the same file.
    static void hCreateCssGridMod9(const StylesheetValues& values, const QString& destination);

    /// A show with buttons and dots: "DVSlideShowcss/dvpgrSlideshow.css".
    static void hCreateSlideShowCss(const SlideShowValues& values, const QString& destination);

    /// A show that runs by itself: the same file.
    static void
    hCreateSlideSliderShowCss(const SlidingShowValues& values, const QString& destination);

    /// A dense grid with cells of three sizes: "DVResponsiveGridCss/dvpgrResponsiveGrid.css".
    static void
    hCreateResponsiveGridCss(const ResponsiveGridValues& values, const QString& destination);
};

} // namespace brenvaldo::gallery
