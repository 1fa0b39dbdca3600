// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/functions/selected_function.h>
#include <workspace/list/collection_view_controller.h>

#include <workspace/functions/function_id.h>

namespace brenvaldo::workspace {

void cCollectionViewController::hCheckboxPreviewTouched() { callForPreview(); }

void cCollectionViewController::hCropPositionSegmentedControl()
{
    if (!selectsNonPhoto())
        layWatermarkOver();
}

void cCollectionViewController::hFlipCropWH()
{
    if (selectsNonPhoto())
        return;
    swapTexts(
        m_panels.vwCropPhotos.dvVCUiCropWxHView.tfCropWidth,
        m_panels.vwCropPhotos.dvVCUiCropWxHView.tfCropHeight
    );
    layWatermarkOver();
}

void cCollectionViewController::hFlipCropXY()
{
    if (selectsNonPhoto())
        return;
    swapTexts(
        m_panels.vwCropPhotos.dvVCUiCropPositionView.tfXcropOffset,
        m_panels.vwCropPhotos.dvVCUiCropPositionView.tfYcropOffset
    );
    layWatermarkOver();
}

void cCollectionViewController::hFlipScaleFixWH()
{
    if (selectsNonPhoto())
        return;
    swapTexts(
        m_panels.vwResizePhotos.dvVCUiScaleFixView.tfScaleFixWidth,
        m_panels.vwResizePhotos.dvVCUiScaleFixView.tfScaleFixHeight
    );
}

void cCollectionViewController::swapTexts(controls::TextField& first, controls::TextField& second)
{
    const QString text = first.stringValue();
    first.setStringValue(second.stringValue());
    second.setStringValue(text);
}

/// The overlay of the small actions is a watermark, whatever function is selected.
void cCollectionViewController::layWatermarkOver()
{
    m_window.myTemplateOverlayPreview.clear();
    const auto path = hGetActiveFileFilePath();
    const Function* watermark = m_functions.shownAt(Section::EditPhoto, 0, m_panels);
    if (isPreviewOn() && path && watermark->preview)
        m_window.myTemplateOverlayPreview.setImage(watermark->preview(m_subsystems, *path));
}

void cCollectionViewController::tabViewdidSelectTabViewItem()
{
    const bool isText = m_panels.vwWatermark.tbvWatermarkType.selectedIdentifier() == u"1";
    cSelectedFunction::sharedModel().select(isText ? functionId::textWM : functionId::imageWM);
}

void cCollectionViewController::controlTextDidEndEditing(int tag)
{
    if (m_photos.isEmpty() || selectsNonPhoto())
        return;
    const Function* function = m_functions.ofFieldTag(tag);
    if (!function)
        return;
    cSelectedFunction::sharedModel().select(function->id);
    callForPreview();
}

} // namespace brenvaldo::workspace
