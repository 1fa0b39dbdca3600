// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace brenvaldo::watermark {

/// A token that a watermark text may hold, and where its value comes from.
struct Placeholder
{
    enum class Source { Top, Exif, Iptc, OutputName };
    enum class Form { Plain, FirstOfArray, JoinedArray };

    QString token; ///< such as "<[IMGCD]>"
    Source source = Source::Top;
    QString key; ///< key in the photo's property dictionary; empty for the output name
    Form form = Form::Plain;
};

/// All placeholders in the order of the pop-up that inserts them, which is the order of replacing.
[[nodiscard]] const QList<Placeholder>& placeholders();

/// The photo's value of a placeholder as text; nothing when its dictionary or its key is missing.
using PlaceholderValue = std::function<std::optional<QString>(const Placeholder&)>;

/// Replaces each placeholder that stands in `typed` by the photo's value, everywhere at once.
///
/// A missing value leaves nothing behind; an EXIF or IPTC value that is there but empty leaves the
/// token as it is. Tokens that arrive inside of a value are replaced only if they stand in `typed`
/// as well and come later in the order.
[[nodiscard]] QString replacingPlaceholders(const QString& typed, const PlaceholderValue& value);

} // namespace brenvaldo::watermark
