// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform::containers {

/// The type identifier that the platform prefers for a file name extension, such as "public.jpeg"
/// for "JPG".
///
/// Case is ignored. An unknown extension gives its dynamic identifier ("dyn.a..."), an empty one
/// "public.data".
[[nodiscard]] QString preferredTypeIdentifier(const QString& extension);

/// The type identifier of an image file by its first bytes; "" when they are of no known image
/// type.
[[nodiscard]] QString typeIdentifierOfContents(const QString& path);

} // namespace brenvaldo::platform::containers
