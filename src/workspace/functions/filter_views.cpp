// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/gui_controls.h>

namespace brenvaldo::workspace {

namespace {

/// The settings that a filter has; its view and the fields of it that can be used.
struct FilterSettings
{
    enum class View { None, Screen, Gaussian, Monochrome, Posterize, Sepia, Unsharp };

    View view = View::None;
    bool usesCentre = false;
    bool usesAngle = false;
    bool usesIntensity = false;
};

FilterSettings settingsOfFilter(int number)
{
    using View = FilterSettings::View;
    switch (number) {
    case 3:
        return {.view = View::Screen, .usesCentre = true};
    case 4:
    case 5:
    case 6:
    case 7:
    case 10:
    case 14:
    case 19:
    case 20:
        return {.view = View::Screen, .usesAngle = true};
    case 8:
    case 9:
        return {.view = View::Screen};
    case 11:
        return {.view = View::Gaussian};
    case 12:
    case 13:
        return {.view = View::Monochrome};
    case 15:
        return {.view = View::Monochrome, .usesIntensity = true};
    case 17:
        return {.view = View::Posterize};
    case 18:
        return {.view = View::Sepia};
    case 21:
        return {.view = View::Unsharp};
    default:
        return {};
    }
}

const panels::PanelView* viewOf(const panels::FilterPanel& panel, FilterSettings::View view)
{
    switch (view) {
    case FilterSettings::View::None:
        return nullptr;
    case FilterSettings::View::Screen:
        return &panel.vwFiltersScreenView;
    case FilterSettings::View::Gaussian:
        return &panel.vwFiltersGaussianView;
    case FilterSettings::View::Monochrome:
        return &panel.vwFiltersMonochromeView;
    case FilterSettings::View::Posterize:
        return &panel.vwFiltersPosterizeView;
    case FilterSettings::View::Sepia:
        return &panel.vwFiltersSepiaView;
    case FilterSettings::View::Unsharp:
        return &panel.vwFiltersUnsharpView;
    }
    return nullptr;
}

} // namespace

void cGUIcontrols::onClickPubFilterType()
{
    panels::FilterPanel& panel = m_panels.vwFilterPhotos;
    const FilterSettings settings
        = settingsOfFilter(panel.pubFilterSelection.indexOfSelectedItem());
    if (const panels::PanelView* view = viewOf(panel, settings.view))
        panel.vwFiltersMainView.replaceViews(view->name());
    else
        panel.vwFiltersMainView.removeAllViews();
    panels::FilterScreenView& screen = panel.vwFiltersScreenView;
    screen.tfFilterCenterCircularWidth.setEnabled(settings.usesCentre);
    screen.tfFilterCenterCircularHeight.setEnabled(settings.usesCentre);
    screen.tfFilterLineScreenAngle.setEnabled(settings.usesAngle);
    panel.vwFiltersMonochromeView.pubFilterMonochromeIntensity.setEnabled(settings.usesIntensity);
    m_collectionView.callForPreview();
}

} // namespace brenvaldo::workspace
