// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/start/slide_show_progress.h>

#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

namespace brenvaldo::workspace {
namespace {

TEST(SlideShowProgress, RunsAnIndeterminateBarInStepsOfOne)
{
    controls::ProgressIndicator bar(u"progBarSlideShow"_s);
    bar.setHidden(true);
    const cProgressbar progress;

    progress.hInitializeProgressbar(bar, 12);
    progress.hUpdateProgressbar(bar);
    progress.hUpdateProgressbar(bar);

    EXPECT_TRUE(bar.isIndeterminate());
    EXPECT_TRUE(bar.isAnimating());
    EXPECT_FALSE(bar.isHidden());
    EXPECT_EQ(bar.maximum(), 12);
    EXPECT_EQ(bar.doubleValue(), 2);
}

TEST(SlideShowProgress, ResetsToAMaximumOf100)
{
    controls::ProgressIndicator bar(u"progBarSlideShow"_s);
    const cProgressbar progress;
    progress.hInitializeProgressbar(bar, 12);
    progress.hUpdateProgressbar(bar);

    progress.hResetProgressbar(bar);

    EXPECT_FALSE(bar.isAnimating());
    EXPECT_EQ(bar.maximum(), 100);
    EXPECT_EQ(bar.doubleValue(), 0);
}

TEST(SlideShowProgress, LeavesABarOfAnotherNameAlone)
{
    controls::ProgressIndicator bar(u"myProgressBar"_s);
    const cProgressbar progress;

    progress.hInitializeProgressbar(bar, 12);
    progress.hUpdateProgressbar(bar);

    EXPECT_FALSE(bar.isIndeterminate());
    EXPECT_FALSE(bar.isAnimating());
    EXPECT_EQ(bar.doubleValue(), 0);

    bar.setMaximum(7);
    progress.hResetProgressbar(bar);
    EXPECT_EQ(bar.maximum(), 7);
}

TEST(SlideShowProgress, TellsTheLogThatItStarts)
{
    const test::LogLines log;
    controls::ProgressIndicator bar(u"progBarSlideShow"_s);

    cProgressbar().hInitializeProgressbar(bar, 12);

    EXPECT_EQ(
        log.lines(), QStringList({u"hInitializeProgressbar entred"_s, u"wordt geinitialiseerd"_s})
    );
}

} // namespace
} // namespace brenvaldo::workspace
