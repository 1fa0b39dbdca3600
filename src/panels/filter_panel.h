// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The settings of the screen filters.
struct FilterScreenView : PanelView
{
    FilterScreenView();

    controls::TextField tfFilterColorConvWidth{u"tfFilterColorConvWidth"_qs, u"6"_qs};
    controls::PopUpButton pubFilterColorConvSharpness{
        u"pubFilterColorConvSharpness"_qs, intensityTitles(), 6};
    controls::TextField tfFilterLineScreenAngle{u"tfFilterLineScreenAngle"_qs, u"0"_qs};
    controls::TextField tfFilterCenterCircularWidth{u"tfFilterCenterCircularWidth"_qs, u"50"_qs};
    controls::TextField tfFilterCenterCircularHeight{u"tfFilterCenterCircularHeight"_qs, u"50"_qs};
    controls::CheckBox cbFilterColorConvMask{
        u"cbFilterColorConvMask"_qs, u"Keep the photo's colours"_qs};
    controls::CheckBox cbFilterColorConvInvert{u"cbFilterColorConvInvert"_qs, u"Invert"_qs};
};

/// The radius of the blur.
struct FilterGaussianView : PanelView
{
    FilterGaussianView();

    controls::TextField tfFilterBlurRadiusVal{u"tfFilterBlurRadiusVal"_qs, u"10"_qs};
};

/// The colour of the monochrome filter and of the square canvas.
struct FilterMonochromeView : PanelView
{
    FilterMonochromeView();

    controls::ColorWell cwFilterMonochromeColor{u"cwFilterMonochromeColor"_qs};
    controls::TextField tfFilterMonochromeHexColor{u"tfFilterMonochromeHexColor"_qs, u"000000"_qs};
    controls::PopUpButton pubFilterMonochromeIntensity{
        u"pubFilterMonochromeIntensity"_qs, intensityTitles(), 9};
};

/// The number of tones that a posterised photo keeps.
struct FilterPosterizeView : PanelView
{
    FilterPosterizeView();

    controls::TextField tfFilterColorConvLevels{u"tfFilterColorConvLevels"_qs, u"6"_qs};
};

/// The strength of the sepia tone.
struct FilterSepiaView : PanelView
{
    FilterSepiaView();

    controls::PopUpButton pubFilterColorConvIntensity{
        u"pubFilterColorConvIntensity"_qs, intensityTitles(), 9};
};

/// Radius and strength of sharpening.
struct FilterUnsharpView : PanelView
{
    FilterUnsharpView();

    controls::TextField tfFilterUnsharpMaskRadius{u"tfFilterUnsharpMaskRadius"_qs, u"2.5"_qs};
    controls::PopUpButton pubFilterUnsharpMaskIntensity{
        u"pubFilterUnsharpMaskIntensity"_qs, intensityTitles(), 4};
};

/// Filters: the filter, and its settings in the holder `vwFiltersMainView`.
struct FilterPanel : PanelView
{
    FilterPanel();

    controls::PopUpButton pubFilterSelection{
        u"pubFilterSelection"_qs,
        {
            u"Noir"_qs,
            u"Mono"_qs,
            u"Chrome"_qs,
            u"Circular screen"_qs,
            u"Dots in three tones, light"_qs,
            u"Dots in three tones, dark"_qs,
            u"Dot screen"_qs,
            u"Fabric, two threads"_qs,
            u"Nine rings"_qs,
            u"Fabric, eleven threads"_qs,
            u"Fabric, eight threads"_qs,
            u"Blur"_qs,
            u"Square canvas"_qs,
            u"Square canvas with frame"_qs,
            u"Line screen"_qs,
            u"Monochrome"_qs,
            u"Invert"_qs,
            u"Posterise"_qs,
            u"Sepia"_qs,
            u"Lines in three tones, light"_qs,
            u"Lines in three tones, dark"_qs,
            u"Sharpen"_qs,
            u"Process"_qs,
            u"Fade"_qs,
            u"Instant"_qs,
            u"Transfer"_qs,
        }};
    controls::Holder vwFiltersMainView{u"vwFiltersMainView"_qs};
    FilterScreenView vwFiltersScreenView;
    FilterGaussianView vwFiltersGaussianView;
    FilterMonochromeView vwFiltersMonochromeView;
    FilterPosterizeView vwFiltersPosterizeView;
    FilterSepiaView vwFiltersSepiaView;
    FilterUnsharpView vwFiltersUnsharpView;
};

} // namespace brenvaldo::panels
