// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/engine_thread.h>
#include <platform/graphics/image.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <gtest/gtest.h>

namespace brenvaldo {
namespace {

using namespace platform::graphics;

/// A picture of 5000 rows that tells of each row that is made.
Image tallPicture(const std::function<void()>& rowIsMade)
{
    ImageNode node;
    node.colorModel = ColorModel::Gray;
    node.pixels = mapRows(
        std::array{vips::VImage::black(8, 5000)},
        {.bands = 1, .interpretation = VIPS_INTERPRETATION_B_W},
        [rowIsMade](const KernelRow<1>& /*row*/) { rowIsMade(); }
    );
    return makeImage(node);
}

TEST(EvaluationTerms, FailAnEvaluationSoonAfterItIsCancelled)
{
    const auto cancelled = std::make_shared<std::atomic<bool>>(false);
    std::atomic<int> rows = 0;
    const Image picture = tallPicture([&] {
        ++rows;
        *cancelled = true;
    });
    const TermsOnThread terms({.threads = 2, .cancelled = cancelled});

    EXPECT_FALSE(picture.copiedToMemory());
    EXPECT_LT(rows, 2500);
}

TEST(EvaluationTerms, LetAnEvaluationGoOnThatNobodyCancels)
{
    std::atomic<int> rows = 0;
    const Image picture = tallPicture([&] { ++rows; });
    const TermsOnThread terms(
        {.threads = 2, .cancelled = std::make_shared<std::atomic<bool>>(false)}
    );

    EXPECT_TRUE(picture.copiedToMemory());
    EXPECT_EQ(rows, 5000);
}

TEST(EvaluationTerms, HoldWithinTheirScopeOnTheirThread)
{
    {
        const TermsOnThread outer({.threads = 3});
        {
            const TermsOnThread inner({.threads = 1});
            EXPECT_EQ(EvaluationTerms::ofThread().threads, 1);
        }
        EXPECT_EQ(EvaluationTerms::ofThread().threads, 3);
    }
    EXPECT_EQ(EvaluationTerms::ofThread().threads, 0);
}

} // namespace
} // namespace brenvaldo
