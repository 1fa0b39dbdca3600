// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QImage>
#include <QString>

#include <optional>

namespace brenvaldo::gallery {

/// A picture of the program for files and folders, by its name; null for one that there is not.
[[nodiscard]] QImage icon(const QString& name);

/// The picture of a gallery template by its name, such as "Ex01XL.png"; nothing for any other name.
[[nodiscard]] std::optional<platform::graphics::Image> templatePicture(const QString& name);

} // namespace brenvaldo::gallery
