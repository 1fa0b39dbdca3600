// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QString>

#include <array>

namespace brenvaldo::gallery {

/// How a text of a page looks: CSS values, written as they stand.
struct TextLook
{
    QString size; ///< such as "medium"
    QString weight; ///< "300" to "900"
    QString color; ///< with its "#"
    QString alignment; ///< "left", "center" or "right"
};

/// A shadow of the stylesheet: numbers of pixels as texts, the colour without "#".
struct ShadowLook
{
    QString x;
    QString y;
    QString blur;
    QString color;
};

/// A line around a picture: pixels as texts, the colour without "#".
struct BorderLook
{
    QString thickness;
    QString color;
    QString radius;
};

/// How a picture shows over the page when it is chosen.
struct LightboxLook
{
    BorderLook border;
    ShadowLook shadow;
    platform::graphics::Color background;
    QString opacity; ///< of the background, from 0 to 1
};

/// What the stylesheet of a gallery is made of. Texts come from the panel and are written as they
/// stand, whatever they are.
struct StylesheetValues
{
    QString fontFamily; ///< a title of the font pop-up
    QString pageBackground; ///< with its "#"
    QString cellBackground; ///< with its "#"
    TextLook title;
    TextLook fileName;
    TextLook caption;
    BorderLook thumbnailBorder;
    ShadowLook thumbnailShadow;
    LightboxLook lightbox;
    std::array<QString, 6> columnWidths; ///< in percent, from wide windows to narrow ones
    int columns = 0; ///< of the grid model
    int cropHeight = 0; ///< of a thumbnail, in pixels
    bool magnifies = false; ///< a thumbnail grows under the pointer
    bool limitsHeights = false; ///< the second thumbnail action: cells have heights too
};

} // namespace brenvaldo::gallery
