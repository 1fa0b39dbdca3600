// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_record_parts.h"
#include "image_records.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::presets {

namespace {

using When = RecordField::When;

constexpr int filterPosition = 11;

/// The filters by their number, grouped by the settings they have.
const QList<int>& screens()
{
    static const QList<int> filters = {3, 4, 5, 6, 7, 8, 9, 10, 14, 19, 20};
    return filters;
}

constexpr int circularScreen = 3;
constexpr int nineRings = 8;
constexpr int fabric = 9;
constexpr int blur = 11;
constexpr int squareCanvas = 12;
constexpr int framedCanvas = 13;
constexpr int monochrome = 15;
constexpr int posterize = 17;
constexpr int sepia = 18;
constexpr int unsharp = 21;

void enableScreenFields(panels::FilterScreenView& view, int filter)
{
    const bool isCircular = filter == circularScreen;
    const bool hasAngle = !isCircular && filter != nineRings && filter != fabric;
    view.tfFilterColorConvWidth.setEnabled(true);
    view.pubFilterColorConvSharpness.setEnabled(true);
    view.cbFilterColorConvInvert.setEnabled(true);
    view.tfFilterCenterCircularWidth.setEnabled(isCircular);
    view.tfFilterCenterCircularHeight.setEnabled(isCircular);
    view.tfFilterLineScreenAngle.setEnabled(hasAngle);
}

void enableMonochromeFields(panels::FilterMonochromeView& view, int filter)
{
    view.cwFilterMonochromeColor.setEnabled(true);
    view.tfFilterMonochromeHexColor.setEnabled(true);
    view.pubFilterMonochromeIntensity.setEnabled(filter == monochrome);
}

/// The view of a filter's settings; null for a filter without any.
const panels::PanelView* viewOf(const panels::FilterPanel& panel, int filter)
{
    if (screens().contains(filter))
        return &panel.vwFiltersScreenView;
    switch (filter) {
    case blur:
        return &panel.vwFiltersGaussianView;
    case squareCanvas:
    case framedCanvas:
    case monochrome:
        return &panel.vwFiltersMonochromeView;
    case posterize:
        return &panel.vwFiltersPosterizeView;
    case sepia:
        return &panel.vwFiltersSepiaView;
    case unsharp:
        return &panel.vwFiltersUnsharpView;
    default:
        return nullptr;
    }
}

/// Shows the settings of the stored filter; for one without any, what was shown stays.
std::function<void(const QString&)> showsFilterView(panels::FilterPanel& panel)
{
    return [&panel](const QString& text) {
        const int filter = platform::intValue(text);
        const panels::PanelView* view = viewOf(panel, filter);
        if (!view)
            return;
        panel.vwFiltersMainView.replaceViews(view->name());
        if (view == &panel.vwFiltersScreenView)
            enableScreenFields(panel.vwFiltersScreenView, filter);
        if (view == &panel.vwFiltersMonochromeView)
            enableMonochromeFields(panel.vwFiltersMonochromeView, filter);
    };
}

When whenFilterIs(const QList<int>& filters)
{
    return {.position = filterPosition, .is = When::Is::OneOf, .values = filters};
}

RecordField
only(RecordField field, When when, RecordField::Use use = RecordField::Use::WrittenAndRead)
{
    field.when = std::move(when);
    field.use = use;
    return field;
}

RecordFields screenFields(panels::FilterPanel& panel)
{
    auto& view = panel.vwFiltersScreenView;
    const When screen = whenFilterIs(screens());
    return {
        only({4, TextForm{&view.tfFilterColorConvWidth}}, screen),
        only({5, IndexForm{&panel.vwFiltersSepiaView.pubFilterColorConvIntensity}}, screen),
        only({6, TextForm{&view.tfFilterCenterCircularWidth}}, screen),
        only({7, TextForm{&view.tfFilterCenterCircularHeight}}, screen),
        only({8, TextForm{&view.tfFilterLineScreenAngle}}, screen),
        only({9, StateForm{&view.cbFilterColorConvMask}}, screen),
        only({10, StateForm{&view.cbFilterColorConvInvert}}, screen),
    };
}

/// The colour of the square canvas is written as an archive and read as if it were hexadecimal.
RecordFields monochromeFields(panels::FilterMonochromeView& view)
{
    using Use = RecordField::Use;

    const RecordField color = {4, ColorForm{&view.cwFilterMonochromeColor}};
    const When all = whenFilterIs({squareCanvas, framedCanvas, monochrome});
    return {
        only(color, whenFilterIs({framedCanvas, monochrome})),
        only(
            hexColorField(4, view.cwFilterMonochromeColor),
            whenFilterIs({squareCanvas}),
            Use::OnlyRead
        ),
        only(color, whenFilterIs({squareCanvas}), Use::OnlyWritten),
        only({5, TextForm{&view.tfFilterMonochromeHexColor}}, all),
        only({6, IndexForm{&view.pubFilterMonochromeIntensity}}, all),
    };
}

/// The radius of the blur is written and never read.
RecordFields singleFilterFields(panels::FilterPanel& panel)
{
    auto& sharpen = panel.vwFiltersUnsharpView;
    return {
        only(
            {4, TextForm{&panel.vwFiltersGaussianView.tfFilterBlurRadiusVal}},
            whenFilterIs({blur}),
            RecordField::Use::OnlyWritten
        ),
        only(
            {4, TextForm{&panel.vwFiltersPosterizeView.tfFilterColorConvLevels}},
            whenFilterIs({posterize})
        ),
        only(
            {4, IndexForm{&panel.vwFiltersSepiaView.pubFilterColorConvIntensity}},
            whenFilterIs({sepia})
        ),
        only({4, TextForm{&sharpen.tfFilterUnsharpMaskRadius}}, whenFilterIs({unsharp})),
        only({5, IndexForm{&sharpen.pubFilterUnsharpMaskIntensity}}, whenFilterIs({unsharp})),
    };
}

} // namespace

PresetRecord filterRecord(panels::Panels& panels)
{
    auto& filters = panels.vwFilterPhotos;
    RecordFields fields = {
        {filterPosition, IndexForm{&filters.pubFilterSelection}, showsFilterView(filters)},
    };
    for (const RecordFields& group :
         {screenFields(filters),
          monochromeFields(filters.vwFiltersMonochromeView),
          singleFilterFields(filters)})
        fields.insert(fields.end(), group.begin(), group.end());
    PresetRecord record = editRecord(u"filters"_s, withCommonFields(std::move(fields), panels));
    record.before = PresetRecord::Before::ClearSimulation;
    return record;
}

} // namespace brenvaldo::presets
