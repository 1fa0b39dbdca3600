// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

namespace {

/// "0.1" to "1.0".
QStringList intensityTitles()
{
    QStringList titles;
    for (int tenths = 1; tenths <= 10; ++tenths)
        titles.append(QString::number(tenths / 10.0, 'f', 1));
    return titles;
}

QStringList filterTitles()
{
    return {
        u"Noir"_qs,
        u"Mono"_qs,
        u"Chrome"_qs,
        u"Circular screen"_qs,
        u"Dots in three tones, light"_qs,
        u"Dots in three tones, dark"_qs,
        u"Dot screen"_qs,
        u"Fabric, two threads"_qs,
        u"Nine rings"_qs,
        u"Fabric, eleven threads"_qs,
        u"Fabric, eight threads"_qs,
        u"Blur"_qs,
        u"Square canvas"_qs,
        u"Square canvas with frame"_qs,
        u"Line screen"_qs,
        u"Monochrome"_qs,
        u"Invert"_qs,
        u"Posterise"_qs,
        u"Sepia"_qs,
        u"Lines in three tones, light"_qs,
        u"Lines in three tones, dark"_qs,
        u"Sharpen"_qs,
        u"Process"_qs,
        u"Fade"_qs,
        u"Instant"_qs,
        u"Transfer"_qs,
    };
}

} // namespace

FilterScreenView::FilterScreenView()
    : PanelView(u"vwFiltersScreenView"_qs)
    , tfFilterColorConvWidth(u"tfFilterColorConvWidth"_qs, u"6"_qs)
    , pubFilterColorConvSharpness(u"pubFilterColorConvSharpness"_qs, intensityTitles(), 6)
    , tfFilterLineScreenAngle(u"tfFilterLineScreenAngle"_qs, u"0"_qs)
    , tfFilterCenterCircularWidth(u"tfFilterCenterCircularWidth"_qs, u"50"_qs)
    , tfFilterCenterCircularHeight(u"tfFilterCenterCircularHeight"_qs, u"50"_qs)
    , cbFilterColorConvMask(u"cbFilterColorConvMask"_qs, u"Keep the photo's colours"_qs)
    , cbFilterColorConvInvert(u"cbFilterColorConvInvert"_qs, u"Invert"_qs)
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
    , tfFilterBlurRadiusVal(u"tfFilterBlurRadiusVal"_qs, u"10"_qs)
{
    tfFilterBlurRadiusVal.addAlias(u"tfBlurRadiusVal"_qs);
    makeFunctionField(tfFilterBlurRadiusVal, 55);
    setLayout({{textRow(u"Radius"_qs, tfFilterBlurRadiusVal, u"px"_qs)}});
}

FilterMonochromeView::FilterMonochromeView()
    : PanelView(u"vwFiltersMonochromeView"_qs)
    , cwFilterMonochromeColor(u"cwFilterMonochromeColor"_qs)
    , tfFilterMonochromeHexColor(u"tfFilterMonochromeHexColor"_qs, u"000000"_qs)
    , pubFilterMonochromeIntensity(u"pubFilterMonochromeIntensity"_qs, intensityTitles(), 9)
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
    , tfFilterColorConvLevels(u"tfFilterColorConvLevels"_qs, u"6"_qs)
{
    tfFilterColorConvLevels.addAlias(u"tfColorConvLevels"_qs);
    makeFunctionField(tfFilterColorConvLevels, 56);
    setLayout({{textRow(u"Levels"_qs, tfFilterColorConvLevels)}});
}

FilterSepiaView::FilterSepiaView()
    : PanelView(u"vwFiltersSepiaView"_qs)
    , pubFilterColorConvIntensity(u"pubFilterColorConvIntensity"_qs, intensityTitles(), 9)
{
    pubFilterColorConvIntensity.addAlias(u"pubColorConvIntensity"_qs);
    pubFilterColorConvIntensity.addAction(u"cGUIcontrols.hSepiaCallsForPreview"_qs);
    setLayout(
        {{Row{.label = u"Strength"_qs, .fields = {{.control = &pubFilterColorConvIntensity}}}}}
    );
}

FilterUnsharpView::FilterUnsharpView()
    : PanelView(u"vwFiltersUnsharpView"_qs)
    , tfFilterUnsharpMaskRadius(u"tfFilterUnsharpMaskRadius"_qs, u"2.5"_qs)
    , pubFilterUnsharpMaskIntensity(u"pubFilterUnsharpMaskIntensity"_qs, intensityTitles(), 4)
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
    , pubFilterSelection(u"pubFilterSelection"_qs, filterTitles())
    , vwFiltersMainView(u"vwFiltersMainView"_qs)
{
    pubFilterSelection.addAction(u"cGUIcontrols.onClickPubFilterType"_qs);
    setLayout({
        {Row{.label = u"Filter"_qs, .fields = {{.control = &pubFilterSelection}}}},
        {HolderPlace{.holder = &vwFiltersMainView}},
    });
}

} // namespace brenvaldo::panels
