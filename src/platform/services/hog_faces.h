// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>

#include <vector>

namespace brenvaldo::platform::services {

/// The faces of an 8-bit grey picture that look at the camera, from brow to chin, in no order.
///
/// Faces below 80 pixels are not seen. A box may reach over the edge of the picture.
[[nodiscard]] std::vector<QRect> hogFaces(const QImage& gray);

} // namespace brenvaldo::platform::services
