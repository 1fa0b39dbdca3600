// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QPainterPath>

#include <memory>
#include <span>

namespace brenvaldo::platform::drawing {

/// Which pixels of a canvas a shape covers, and how far each of them, with soft edges.
///
/// Pixels next to each other that are covered alike are one run, so that the shape of a large
/// picture takes little memory. Rows are drawn when they are first asked for, on the thread that
/// asks; several threads may ask at once. Copies share them.
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
    struct Strips;

    std::shared_ptr<Strips> m_strips;
};

} // namespace brenvaldo::platform::drawing
