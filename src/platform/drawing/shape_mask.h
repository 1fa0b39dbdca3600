// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QPainterPath>

#include <span>
#include <vector>

namespace brenvaldo::platform::drawing {

/// Which pixels of a canvas a shape covers, and how far each of them, with soft edges.
///
/// Pixels next to each other that are covered alike are one run, so that the shape of a large
/// picture takes little memory.
class ShapeMask
{
public:
    /// Pixels of a row from `begin` to before `end`.
    struct Run
    {
        int begin = 0;
        int end = 0;
        quint8 coverage = 0; ///< 1 to 255

        friend bool operator==(const Run&, const Run&) = default;
    };

    /// `shape` in pixels of a canvas whose origin is its top left corner; what lies outside of the
    /// canvas is cut off.
    ShapeMask(const QPainterPath& shape, graphics::PixelSize canvas);

    /// The covered runs of a row of the canvas, from left to right.
    [[nodiscard]] std::span<const Run> row(int y) const;

private:
    std::vector<Run> m_runs; ///< of all rows, from the top down
    std::vector<std::size_t> m_runsEnd; ///< where the runs of each row end
};

} // namespace brenvaldo::platform::drawing
