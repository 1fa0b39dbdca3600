// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

FilterScreenView::FilterScreenView()
    : PanelView(u"vwFiltersScreenView"_s)
{
    tfFilterColorConvWidth.addAlias(u"tfColorConvWidth"_s);
    pubFilterColorConvSharpness.addAlias(u"pubColorConvSharpness"_s);
    cbFilterColorConvMask.addAlias(u"cbColorConvMask"_s);
    cbFilterColorConvInvert.addAlias(u"cbColorConvInvert"_s);
    pubFilterColorConvSharpness.addAction(u"cGUIcontrols.hScreenSharpnessCallsForPreview"_s);
    cbFilterColorConvMask.addAction(u"cGUIcontrols.hScreenMaskCallsForPreview"_s);
    cbFilterColorConvInvert.addAction(u"cGUIcontrols.hScreenInvertCallsForPreview"_s);
    makeFunctionField(tfFilterColorConvWidth, 51);
    makeFunctionField(tfFilterLineScreenAngle, 52);
    makeFunctionField(tfFilterCenterCircularWidth, 53);
    makeFunctionField(tfFilterCenterCircularHeight, 54);
    setLayout({
        {textRow(u"Width"_s, tfFilterColorConvWidth, u"px"_s)},
        {Row{.label = u"Sharpness"_s, .fields = {{.control = &pubFilterColorConvSharpness}}}},
        {textRow(u"Angle"_s, tfFilterLineScreenAngle, u"\u00b0"_s)},
        {Row{
            .label = u"Centre"_s,
            .fields
            = {{.control = &tfFilterCenterCircularWidth,
                .unit = u"%"_s,
                .accessibleName = u"Centre, percent of the width"_s},
               {.control = &tfFilterCenterCircularHeight,
                .unit = u"%"_s,
                .accessibleName = u"Centre, percent of the height"_s}}}},
        {Row{.fields = {{.control = &cbFilterColorConvMask}}}},
        {Row{.fields = {{.control = &cbFilterColorConvInvert}}}},
    });
}

FilterGaussianView::FilterGaussianView()
    : PanelView(u"vwFiltersGaussianView"_s)
{
    tfFilterBlurRadiusVal.addAlias(u"tfBlurRadiusVal"_s);
    makeFunctionField(tfFilterBlurRadiusVal, 55);
    setLayout({{textRow(u"Radius"_s, tfFilterBlurRadiusVal, u"px"_s)}});
}

FilterMonochromeView::FilterMonochromeView()
    : PanelView(u"vwFiltersMonochromeView"_s)
{
    cwFilterMonochromeColor.addAlias(u"cwMonochromeColor"_s);
    cwFilterMonochromeColor.addAlias(u"ascNSColorWellObjMonochrome"_s);
    tfFilterMonochromeHexColor.addAlias(u"tfMonochromeHexColor"_s);
    pubFilterMonochromeIntensity.addAlias(u"pubMonochromeIntensity"_s);
    cwFilterMonochromeColor.addAction(u"cGUIcontrols.hMonochromeColorWellSelected"_s);
    makeHexField(tfFilterMonochromeHexColor, 22);
    pubFilterMonochromeIntensity.addAction(u"cGUIcontrols.hMonochromeIntensityCallsForPreview"_s);
    setLayout({
        {colorRow(u"Colour"_s, cwFilterMonochromeColor, tfFilterMonochromeHexColor)},
        {Row{.label = u"Strength"_s, .fields = {{.control = &pubFilterMonochromeIntensity}}}},
    });
}

FilterPosterizeView::FilterPosterizeView()
    : PanelView(u"vwFiltersPosterizeView"_s)
{
    tfFilterColorConvLevels.addAlias(u"tfColorConvLevels"_s);
    makeFunctionField(tfFilterColorConvLevels, 56);
    setLayout({{textRow(u"Levels"_s, tfFilterColorConvLevels)}});
}

FilterSepiaView::FilterSepiaView()
    : PanelView(u"vwFiltersSepiaView"_s)
{
    pubFilterColorConvIntensity.addAlias(u"pubColorConvIntensity"_s);
    pubFilterColorConvIntensity.addAction(u"cGUIcontrols.hSepiaCallsForPreview"_s);
    setLayout({{Row{.label = u"Strength"_s, .fields = {{.control = &pubFilterColorConvIntensity}}}}}
    );
}

FilterUnsharpView::FilterUnsharpView()
    : PanelView(u"vwFiltersUnsharpView"_s)
{
    tfFilterUnsharpMaskRadius.addAlias(u"tfUnsharpMaskRadius"_s);
    pubFilterUnsharpMaskIntensity.addAlias(u"pubUnsharpMaskIntensity"_s);
    makeFunctionField(tfFilterUnsharpMaskRadius, 57);
    pubFilterUnsharpMaskIntensity.addAction(u"cGUIcontrols.hUnsharpMaskIntensityCallsForPreview"_s);
    setLayout({
        {textRow(u"Radius"_s, tfFilterUnsharpMaskRadius, u"px"_s)},
        {Row{.label = u"Strength"_s, .fields = {{.control = &pubFilterUnsharpMaskIntensity}}}},
    });
}

FilterPanel::FilterPanel()
    : PanelView(u"vwFilterPhotos"_s)
{
    pubFilterSelection.addAction(u"cGUIcontrols.onClickPubFilterType"_s);
    setLayout({
        {Row{.fields = {{.control = &pubFilterSelection, .accessibleName = u"Filter"_s}}}},
        {HolderPlace{.holder = &vwFiltersMainView}},
    });
}

} // namespace brenvaldo::panels
