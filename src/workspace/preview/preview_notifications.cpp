// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_notifications.h"

namespace brenvaldo::workspace {

const QStringList& previewNotifications()
{
    static const QStringList names{
        u"cbTextShadowCheckBoxEntred"_qs,
        u"cbTextOutlineCheckBoxEntred"_qs,
        u"cbTextItalicCheckBoxEntred"_qs,
        u"cbTextBoldCheckBoxEntred"_qs,
        u"cbTextOutlineThicknessEntred"_qs,
        u"cbTextWatermarkPositionEntred"_qs,
        u"cbTextFontFamilyEntred"_qs,
        u"cbTextEntred"_qs,
        u"cbTextShadowColorEntred"_qs,
        u"cbTextColorEntred"_qs,
        u"cbTxtPatternCheckBoxEntred"_qs,
        u"cbImageWatermarkPositionEntred"_qs,
        u"pubOpacityRenderMethodEntred"_qs,
        u"cbCheckFadeOutBoxEntred"_qs,
        u"srSliderFadeOutImageEntred"_qs,
        u"cbImageShadowCheckBoxEntred"_qs,
        u"cwImageShadowColorEntred"_qs,
        u"mxImageWatermarkSizeEntred"_qs,
        u"pubWatermarkFilterTypeEntred"_qs,
        u"pubScreenSizeEntred"_qs,
        u"tfScreenSizeEntred"_qs,
        u"pubScreenSharpnessEntred"_qs,
        u"btnChooseWatermarkImageEntred"_qs,
        u"cbTextWatermarkMetaDataEntred"_qs,
        u"cbUnderlineComboBoxEntred"_qs,
        u"cbTextWatermarkAlignment"_qs,
        u"cbImagePatternCheckBoxEntred"_qs,
        u"pubWatermarkTextEffectEntred"_qs,
        u"pubWatermarkTextEffectIntensityEntred"_qs,
        u"cbCircularFadeOutEntred"_qs,
        u"cwEmbossColorEntred"_qs,
    };
    return names;
}

} // namespace brenvaldo::workspace
