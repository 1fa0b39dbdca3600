// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_mark_rules.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace brenvaldo::watermark {

using platform::truncated;
using platform::drawing::BlendMode;
using platform::drawing::FadeMask;
using platform::graphics::PixelSize;

namespace {

constexpr int gridColumns = 3;
constexpr int gridCells = 9;
constexpr int centre = 4;

constexpr double ownSize = 1'000'000;

/// Place along one side: at the edge that coordinates begin at, in the middle, or at the other.
int alongSide(int step, int room, int offset)
{
    switch (step) {
    case 0:
        return offset;
    case 1:
        return truncated((room - offset) * 0.5);
    default:
        return room - offset;
    }
}

double factorOf(const ScaleRule& rule, PixelSize photo, PixelSize image)
{
    switch (rule.row) {
    case 0:
        return rule.percent / 100.0;
    case 1:
        return static_cast<double>(rule.percent) * photo.width / 100 / image.width;
    case 2:
        return static_cast<double>(rule.percent) * photo.height / 100 / image.height;
    default:
        return ownSize;
    }
}

QString sixDecimals(double value) { return QString::number(value, 'f', 6); }

double radiusOf(const FadeRule& rule, double half) { return rule.extent * 100 * half / 100; }

platform::drawing::FadeAlong linearFade(const FadeRule& rule, const QSizeF& size)
{
    const double radians = rule.angle * std::numbers::pi / 180;
    const QPointF direction(std::cos(radians), std::sin(radians));
    const double length
        = std::abs(size.width() * direction.x()) + std::abs(size.height() * direction.y());
    const QPointF start = QPointF(size.width(), size.height()) / 2 - direction * (length / 2);
    return {.whole = start, .gone = start + direction * (length * rule.extent)};
}

platform::drawing::FadeOutward outwardFade(const FadeRule& rule, const QSizeF& size)
{
    constexpr double rim = 2;
    return {
        .centre = {size.width() * 0.5, size.height() * 0.5},
        .radius = std::min(
            radiusOf(rule, size.width() * 0.5 - rim), radiusOf(rule, size.height() * 0.5 - rim)
        )};
}

platform::drawing::FadeInward inwardFade(const FadeRule& rule, const QSizeF& size, Lane lane)
{
    constexpr double divisorOfPatterns = 150;
    const double outer = std::min(size.width() * 0.5, size.height() * 0.5);
    const double inner = radiusOf(rule, outer);
    return {
        .centre = {size.width() * 0.5, size.height() * 0.5},
        .outer = outer,
        .inner = lane == Lane::Pattern ? inner / divisorOfPatterns : inner};
}

} // namespace

std::optional<QPoint> insetOrigin(const Inset& inset, PixelSize photo, PixelSize image)
{
    const int acrossRoom = photo.width - image.width;
    const int alongRoom = photo.height - image.height;
    if (inset.anchor < 0 || inset.anchor >= gridCells)
        return std::nullopt;
    if (inset.anchor == centre)
        return QPoint(acrossRoom / 2 + inset.xOffset, alongRoom / 2 + inset.yOffset);
    return QPoint(
        alongSide(inset.anchor % gridColumns, acrossRoom, inset.xOffset),
        alongSide(gridColumns - 1 - inset.anchor / gridColumns, alongRoom, inset.yOffset)
    );
}

QString scaleFactorText(const ScaleRule& rule, PixelSize photo, PixelSize image)
{
    const QString percent = sixDecimals(rule.percent);
    return rule.percent == 0 ? percent : sixDecimals(factorOf(rule, photo, image));
}

std::optional<float> scalingOf(const QString& factorText)
{
    const bool leavesTheImage = factorText == u"0.000000"_s || factorText == u"100.000000"_s
        || factorText == u"1000000.000000"_s;
    return leavesTheImage ? std::nullopt : std::optional(platform::floatValue(factorText));
}

std::optional<BlendMode> blendModeOfIndex(int index)
{
    static constexpr std::array modes{
        BlendMode::Normal,
        BlendMode::PlusDarker,
        BlendMode::PlusLighter,
        BlendMode::Multiply,
        BlendMode::Difference,
        BlendMode::ColorDodge,
        BlendMode::Luminosity,
        BlendMode::Color,
        BlendMode::Exclusion,
        BlendMode::ColorBurn,
        BlendMode::SoftLight,
    };
    const bool isListed = index >= 0 && static_cast<std::size_t>(index) < modes.size();
    return isListed ? std::optional(modes.at(static_cast<std::size_t>(index))) : std::nullopt;
}

FadeMask fadeMask(const FadeRule& rule, const QSizeF& size, Lane lane)
{
    switch (rule.shape) {
    case FadeShape::Linear:
        return {.size = size, .shape = linearFade(rule, size)};
    case FadeShape::Radial:
        return {.size = size, .shape = outwardFade(rule, size)};
    case FadeShape::InvertedRadial:
        return {.size = size, .shape = inwardFade(rule, size, lane)};
    }
    return {};
}

int sideThatSurvivesTurning(int across, int along)
{
    const double halfAcross = across / 2;
    const double halfAlong = along / 2;
    return 2 * truncated(std::sqrt(halfAcross * halfAcross + halfAlong * halfAlong)) + 2;
}

} // namespace brenvaldo::watermark
