// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The settings of the screen filters.
struct FilterScreenView : PanelView
{
    FilterScreenView();

    controls::TextField tfFilterColorConvWidth{u"tfFilterColorConvWidth"_s, u"6"_s};
    controls::PopUpButton pubFilterColorConvSharpness{
        u"pubFilterColorConvSharpness"_s, intensityTitles(), 6};
    controls::TextField tfFilterLineScreenAngle{u"tfFilterLineScreenAngle"_s, u"0"_s};
    controls::TextField tfFilterCenterCircularWidth{u"tfFilterCenterCircularWidth"_s, u"50"_s};
    controls::TextField tfFilterCenterCircularHeight{u"tfFilterCenterCircularHeight"_s, u"50"_s};
    controls::CheckBox cbFilterColorConvMask{
        u"cbFilterColorConvMask"_s, u"Keep the photo's colours"_s};
    controls::CheckBox cbFilterColorConvInvert{u"cbFilterColorConvInvert"_s, u"Invert"_s};
};

/// The radius of the blur.
struct FilterGaussianView : PanelView
{
    FilterGaussianView();

    controls::TextField tfFilterBlurRadiusVal{u"tfFilterBlurRadiusVal"_s, u"10"_s};
};

/// The colour of the monochrome filter and of the square canvas.
struct FilterMonochromeView : PanelView
{
    FilterMonochromeView();

    controls::ColorWell cwFilterMonochromeColor{u"cwFilterMonochromeColor"_s};
    controls::TextField tfFilterMonochromeHexColor{u"tfFilterMonochromeHexColor"_s, u"000000"_s};
    controls::PopUpButton pubFilterMonochromeIntensity{
        u"pubFilterMonochromeIntensity"_s, intensityTitles(), 9};
};

/// The number of tones that a posterised photo keeps.
struct FilterPosterizeView : PanelView
{
    FilterPosterizeView();

    controls::TextField tfFilterColorConvLevels{u"tfFilterColorConvLevels"_s, u"6"_s};
};

/// The strength of the sepia tone.
struct FilterSepiaView : PanelView
{
    FilterSepiaView();

    controls::PopUpButton pubFilterColorConvIntensity{
        u"pubFilterColorConvIntensity"_s, intensityTitles(), 9};
};

/// Radius and strength of sharpening.
struct FilterUnsharpView : PanelView
{
    FilterUnsharpView();

    controls::TextField tfFilterUnsharpMaskRadius{u"tfFilterUnsharpMaskRadius"_s, u"2.5"_s};
    controls::PopUpButton pubFilterUnsharpMaskIntensity{
        u"pubFilterUnsharpMaskIntensity"_s, intensityTitles(), 4};
};

/// Filters: the filter, and its settings in the holder `vwFiltersMainView`.
struct FilterPanel : PanelView
{
    FilterPanel();

    controls::PopUpButton pubFilterSelection{
        u"pubFilterSelection"_s,
        {
            u"Noir"_s,
            u"Mono"_s,
            u"Chrome"_s,
            u"Circular screen"_s,
            u"Dots in three tones, light"_s,
            u"Dots in three tones, dark"_s,
            u"Dot screen"_s,
            u"Fabric, two threads"_s,
            u"Nine rings"_s,
            u"Fabric, eleven threads"_s,
            u"Fabric, eight threads"_s,
            u"Blur"_s,
            u"Square canvas"_s,
            u"Square canvas with frame"_s,
            u"Line screen"_s,
            u"Monochrome"_s,
            u"Invert"_s,
            u"Posterise"_s,
            u"Sepia"_s,
            u"Lines in three tones, light"_s,
            u"Lines in three tones, dark"_s,
            u"Sharpen"_s,
            u"Process"_s,
            u"Fade"_s,
            u"Instant"_s,
            u"Transfer"_s,
        }};
    controls::Holder vwFiltersMainView{u"vwFiltersMainView"_s};
    FilterScreenView vwFiltersScreenView;
    FilterGaussianView vwFiltersGaussianView;
    FilterMonochromeView vwFiltersMonochromeView;
    FilterPosterizeView vwFiltersPosterizeView;
    FilterSepiaView vwFiltersSepiaView;
    FilterUnsharpView vwFiltersUnsharpView;
};

} // namespace brenvaldo::panels
