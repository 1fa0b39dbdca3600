// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace brenvaldo::gallery {

/// The value of a photo for a title of the metadata pop-up; "" without one.
using CaptionValue = std::function<QString(const QString& title)>;

/// What a photo's caption is made of.
struct CaptionSettings
{
    QString parts; ///< titles of the metadata pop-up, parted by ";"
    QString separator; ///< HTML
};

/// The caption of a photo as HTML: the values of the asked parts that the photo has, in their
/// order. A title that there is not is passed over.
[[nodiscard]] QString caption(
    const CaptionSettings& settings,
    const QString& fileName,
    const CaptionValue& comment,
    const CaptionValue& iptc
);

} // namespace brenvaldo::gallery
