// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit_rules.h"

#include <platform/foundation/inches.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <cmath>

namespace brenvaldo::imaging {

using platform::truncated;

namespace {

constexpr double millimetresPerPica = 4.2175176;
constexpr double millimetresPerPoint = 0.3527777777778;

/// The length is narrowed to single precision before it meets the resolution: the results at the
/// border of two pixels hang on it.
double pixelsOfMillimetres(float millimetres, float dotsPerInch)
{
    const float product = millimetres * dotsPerInch;
    return product / platform::millimetresPerInch;
}

float millimetres(float value, double millimetresPerUnit)
{
    return static_cast<float>(value * millimetresPerUnit);
}

} // namespace

bool needsResolution(const QString& unit) { return unit != u"pixel"_s; }

std::int32_t pixelsOf(float value, const QString& unit, float dotsPerInch)
{
    if (unit == u"mm"_s)
        return truncated(pixelsOfMillimetres(value, dotsPerInch));
    if (unit == u"cm"_s)
        return truncated(pixelsOfMillimetres(value * 10.0F, dotsPerInch));
    if (unit == u"inch"_s) {
        const float length = millimetres(value, platform::millimetresPerInch);
        return truncated(pixelsOfMillimetres(length, dotsPerInch));
    }
    if (unit == u"pica"_s) {
        const float length = millimetres(value, millimetresPerPica);
        const auto exact = static_cast<float>(pixelsOfMillimetres(length, dotsPerInch));
        return truncated(std::round(exact));
    }
    if (unit == u"punt"_s) {
        const float length = millimetres(value, millimetresPerPoint);
        return truncated(pixelsOfMillimetres(length, dotsPerInch));
    }
    return truncated(value);
}

} // namespace brenvaldo::imaging
