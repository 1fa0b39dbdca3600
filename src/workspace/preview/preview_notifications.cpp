// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_notifications.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

const QStringList& previewNotifications()
{
    static const QStringList names{
        u"cbTextShadowCheckBoxEntred"_s,
        u"cbTextOutlineCheckBoxEntred"_s,
        u"cbTextItalicCheckBoxEntred"_s,
        u"cbTextBoldCheckBoxEntred"_s,
        u"cbTextOutlineThicknessEntred"_s,
        u"cbTextWatermarkPositionEntred"_s,
        u"cbTextFontFamilyEntred"_s,
        u"cbTextEntred"_s,
        u"cbTextShadowColorEntred"_s,
        u"cbTextColorEntred"_s,
        u"cbTxtPatternCheckBoxEntred"_s,
        u"cbImageWatermarkPositionEntred"_s,
        u"pubOpacityRenderMethodEntred"_s,
        u"cbCheckFadeOutBoxEntred"_s,
        u"srSliderFadeOutImageEntred"_s,
        u"cbImageShadowCheckBoxEntred"_s,
        u"cwImageShadowColorEntred"_s,
        u"mxImageWatermarkSizeEntred"_s,
        u"pubWatermarkFilterTypeEntred"_s,
        u"pubScreenSizeEntred"_s,
        u"tfScreenSizeEntred"_s,
        u"pubScreenSharpnessEntred"_s,
        u"btnChooseWatermarkImageEntred"_s,
        u"cbTextWatermarkMetaDataEntred"_s,
        u"cbUnderlineComboBoxEntred"_s,
        u"cbTextWatermarkAlignment"_s,
        u"cbImagePatternCheckBoxEntred"_s,
        u"pubWatermarkTextEffectEntred"_s,
        u"pubWatermarkTextEffectIntensityEntred"_s,
        u"cbCircularFadeOutEntred"_s,
        u"cwEmbossColorEntred"_s,
    };
    return names;
}

} // namespace brenvaldo::workspace
