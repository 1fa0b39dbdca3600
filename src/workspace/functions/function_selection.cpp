// SPDX-License-Identifier: GPL-3.0-or-later
#include "selected_function.h"
#include <platform/foundation/literals.h>
#include <workspace/gui_controls.h>

#include "function_id.h"

namespace brenvaldo::workspace {

namespace {

void change(controls::Holder& holder, HolderChange change, const panels::PanelView& view)
{
    switch (change) {
    case HolderChange::LeaveAsItWas:
        return;
    case HolderChange::Empty:
        holder.removeAllViews();
        return;
    case HolderChange::Fill:
        holder.replaceViews(view.name());
        return;
    }
}

void store(const QString& function) { cSelectedFunction::sharedModel().select(function); }

} // namespace

void cGUIcontrols::hSetInitialView()
{
    store(functionId::textWM);
    pressSection(m_window.btnEditPhoto);
    m_window.dvVCUiMainPropertySelect.replaceViews(m_window.pubEditPhoto.name());
    applyHolders(m_functions.at(Section::EditPhoto, 0)->holders);
    applyPresetButtons(PresetButtons::Show);
}

void cGUIcontrols::hEditPhotoClicked()
{
    showSection(m_window.pubEditPhoto);
    pressSection(m_window.btnEditPhoto);
    hGetMainEditFunction();
}

void cGUIcontrols::hFileManagementClicked()
{
    m_window.dvVCUiMainPropertyView.removeAllViews();
    showSection(m_window.pubFileManagementSelect);
    pressSection(m_window.btnFileManagement);
    hGetMainFileManagementFunction();
}

void cGUIcontrols::hExportHTMLClicked()
{
    pressSection(m_window.btnExportHtml);
    m_window.dvVCUiMainPropertySelect.removeAllViews();
    const Function* gallery = m_functions.at(Section::Gallery, 0);
    applyHolders(gallery->holders);
    store(gallery->id);
    applyPresetButtons(gallery->presetButtons);
    hChooseHTMLExportTemplate();
}

void cGUIcontrols::showSection(controls::PopUpButton& functions)
{
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    m_window.dvVCUiMainPropertySelect.replaceViews(functions.name());
}

void cGUIcontrols::pressSection(controls::Button& pressed)
{
    for (controls::Button* section :
         {&m_window.btnEditPhoto, &m_window.btnFileManagement, &m_window.btnExportHtml})
        section->setImage(section == &pressed ? u"SelectMainTabView1.png"_s : u"bgBlue.png"_s);
}

void cGUIcontrols::hChooseMainEditFunction()
{
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    hGetMainEditFunction();
}

void cGUIcontrols::hChooseMainFileManagementFunction() { hGetMainFileManagementFunction(); }

void cGUIcontrols::hChooseHTMLExportTemplate()
{
    m_collectionView.callForTemplatePreview();
    if (m_neighbours.hLoadTemplatePreset)
        m_neighbours.hLoadTemplatePreset(
            m_panels.vwHtmlExport.pubPhotoGalleryModel.indexOfSelectedItem()
        );
}

void cGUIcontrols::hGetMainEditFunction()
{
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    const int index = m_window.pubEditPhoto.indexOfSelectedItem();
    if (const Function* function = m_functions.chosenAt(Section::EditPhoto, index, m_panels)) {
        store(function->id);
        m_collectionView.callForPreview();
        applyHolders(function->holders);
        if (function->whenShown)
            function->whenShown(m_subsystems);
    }
    applyPresetButtons(PresetButtons::Show);
}

void cGUIcontrols::hGetMainFileManagementFunction()
{
    const int index = m_window.pubFileManagementSelect.indexOfSelectedItem();
    const Function* function = m_functions.chosenAt(Section::FileManagement, index, m_panels);
    if (!function)
        return;
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    store(function->id);
    m_collectionView.callForPreview();
    applyHolders(function->holders);
    applyPresetButtons(function->presetButtons);
}

void cGUIcontrols::tabViewdidSelectTabViewItem()
{
    const Function* function = m_functions.shownAt(Section::FileManagement, 0, m_panels);
    if (!function)
        return;
    change(
        m_window.dvVCUiMainDestinationPropertyView,
        function->holders.destination,
        m_panels.vwMainDestination
    );
    store(function->id);
}

void cGUIcontrols::applyHolders(const HolderPlan& plan)
{
    m_window.dvVCUiMainPropertyView.replaceViews(plan.mainView);
    change(m_window.dvVCUiPreviewPropertyView, plan.preview, m_panels.vwShowPreview);
    change(m_window.dvVCUiApplyOnPropertyView, plan.applyOn, m_panels.vwApplyOn);
    change(m_window.dvVCUiFileTypePropertyView, plan.fileType, m_panels.vwFileType);
    change(
        m_window.dvVCUiMainDestinationPropertyView, plan.destination, m_panels.vwMainDestination
    );
}

void cGUIcontrols::applyPresetButtons(PresetButtons change)
{
    if (change == PresetButtons::LeaveAsTheyWere)
        return;
    m_window.btnPresetsHelp.setHidden(change == PresetButtons::Hide);
    m_window.btnPresets.setHidden(change == PresetButtons::Hide);
}

void cGUIcontrols::hChooseScaleTypeFunction()
{
    panels::ResizePanel& resize = m_panels.vwResizePhotos;
    const bool isMaximum = resize.pubScaleType.indexOfSelectedItem() == 0;
    resize.dvVCUiResizeMainView.replaceViews(
        isMaximum ? resize.dvVCUiScaleMaxView.name() : resize.dvVCUiScaleFixView.name()
    );
}

void cGUIcontrols::hChooseCropTypeFunction()
{
    panels::CropPanel& crop = m_panels.vwCropPhotos;
    const bool isWidthAndHeight = crop.pubCropType.indexOfSelectedItem() == 0;
    m_panels.vwResizePhotos.dvVCUiResizeMainView.addView(crop.dvVCUiCropPositionView.name());
    crop.dvVCUiCropTypeView.replaceViews(
        isWidthAndHeight ? crop.dvVCUiCropWxHView.name() : crop.dvVCUiCropMinusView.name()
    );
    if (m_panels.vwShowPreview.cbShowPreview.isOn())
        m_collectionView.callForPreview();
}

} // namespace brenvaldo::workspace
