// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The settings of the screen filters.
struct FilterScreenView : PanelView
{
    FilterScreenView();

    controls::TextField tfFilterColorConvWidth;
    controls::PopUpButton pubFilterColorConvSharpness;
    controls::TextField tfFilterLineScreenAngle;
    controls::TextField tfFilterCenterCircularWidth;
    controls::TextField tfFilterCenterCircularHeight;
    controls::CheckBox cbFilterColorConvMask;
    controls::CheckBox cbFilterColorConvInvert;
};

/// The radius of the blur.
struct FilterGaussianView : PanelView
{
    FilterGaussianView();

    controls::TextField tfFilterBlurRadiusVal;
};

/// The colour of the monochrome filter and of the square canvas.
struct FilterMonochromeView : PanelView
{
    FilterMonochromeView();

    controls::ColorWell cwFilterMonochromeColor;
    controls::TextField tfFilterMonochromeHexColor;
    controls::PopUpButton pubFilterMonochromeIntensity;
};

/// The number of tones that a posterised photo keeps.
struct FilterPosterizeView : PanelView
{
    FilterPosterizeView();

    controls::TextField tfFilterColorConvLevels;
};

/// The strength of the sepia tone.
struct FilterSepiaView : PanelView
{
    FilterSepiaView();

    controls::PopUpButton pubFilterColorConvIntensity;
};

/// Radius and strength of sharpening.
struct FilterUnsharpView : PanelView
{
    FilterUnsharpView();

    controls::TextField tfFilterUnsharpMaskRadius;
    controls::PopUpButton pubFilterUnsharpMaskIntensity;
};

/// Filters: the filter, and its settings in the holder `vwFiltersMainView`.
struct FilterPanel : PanelView
{
    FilterPanel();

    controls::PopUpButton pubFilterSelection;
    controls::Holder vwFiltersMainView;
    FilterScreenView vwFiltersScreenView;
    FilterGaussianView vwFiltersGaussianView;
    FilterMonochromeView vwFiltersMonochromeView;
    FilterPosterizeView vwFiltersPosterizeView;
    FilterSepiaView vwFiltersSepiaView;
    FilterUnsharpView vwFiltersUnsharpView;
};

} // namespace brenvaldo::panels
