// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include "support/case_name.h"
#include "support/text_printing.h"

#include <platform/foundation/literals.h>

#include <algorithm>

/// \file
/// The record of the filters: the number at position 11 decides what positions 4 to 10 hold.

using namespace brenvaldo;
using test::Effect;
using test::Effects;
using test::joined;
using test::Position;
using test::Positions;
using test::RecordBench;
using test::Round;

namespace {

const Positions screen = {
    {4, u"tfFilterColorConvWidth"_s, u"a4"_s, u"b4"_s},
    {5, u"pubFilterColorConvIntensity"_s, u"3"_s, u"7"_s},
    {6, u"tfFilterCenterCircularWidth"_s, u"a6"_s, u"b6"_s},
    {7, u"tfFilterCenterCircularHeight"_s, u"a7"_s, u"b7"_s},
    {8, u"tfFilterLineScreenAngle"_s, u"a8"_s, u"b8"_s},
    {9, u"cbFilterColorConvMask"_s, u"1"_s, u"0"_s},
    {10, u"cbFilterColorConvInvert"_s, u"0"_s, u"1"_s},
};
const Positions blur = {{4, u"tfFilterBlurRadiusVal"_s, u"a"_s, u"b"_s}};
const Positions color = {{4, u"cwFilterMonochromeColor"_s, u"1 0.5 0.25"_s, u"0 0.5 1"_s}};
const Positions monochrome = {
    {5, u"tfFilterMonochromeHexColor"_s, u"a5"_s, u"b5"_s},
    {6, u"pubFilterMonochromeIntensity"_s, u"4"_s, u"8"_s},
};
const Positions posterize = {{4, u"tfFilterColorConvLevels"_s, u"c"_s, u"d"_s}};
const Positions sepia = {{4, u"pubFilterColorConvIntensity"_s, u"3"_s, u"7"_s}};
const Positions unsharp = {
    {4, u"tfFilterUnsharpMaskRadius"_s, u"e"_s, u"f"_s},
    {5, u"pubFilterUnsharpMaskIntensity"_s, u"2"_s, u"6"_s},
};
const Positions never = {{0, u"pubFilterColorConvSharpness"_s, u"1"_s, u"5"_s}};

enum class Centre { Off, On };
enum class Angle { Off, On };

Effects screenStates(Centre centre, Angle angle)
{
    return {
        {u"tfFilterColorConvWidth"_s, true, true},
        {u"pubFilterColorConvSharpness"_s, true, true},
        {u"cbFilterColorConvInvert"_s, true, true},
        {u"tfFilterCenterCircularWidth"_s, centre == Centre::On, true},
        {u"tfFilterCenterCircularHeight"_s, centre == Centre::On, true},
        {u"tfFilterLineScreenAngle"_s, angle == Angle::On, true},
    };
}

Effects monochromeStates(bool intensity)
{
    return {
        {u"cwFilterMonochromeColor"_s, true, true},
        {u"tfFilterMonochromeHexColor"_s, true, true},
        {u"pubFilterMonochromeIntensity"_s, intensity, true},
    };
}

/// What a preset of a filter keeps, and what a load of it does.
struct KeptFilter
{
    std::string name;
    std::vector<int> filters;
    Positions written;
    Positions restored;
    QString view; ///< "": what was shown stays
    Effects states;
};

const std::vector<KeptFilter>& keptFilters()
{
    static const std::vector<KeptFilter> all = {
        {"CircularScreen",
         {3},
         screen,
         screen,
         u"vwFiltersScreenView"_s,
         screenStates(Centre::On, Angle::Off)},
        {"ScreensWithAngle",
         {4, 5, 6, 7, 10, 14, 19, 20},
         screen,
         screen,
         u"vwFiltersScreenView"_s,
         screenStates(Centre::Off, Angle::On)},
        {"ScreensWithoutAngle",
         {8, 9},
         screen,
         screen,
         u"vwFiltersScreenView"_s,
         screenStates(Centre::Off, Angle::Off)},
        {"Blur", {11}, blur, {}, u"vwFiltersGaussianView"_s, {}},
        {"SquareCanvas",
         {12},
         joined(color, monochrome),
         monochrome,
         u"vwFiltersMonochromeView"_s,
         monochromeStates(false)},
        {"FramedCanvas",
         {13},
         joined(color, monochrome),
         joined(color, monochrome),
         u"vwFiltersMonochromeView"_s,
         monochromeStates(false)},
        {"Monochrome",
         {15},
         joined(color, monochrome),
         joined(color, monochrome),
         u"vwFiltersMonochromeView"_s,
         monochromeStates(true)},
        {"Posterize", {17}, posterize, posterize, u"vwFiltersPosterizeView"_s, {}},
        {"Sepia", {18}, sepia, sepia, u"vwFiltersSepiaView"_s, {}},
        {"Unsharp", {21}, unsharp, unsharp, u"vwFiltersUnsharpView"_s, {}},
        {"Others", {0, 1, 2, 16, 22, 23, 24, 25}, {}, {}, u""_s, {}},
    };
    return all;
}

bool names(const QString& control, const Positions& positions)
{
    return std::any_of(positions.begin(), positions.end(), [&](const Position& position) {
        return position.control == control;
    });
}

bool names(const QString& control, const Effects& effects)
{
    return std::any_of(effects.begin(), effects.end(), [&](const Effect& effect) {
        return effect.control == control;
    });
}

class FilterPositions : public testing::TestWithParam<KeptFilter>
{
protected:
    /// Every setting of the panel but for the filter itself.
    const Positions settings = joined(
        joined(joined(screen, blur), joined(color, monochrome)),
        joined(joined(posterize, unsharp), never)
    );
    RecordBench bench{u"filters"_s, u"filters"_s, u"Edit"_s};
    controls::Holder& holder = bench.panels.vwFilterPhotos.vwFiltersMainView;

