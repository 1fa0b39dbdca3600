// SPDX-License-Identifier: GPL-3.0-or-later
#include "function_id.h"
#include "gui_controls.h"
#include "selected_function.h"

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

void store(const QString& function) { cSelectedFunction::sharedModel().myString = function; }

} // namespace

void cGUIcontrols::hSetInitialView()
{
    store(functionId::textWM);
    pressSection(m_window.btnEditPhoto);
    m_window.dvVCUiMainPropertySelect.replaceViews(m_window.pubEditPhoto.name());
    applyHolders(editFunctionAt(0)->holders);
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
    applyHolders(
        {QLatin1String("vwHtmlExport"),
         HolderChange::Empty,
         HolderChange::Fill,
         HolderChange::Empty,
         HolderChange::Fill}
    );
    store(functionId::htmlExport);
    applyPresetButtons(PresetButtons::Show);
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
        section->setImage(section == &pressed ? u"SelectMainTabView1.png"_qs : u"bgBlue.png"_qs);
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
    if (m_subsystems.hLoadTemplatePreset)
        m_subsystems.hLoadTemplatePreset(
            m_panels.vwHtmlExport.pubPhotoGalleryModel.indexOfSelectedItem()
        );
}

void cGUIcontrols::hGetMainEditFunction()
{
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    if (const FunctionRow* row = editFunctionAt(m_window.pubEditPhoto.indexOfSelectedItem())) {
        if (row->id == functionId::textWM)
            m_collectionView.tabViewdidSelectTabViewItem();
        else
            store(row->id);
        m_collectionView.callForPreview();
        applyHolders(row->holders);
        if (row->id == functionId::profileConversion && m_subsystems.hGetColorProfiles)
            m_subsystems.hGetColorProfiles();
        if (row->id == functionId::resizePhotos)
            m_panels.vwResizePhotos.dvVCUiResizeMainView.replaceViews(
                m_panels.vwResizePhotos.dvVCUiScaleMaxView.name()
            );
        if (row->id == functionId::cropPhotos)
            m_panels.vwCropPhotos.dvVCUiCropTypeView.replaceViews(
                m_panels.vwCropPhotos.dvVCUiCropWxHView.name()
            );
    }
    applyPresetButtons(PresetButtons::Show);
}

void cGUIcontrols::hGetMainFileManagementFunction()
{
    const FunctionRow* row
        = fileManagementFunctionAt(m_window.pubFileManagementSelect.indexOfSelectedItem());
    if (!row)
        return;
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    const bool isBatchSort = row->id == functionId::manSort && isBatchSortTab();
    store(isBatchSort ? functionId::batchSort : row->id);
    m_collectionView.callForPreview();
    applyHolders(row->holders);
    if (isBatchSort)
        m_window.dvVCUiMainDestinationPropertyView.addView(m_panels.vwMainDestination.name());
    applyPresetButtons(row->presetButtons);
}

void cGUIcontrols::tabViewdidSelectTabViewItem()
{
    const QString& identifier = m_panels.vwFileManagementSorting.mySortTabView.selectedIdentifier();
    m_window.dvVCUiMainDestinationPropertyView.removeAllViews();
    if (isBatchSortTab())
        m_window.dvVCUiMainDestinationPropertyView.addView(m_panels.vwMainDestination.name());
    if (identifier == u"1")
        store(functionId::manSort);
    else if (identifier == u"2")
        store(functionId::batchSort);
    else
        store(functionId::batchUploadPhotos);
}

bool cGUIcontrols::isBatchSortTab() const
{
    return m_panels.vwFileManagementSorting.mySortTabView.selectedLabel() == u"Batch mode";
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
