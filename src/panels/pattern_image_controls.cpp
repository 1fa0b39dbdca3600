// SPDX-License-Identifier: GPL-3.0-or-later
#include "pattern_image_controls.h"

namespace brenvaldo::panels {

namespace {

struct ImageChooser
{
    QString heading;
    controls::TextField& path;
    controls::ImageView& well;
    controls::PopUpButton& lookUp;
    controls::Button& button;
};

Layout rowsOf(const ImageChooser& chooser)
{
    return {
        {Heading{chooser.heading}},
        {Row{.label = u"Image"_s, .fields = {{.control = &chooser.path}}}},
        {Row{.fields = {{.control = &chooser.well, .accessibleName = chooser.heading}}}},
        {Row{
            .label = u"Look in"_s,
            .fields = {{.control = &chooser.lookUp}, {.control = &chooser.button}}}},
    };
}

} // namespace

QStringList imageLookUpTitles()
{
    return {u"Last folder"_s, u"Watermark library"_s, u"Pattern library"_s};
}

PatternImageControls::PatternImageControls()
{
    iwTbPatternImage.addAction(u"cGUIcontrols.hTbDropPatternImage"_s);
    iwSsPatternImage.addAction(u"cGUIcontrols.hSsDropPatternImage"_s);
    iwRgPatternImage.addAction(u"cGUIcontrols.hRgDropPatternImage"_s);
}

Layout PatternImageControls::patternImageRows()
{
    return joined(
        {rowsOf(
             {u"Background of tables"_s,
              tfTbPatternImageFilePath,
              iwTbPatternImage,
              pubTbImageLookUp,
              btnTbChoosePatternImage}
         ),
         rowsOf(
             {u"Background of slide shows"_s,
              tfSsPatternImageFilePath,
              iwSsPatternImage,
              pubSsImageLookUp,
              btnSsChoosePatternImage}
         ),
         rowsOf(
             {u"Background of responsive grids"_s,
              tfRgPatternImageFilePath,
              iwRgPatternImage,
              pubRgImageLookUp,
              btnRgChoosePatternImage}
         ),
         {{Heading{u"Libraries"_s}},
          {Row{
              .fields
              = {{.control = &btnHTMLImportWatermarkImages},
                 {.control = &btnHTMLImportPatternImages}}}}}}
    );
}

} // namespace brenvaldo::panels
