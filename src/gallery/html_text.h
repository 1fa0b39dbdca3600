// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::gallery {

/// A text that is no HTML, for use in a page: "a & b" as "a &amp; b".
[[nodiscard]] QString htmlText(const QString& text);

/// A file's name as part of a link: what would end or change the link is percent-encoded; blanks
/// and letters of any script stay.
[[nodiscard]] QString linkText(const QString& fileName);

} // namespace brenvaldo::gallery
