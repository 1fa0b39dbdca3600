// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/image_view.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Titles of the places in which an image is looked up.
[[nodiscard]] QStringList imageLookUpTitles();

/// The background images of a gallery's tables, slide shows and responsive grids.
struct PatternImageControls
{
    PatternImageControls();

    controls::TextField tfTbPatternImageFilePath{u"tfTbPatternImageFilePath"_s};
    controls::ImageView iwTbPatternImage{u"iwTbPatternImage"_s};
    controls::PopUpButton pubTbImageLookUp{u"pubTbImageLookUp"_s, imageLookUpTitles()};
    controls::Button btnTbChoosePatternImage{
        u"btnTbChoosePatternImage"_s,
        u"Choose Image\u2026"_s,
        u"cGUIcontrols.hTbChoosePatternImage"_s};

    controls::TextField tfSsPatternImageFilePath{u"tfSsPatternImageFilePath"_s};
    controls::ImageView iwSsPatternImage{u"iwSsPatternImage"_s};
    controls::PopUpButton pubSsImageLookUp{u"pubSsImageLookUp"_s, imageLookUpTitles()};
    controls::Button btnSsChoosePatternImage{
        u"btnSsChoosePatternImage"_s,
        u"Choose Image\u2026"_s,
        u"cGUIcontrols.hSsChoosePatternImage"_s};

    controls::TextField tfRgPatternImageFilePath{u"tfRgPatternImageFilePath"_s};
    controls::ImageView iwRgPatternImage{u"iwRgPatternImage"_s};
    controls::PopUpButton pubRgImageLookUp{u"pubRgImageLookUp"_s, imageLookUpTitles()};
    controls::Button btnRgChoosePatternImage{
        u"btnRgChoosePatternImage"_s,
        u"Choose Image\u2026"_s,
        u"cGUIcontrols.hRgChoosePatternImage"_s};

    controls::Button btnHTMLImportWatermarkImages{
        u"btnHTMLImportWatermarkImages"_s,
        u"Add Images\u2026"_s,
        u"cGUIcontrols.hImportWatermarkImages"_s};
    controls::Button btnHTMLImportPatternImages{
        u"btnHTMLImportPatternImages"_s,
        u"Add Patterns\u2026"_s,
        u"cGUIcontrols.hImportPatternImages"_s};

    [[nodiscard]] Layout patternImageRows();
};

} // namespace brenvaldo::panels
