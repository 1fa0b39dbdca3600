// SPDX-License-Identifier: GPL-3.0-or-later
#include "panels.h"

#include <algorithm>

namespace brenvaldo::panels {

Panels::Panels()
{
    for (controls::Control* control : window.all())
        add(*control);
    add(vwShowPreview);
    add(vwApplyOn);
    add(vwFileType);
    add(vwMainDestination);
    add(vwResizePhotos);
    add(vwResizePhotos.pubResizeType);
    add(vwResizePhotos.dvVCUiScaleMaxView);
    add(vwResizePhotos.dvVCUiScaleFixView);
    add(vwWatermark);
    add(vwWatermark.tvFileName);
    add(vwWatermark.pubFileNamePhotoProperties);
    add(vwWatermark.cActionsTWMArrayController);
    addEditPanels();
    addFilterViews();
    addFileManagementPanels();
    add(vwHtmlExport);
    add(vwPhotoInfo);
    add(vwPhotoInfo.mTree);
    addSheets();
}

void Panels::addEditPanels()
{
    add(vwAddTint);
    add(vwFraming);
    add(vwRoundings);
    add(vwProfileConversion);
    add(vwCopyFaces);
    add(vwRotatePhotos);
    add(vwFilterPhotos);
    add(vwCropPhotos);
    add(vwCropPhotos.dvVCUiCropWxHView);
    add(vwCropPhotos.dvVCUiCropMinusView);
    add(vwCropPhotos.dvVCUiCropPositionView);
}

void Panels::addSheets()
{
    add(wwPresetsWindow);
    add(wwPresetsWindow.sheet);
    add(wwPresetsWindow.thePresetsData);
    add(wwPresetsWindow.my2ndView);
    add(wwPreferencesWindow);
    add(wwPreferencesWindow.sheet);
    add(wwPhotosAlbumWindow);
    add(wwPhotosAlbumWindow.sheet);
    add(wwInfoWindow);
    add(wwInfoWindow.sheet);
    add(wwApplicationVersionWindow);
    add(wwApplicationVersionWindow.sheet);
}

void Panels::addFilterViews()
{
    add(vwFilterPhotos.vwFiltersScreenView);
    add(vwFilterPhotos.vwFiltersGaussianView);
    add(vwFilterPhotos.vwFiltersMonochromeView);
    add(vwFilterPhotos.vwFiltersPosterizeView);
    add(vwFilterPhotos.vwFiltersSepiaView);
    add(vwFilterPhotos.vwFiltersUnsharpView);
}

void Panels::addFileManagementPanels()
{
    add(vwFileManagementSorting);
    add(vwFileManagementSorting.theApplePhotosData);
    add(vwFileManagementEXIF);
    add(vwFileManagementEXIF.mymMetaLogTableViewController);
    add(vwFileManagementRename);
    add(vwFileManagementConvert);
    add(vwQRBarCode);
}

void Panels::add(const PanelView& view)
{
    m_views.append(&view);
    for (controls::Control* control : view.controls())
        add(*control);
}

void Panels::add(controls::Control& control)
{
    m_controls.append(&control);
    m_controlsByName.insert(control.name(), &control);
    for (const QString& alias : control.aliases())
        m_controlsByName.insert(alias, &control);
}

controls::Control* Panels::control(const QString& name) const
{
    return m_controlsByName.value(name);
}

const PanelView* Panels::view(const QString& name) const
{
    const auto found = std::find_if(m_views.begin(), m_views.end(), [&](const PanelView* view) {
        return view->name() == name;
    });
    return found == m_views.end() ? nullptr : *found;
}

bool Panels::isShown(const PanelView& view) const
{
    if (const auto* sheet = dynamic_cast<const controls::Sheet*>(control(view.name())))
        return sheet->isOpen();
    for (const controls::Control* control : m_controls) {
        const auto* holder = dynamic_cast<const controls::Holder*>(control);
        if (!holder || !holder->views().contains(view.name()))
            continue;
        const auto around
            = std::find_if(m_views.begin(), m_views.end(), [&](const PanelView* other) {
                  return other->controls().contains(control);
              });
        if (around == m_views.end() || isShown(**around))
            return true;
    }
    return false;
}

} // namespace brenvaldo::panels
