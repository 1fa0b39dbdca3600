// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QImage>
#include <QSizeF>

#include <optional>

namespace brenvaldo::services {

/// The modules of a code drawn over a picture of that many points, with sharp edges.
///
/// A point has two pixels a side, as on the screens that the sizes of codes are meant for, so the
/// picture has 144 dots per inch; halves of a pixel round up. Nothing for a picture without pixels,
/// and for one that is too large.
[[nodiscard]] std::optional<platform::graphics::Image>
codePicture(const QImage& modules, QSizeF points);

} // namespace brenvaldo::services
