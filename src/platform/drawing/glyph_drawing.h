// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text_drawing.h"

#include <QGlyphRun>

namespace brenvaldo::platform::drawing {

/// The outlines of the run's glyphs, or the pictures of a colour font; the origin is that of the
/// run's positions.
[[nodiscard]] TextDrawing drawingOfGlyphs(const QGlyphRun& run);

} // namespace brenvaldo::platform::drawing
