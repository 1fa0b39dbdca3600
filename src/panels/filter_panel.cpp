// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

FilterScreenView::FilterScreenView()
    : PanelView(u"vwFiltersScreenView"_qs)
{
    tfFilterColorConvWidth.addAlias(u"tfColorConvWidth"_qs);
    pubFilterColorConvSharpness.addAlias(u"pubColorConvSharpness"_qs);
    cbFilterColorConvMask.addAlias(u"cbColorConvMask"_qs);
    cbFilterColorConvInvert.addAlias(u"cbColorConvInvert"_qs);
    pubFilterColorConvSharpness.addAction(u"cGUIcontrols.hScreenSharpnessCallsForPreview"_qs);
    cbFilterColorConvMask.addAction(u"cGUIcontrols.hScreenMaskCallsForPreview"_qs);
    cbFilterColorConvInvert.addAction(u"cGUIcontrols.hScreenInvertCallsForPreview"_qs);
    makeFunctionField(tfFilterColorConvWidth, 51);
    makeFunctionField(tfFilterLineScreenAngle, 52);
    makeFunctionField(tfFilterCenterCircularWidth, 53);
    makeFunctionField(tfFilterCenterCircularHeight, 54);
    setLayout({
        {textRow(u"Width"_qs, tfFilterColorConvWidth, u"px"_qs)},
        {Row{.label = u"Sharpness"_qs, .fields = {{.control = &pubFilterColorConvSharpness}}}},
        {textRow(u"Angle"_qs, tfFilterLineScreenAngle, u"\u00b0"_qs)},
        {Row{
            .label = u"Centre"_qs,
            .fields
            = {{.control = &tfFilterCenterCircularWidth,
                .unit = u"%"_qs,
                .accessibleName = u"Centre, percent of the width"_qs},
               {.control = &tfFilterCenterCircularHeight,
                .unit = u"%"_qs,
                .accessibleName = u"Centre, percent of the height"_qs}}}},
        {Row{.fields = {{.control = &cbFilterColorConvMask}}}},
        {Row{.fields = {{.control = &cbFilterColorConvInvert}}}},
    });
}

FilterGaussianView::FilterGaussianView()
    : PanelView(u"vwFiltersGaussianView"_qs)
{
    tfFilterBlurRadiusVal.addAlias(u"tfBlurRadiusVal"_qs);
    makeFunctionField(tfFilterBlurRadiusVal, 55);
    setLayout({{textRow(u"Radius"_qs, tfFilterBlurRadiusVal, u"px"_qs)}});
}

FilterMonochromeView::FilterMonochromeView()
    : PanelView(u"vwFiltersMonochromeView"_qs)
{
    cwFilterMonochromeColor.addAlias(u"cwMonochromeColor"_qs);
    cwFilterMonochromeColor.addAlias(u"ascNSColorWellObjMonochrome"_qs);
    tfFilterMonochromeHexColor.addAlias(u"tfMonochromeHexColor"_qs);
    pubFilterMonochromeIntensity.addAlias(u"pubMonochromeIntensity"_qs);
    cwFilterMonochromeColor.addAction(u"cGUIcontrols.hMonochromeColorWellSelected"_qs);
    makeHexField(tfFilterMonochromeHexColor, 22);
    pubFilterMonochromeIntensity.addAction(u"cGUIcontrols.hMonochromeIntensityCallsForPreview"_qs);
    setLayout({
        {colourRow(u"Colour"_qs, cwFilterMonochromeColor, tfFilterMonochromeHexColor)},
        {Row{.label = u"Strength"_qs, .fields = {{.control = &pubFilterMonochromeIntensity}}}},
    });
}

FilterPosterizeView::FilterPosterizeView()
    : PanelView(u"vwFiltersPosterizeView"_qs)
{
    tfFilterColorConvLevels.addAlias(u"tfColorConvLevels"_qs);
    makeFunctionField(tfFilterColorConvLevels, 56);
    setLayout({{textRow(u"Levels"_qs, tfFilterColorConvLevels)}});
}

FilterSepiaView::FilterSepiaView()
    : PanelView(u"vwFiltersSepiaView"_qs)
{
    pubFilterColorConvIntensity.addAlias(u"pubColorConvIntensity"_qs);
    pubFilterColorConvIntensity.addAction(u"cGUIcontrols.hSepiaCallsForPreview"_qs);
    setLayout(
        {{Row{.label = u"Strength"_qs, .fields = {{.control = &pubFilterColorConvIntensity}}}}}
    );
}

FilterUnsharpView::FilterUnsharpView()
    : PanelView(u"vwFiltersUnsharpView"_qs)
{
    tfFilterUnsharpMaskRadius.addAlias(u"tfUnsharpMaskRadius"_qs);
    pubFilterUnsharpMaskIntensity.addAlias(u"pubUnsharpMaskIntensity"_qs);
    makeFunctionField(tfFilterUnsharpMaskRadius, 57);
    pubFilterUnsharpMaskIntensity.addAction(u"cGUIcontrols.hUnsharpMaskIntensityCallsForPreview"_qs
    );
    setLayout({
        {textRow(u"Radius"_qs, tfFilterUnsharpMaskRadius, u"px"_qs)},
        {Row{.label = u"Strength"_qs, .fields = {{.control = &pubFilterUnsharpMaskIntensity}}}},
    });
}

FilterPanel::FilterPanel()
    : PanelView(u"vwFilterPhotos"_qs)
{
    pubFilterSelection.addAction(u"cGUIcontrols.onClickPubFilterType"_qs);
    setLayout({
        {Row{.label = u"Filter"_qs, .fields = {{.control = &pubFilterSelection}}}},
        {HolderPlace{.holder = &vwFiltersMainView}},
    });
}

} // namespace brenvaldo::panels
