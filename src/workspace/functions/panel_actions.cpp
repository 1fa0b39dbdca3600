// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/gui_controls.h>

#include <imaging/color_well_handling.h>

namespace brenvaldo::workspace {

namespace {

void enable(const QList<controls::Control*>& fields, bool enabled)
{
    for (controls::Control* field : fields)
        field->setEnabled(enabled);
}

} // namespace

void cGUIcontrols::hAddTintGradient()
{
    m_panels.vwAddTint.pubAddTintAngle.setEnabled(m_panels.vwAddTint.cbAddTintGradient.isOn());
    m_collectionView.callForPreview();
}

void cGUIcontrols::hAddTintActivePhotoSize()
{
    panels::TintPanel& panel = m_panels.vwAddTint;
    enable({&panel.tfAddTintWidth, &panel.tfAddTintHeight}, !panel.cbAddTintOrigSize.isOn());
    m_collectionView.callForPreview();
}

void cGUIcontrols::hAddTintColorWell()
{
    panels::TintPanel& panel = m_panels.vwAddTint;
    m_collectionView.callForPreview();
    panel.tfAddTintHexValue.setStringValue(
        imaging::cColorWellHandling::getHEXValue(panel.cwAddTint.color())
    );
}

void cGUIcontrols::hAddRoundedCornersTypeCallsForPreview()
{
    panels::RoundingsPanel& panel = m_panels.vwRoundings;
    panel.tfRCDiameter.setEnabled(panel.pubRCType.indexOfSelectedItem() == 0);
    m_collectionView.callForPreview();
}

void cGUIcontrols::hAddRoundedCornersBackGroundCallsForPreview()
{
    panels::RoundingsPanel& panel = m_panels.vwRoundings;
    enable(
        {&panel.cwRCBackgroundColor, &panel.tfRCBackgroundHexColor, &panel.tfRCEnlargeCanvas},
        panel.cbRCBackgroundColor.isOn()
    );
    m_collectionView.callForPreview();
}

void cGUIcontrols::hAddRoundedCornersBorderCallsForPreview()
{
    panels::RoundingsPanel& panel = m_panels.vwRoundings;
    enable(
        {&panel.cwRCBorderColor,
         &panel.tfRCBorderHexColor,
         &panel.tfRCBorderWidth,
         &panel.pubRCBorderPos},
        panel.cbRCBorderColor.isOn()
    );
    panel.pubRCGradientAngle.setEnabled(panel.cbRCGradient.isOn());
    m_collectionView.callForPreview();
}

void cGUIcontrols::hAddRotationBackGroundCallsForPreview()
{
    panels::RotatePanel& panel = m_panels.vwRotatePhotos;
    enable(
        {&panel.cwRotationBackgroundColor,
         &panel.tfRotationBackgroundHexColor,
         &panel.tfRotationEnlargeCanvas},
        panel.cbRotationBackgroundColor.isOn()
    );
    m_collectionView.callForPreview();
}

void cGUIcontrols::hAddFramingPosition()
{
    panels::FramingPanel& panel = m_panels.vwFraming;
    panel.tfFramingInset.setEnabled(panel.pubFramingType.indexOfSelectedItem() == 0);
    m_collectionView.callForPreview();
}

void cGUIcontrols::hInsertPhotoProperty()
{
    static const QStringList tokens{u"<[IMGW]>"_s, u"<[IMGH]>"_s};
    panels::WatermarkPanel& panel = m_panels.vwWatermark;
    const QString token = tokens.value(panel.pubFileNamePhotoProperties.indexOfSelectedItem());
    panel.tvFileName.setStringValue(panel.tvFileName.stringValue() + token);
    m_notifications.post(u"cbTextWatermarkMetaDataEntred"_s);
}

void cGUIcontrols::registerColorWellActions(controls::ActionRegistry& actions)
{
    struct ColorPair
    {
        QString action;
        const controls::ColorWell& well;
        controls::TextField& hexField;
    };
    const ColorPair pairs[] = {
        {u"hAddFrameColorWellSelected"_s,
         m_panels.vwFraming.myNSColorWellObjFraming,
         m_panels.vwFraming.tfFramingHEXvalue},
        {u"hAddRCBackgroundColorWellSelected"_s,
         m_panels.vwRoundings.cwRCBackgroundColor,
         m_panels.vwRoundings.tfRCBackgroundHexColor},
        {u"hAddRCBorderColorWellSelected"_s,
         m_panels.vwRoundings.cwRCBorderColor,
         m_panels.vwRoundings.tfRCBorderHexColor},
        {u"hAddRotationBackgroundColorWellSelected"_s,
         m_panels.vwRotatePhotos.cwRotationBackgroundColor,
         m_panels.vwRotatePhotos.tfRotationBackgroundHexColor},
        {u"hMonochromeColorWellSelected"_s,
         m_panels.vwFilterPhotos.vwFiltersMonochromeView.cwFilterMonochromeColor,
         m_panels.vwFilterPhotos.vwFiltersMonochromeView.tfFilterMonochromeHexColor},
    };
    for (const ColorPair& pair : pairs) {
        actions.add(
            u"cGUIcontrols"_s,
            pair.action,
            [this, &well = pair.well, &hexField = pair.hexField](const controls::Sender&) {
                hexField.setStringValue(imaging::cColorWellHandling::getHEXValue(well.color()));
                m_collectionView.callForPreview();
            }
        );
    }
}

void cGUIcontrols::hTxtSimulationModePressed() { switchSimulationOff(); }

void cGUIcontrols::hImgSimulationModePressed() { switchSimulationOff(); }

/// The box can't stay on; nothing asks for it.
void cGUIcontrols::switchSimulationOff() { m_panels.vwWatermark.cbWMSimulationMode.setState(0); }

void cGUIcontrols::hPrintOrigPicture()
{
    const QString path = m_window.tfOriginalPictureStrRef.stringValue();
    if (!path.isEmpty() && m_neighbours.printService)
        m_neighbours.printService(path);
}

} // namespace brenvaldo::workspace
