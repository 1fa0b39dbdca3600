// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stylesheet_values.h"

#include <QStringList>

namespace brenvaldo::gallery {

/// A picture that repeats behind a page; its file stands in "DVpgPatterns".
struct PatternLook
{
    bool shown = false;
    QString file;
    QString scale; ///< in percent
    QString opacity; ///< from 0 to 1
};

/// What the stylesheet of a slide show with buttons and dots is made of.
struct SlideShowValues
{
    QString fontFamily; ///< a title of the font pop-up
    QString width; ///< in pixels
    QString height; ///< in pixels; of the sliding show only
    TextLook title;
    TextLook caption;
    QString pageBackground; ///< with its "#"
    bool castsShadow = false;
    PatternLook pattern;
    QString dotColor; ///< without "#"; "0" leaves the dots without a place of their own
};

/// The same for a show that slides by itself.
struct SlidingShowValues
{
    SlideShowValues show;
    QStringList images; ///< names in "DVSsImages", without ".jpeg"
    int secondsPerImage = 0;
};

/// What the stylesheet of the dense grid is made of.
struct ResponsiveGridValues
{
    QString fontFamily; ///< a title of the font pop-up
    TextLook title;
    TextLook caption;
    QString pageBackground; ///< with its "#"
    bool magnifies = false;
    bool magnifiesToo = false; ///< either of the two is enough
    PatternLook pattern; ///< always shown
    QString columnSize; ///< smallest width of a cell in pixels
    QString rowSize; ///< smallest height of a cell in pixels
    platform::graphics::Color lightboxBackground;
    QString lightboxOpacity; ///< from 0 to 1
};

} // namespace brenvaldo::gallery
