// SPDX-License-Identifier: GPL-3.0-or-later
#include "collection_view_controller.h"
#include "function_id.h"
#include "function_table.h"
#include "selected_function.h"

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
    const PreviewTwin& twin = showsTextTab() ? m_subsystems.twins.setWatermarkTextPreview
                                             : m_subsystems.twins.setWatermarkImagePreview;
    if (isPreviewOn() && path && twin)
        m_window.myTemplateOverlayPreview.setImage(twin(*path));
}

bool cCollectionViewController::showsTextTab() const
{
    return m_panels.vwWatermark.tbvWatermarkType.selectedLabel() == u"Text";
}

void cCollectionViewController::tabViewdidSelectTabViewItem()
{
    const bool isText = m_panels.vwWatermark.tbvWatermarkType.selectedIdentifier() == u"1";
    cSelectedFunction::sharedModel().myString = isText ? functionId::textWM : functionId::imageWM;
}

void cCollectionViewController::controlTextDidEndEditing(int tag)
{
    if (m_photos.isEmpty() || selectsNonPhoto())
        return;
    const auto function = functionOfFieldTag(tag);
    if (!function)
        return;
    cSelectedFunction::sharedModel().myString = *function;
    callForPreview();
}

} // namespace brenvaldo::workspace
