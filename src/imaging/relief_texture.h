// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace brenvaldo::imaging {

/// The picture of a lit hemisphere that shades embossed text: "texture1" to "texture8", 256 by 256
/// pixels.
///
/// Lambert's law with a Blinn highlight; beyond the ball its rim goes on. Null for another name.
[[nodiscard]] QImage reliefTexture(const QString& name);

} // namespace brenvaldo::imaging
