// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/filters/line_blur.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using platform::filters::lineBlurred;

namespace {

/// Floats that differ from column to column and from line to line.
vips::VImage slopes(int width, int height)
{
    const vips::VImage places = vips::VImage::xyz(width, height);
    return (places[0] * places[1]).cast(VIPS_FORMAT_FLOAT);
}

/// `below` laid over a few columns of `above`. One thread of the engine computes both: what `above`
/// was made of is still at hand when `below` needs a part of the same lines.
vips::VImage overlaid(const vips::VImage& above, const vips::VImage& below)
{
    return above.extract_area(0, 4, 400, 10)
        + below.extract_area(200, 14, 20, 6).embed(200, 0, 400, 10);
}

} // namespace

TEST(LineBlur, ReadsThePartThatItNeedsWhereTheEngineHasMoreOfThePicture)
{
    const vips::VImage pixels = slopes(400, 20);
    const vips::VImage blurred = lineBlurred(pixels, 2);

    const vips::VImage actual = overlaid(blurred, blurred);

    const vips::VImage expected
        = overlaid(lineBlurred(pixels, 2).copy_memory(), lineBlurred(pixels, 2).copy_memory());
    EXPECT_EQ((actual.copy_memory() - expected).abs().max(), 0);
}
