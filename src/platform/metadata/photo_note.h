// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// \file
/// What a user notes about a photo, put into the bytes of its file; all other metadata and the
/// pixels stay. Nothing comes back for a file that can't hold it.

namespace brenvaldo::platform::metadata {

/// An empty entry leaves what the file has.
struct PhotoNote
{
    QStringList keywords;
    QString title;
    QString description;

    [[nodiscard]] bool isEmpty() const
    {
        return keywords.isEmpty() && title.isEmpty() && description.isEmpty();
    }
};

/// As IPTC in UTF-8: a keyword and a title of at most 64 bytes, a description of at most 2000.
[[nodiscard]] std::optional<QByteArray> withIptcNote(const QByteArray& file, const PhotoNote& note);

/// As XMP, whole, and the description as EXIF, too: where other photo programs look.
[[nodiscard]] std::optional<QByteArray> withXmpNote(const QByteArray& file, const PhotoNote& note);

/// With the marks of a favourite: five stars and the label of a picked photo. Without, they are
/// taken away, but only where they are still those.
[[nodiscard]] std::optional<QByteArray> withFavourite(const QByteArray& file, bool favourite);

} // namespace brenvaldo::platform::metadata