    Positions positionsOf(int filter) const
    {
        const Position number
            = {11, u"pubFilterSelection"_s, QString::number(filter), filter == 0 ? u"1"_s : u"0"_s};
        return joined(bench.commonPositions(), {number});
    }

    /// The settings that a load leaves, as values or as states.
    Positions untouchedBy(const KeptFilter& kept) const
    {
        Positions untouched;
        for (const Position& position : settings) {
            const bool isColor = position.control == u"cwFilterMonochromeColor";
            if (!names(position.control, kept.restored) && !isColor)
                untouched.push_back(position);
        }
        return untouched;
    }
};

} // namespace

TEST_P(FilterPositions, HoldWhatTheFilterNeeds)
{
    for (const int filter : GetParam().filters) {
        const Positions always = positionsOf(filter);
        bench.give(joined(settings, always), Round::First);
        bench.saveRound(Round::First);

        bench.expectRow(Round::First, joined(always, GetParam().written));

        (void)bench.file.rows("delete from Presets");
    }
}

TEST_P(FilterPositions, GiveBackWhatTheFilterNeeds)
{
    const KeptFilter& kept = GetParam();
    for (const int filter : kept.filters) {
        const Positions always = positionsOf(filter);
        bench.give(joined(settings, always), Round::First);
        bench.saveRound(Round::First);
        bench.giveOther(joined(settings, always), Round::First);
        holder.replaceViews(u"what was shown"_s);
        for (const Position& setting : settings)
            bench.panels.control(setting.control)->setEnabled(false);

        bench.load(Round::First, kept.states);

        bench.expectValues(Round::First, joined(always, kept.restored));
        bench.expectOther(Round::First, untouchedBy(kept));
        EXPECT_EQ(
            holder.views(), QStringList(kept.view.isEmpty() ? u"what was shown"_s : kept.view)
        );
        for (const Position& setting : settings) {
            const bool isEnabled = bench.panels.control(setting.control)->isEnabled();
            EXPECT_TRUE(!isEnabled || names(setting.control, kept.states))
                << setting.control.toStdString();
        }
        (void)bench.file.rows("delete from Presets");
    }
}

INSTANTIATE_TEST_SUITE_P(, FilterPositions, testing::ValuesIn(keptFilters()), test::CaseName());

TEST(FilterColor, StaysForAFilterWithoutOne)
{
    RecordBench bench(u"filters"_s, u"filters"_s, u"Edit"_s);
    bench.give(u"pubFilterSelection"_s, u"18"_s);
    bench.saveRound(Round::First);
    bench.give(u"cwFilterMonochromeColor"_s, u"0 0.5 1"_s);

    bench.load(Round::First);

    EXPECT_EQ(bench.read(u"cwFilterMonochromeColor"_s), u"0 0.5 1"_s);
}
