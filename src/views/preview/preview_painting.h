// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview_renderer.h"

#include <QRectF>

class QPainter;

/// \file
/// What stands round the picture in the preview.

namespace brenvaldo::views {

void paintPictureShadow(QPainter& painter, const QRectF& picture);

/// The caption on a chip at the left of `room`, no wider than it.
void paintCaption(QPainter& painter, const QRect& room, const PreviewPicture& picture);

/// A drawing and `text` in the middle, where there is no picture.
void paintEmptyPreview(QPainter& painter, const QRect& room, const QString& text);

/// The frame of a preview that the keyboard has moved to.
void paintPreviewFocus(QPainter& painter, const QRect& room);

} // namespace brenvaldo::views
