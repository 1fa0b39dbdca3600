// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/progress.h>
#include <platform/foundation/literals.h>

#include <gtest/gtest.h>

#include "support/case_name.h"

using namespace brenvaldo;
using std::chrono::milliseconds;

namespace {

struct Bar
{
    const char* name;
    controls::BarRhythm rhythm;
    double maximum;
    milliseconds before;
    milliseconds after;
};

void PrintTo(const Bar& bar, std::ostream* out) { *out << bar.name; }

class Bars : public testing::TestWithParam<Bar>
{
};

} // namespace

TEST_P(Bars, CountAndPauseByTheirRow)
{
    const Bar& bar = GetParam();

    EXPECT_EQ(bar.rhythm.maximum, bar.maximum);
    EXPECT_EQ(bar.rhythm.pauseBefore, bar.before);
    EXPECT_EQ(bar.rhythm.pauseAfter, bar.after);
}

INSTANTIATE_TEST_SUITE_P(
    Progress,
    Bars,
    testing::Values(
        Bar{"GuiControls", controls::guiControlsBar, 1000, milliseconds(10), milliseconds(10)},
        Bar{"Watermark", controls::watermarkBar, 1000, milliseconds(10), milliseconds(10)},
        Bar{"ResponsiveDesign",
            controls::responsiveDesignBar,
            100,
            milliseconds(10),
            milliseconds(10)},
        Bar{"CollectionView", controls::collectionViewBar, 100, milliseconds(1), milliseconds(1)},
        Bar{"ImageHandling", controls::imageHandlingBar, 100, milliseconds(1), milliseconds(0)}
    ),
    test::CaseName{}
);

TEST(Progress, ShowsTheBarWhileItRuns)
{
    controls::ProgressIndicator bar(u"myProgressBar"_s);
    controls::Progress progress(bar, controls::guiControlsBar);

    progress.hInitialisePB();

    EXPECT_FALSE(bar.isHidden());
    EXPECT_TRUE(bar.isAnimating());
    EXPECT_EQ(bar.maximum(), 1000);
    EXPECT_EQ(bar.doubleValue(), 0);
}

TEST(Progress, StopsShortOfTheEndWhenTheStepDoesNotDivideIt)
{
    controls::ProgressIndicator bar(u"myProgressBar"_s);
    controls::Progress progress(bar, controls::guiControlsBar);
    progress.hInitialisePB();

    for (int photo = 0; photo < 3; ++photo)
        progress.hProgressPB(333);

    EXPECT_EQ(bar.doubleValue(), 999);
}

TEST(Progress, HidesTheBarAtTheEnd)
{
    controls::ProgressIndicator bar(u"myProgressBar"_s);
    controls::Progress progress(bar, controls::guiControlsBar);
    progress.hInitialisePB();
    progress.hProgressPB(100);

    progress.hStopPB();

    EXPECT_TRUE(bar.isHidden());
    EXPECT_FALSE(bar.isAnimating());
    EXPECT_EQ(bar.doubleValue(), 0);
}
