// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QRectF>
#include <QStyle>

class QPainter;

/// \file
/// Shapes that the style and the own-drawn widgets share.

namespace brenvaldo::views {

/// The rounded ground of a field, pop-up or button, with its hairline or its focus ring.
struct FieldFrame
{
    QColor fill;
    QColor line;
    bool focused = false;
};

void paintFieldFrame(QPainter& painter, const QRect& rect, const FieldFrame& frame);

/// The frame of a field in its state; a disabled one sinks into the window.
[[nodiscard]] FieldFrame fieldFrame(QStyle::State state);

/// A chevron that points down, centred in `rect`.
void paintChevron(QPainter& painter, const QRectF& rect, const QColor& color);

/// The box of a check box of `side` x `side`, ticked or not.
struct TickBox
{
    QRectF rect;
    bool ticked = false;
    bool enabled = true;
    bool focused = false;
    bool onPicture = false; ///< gets a light rim, to be seen on any photo
};

void paintTickBox(QPainter& painter, const TickBox& box);

} // namespace brenvaldo::views
