// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace brenvaldo::workspace {

/// The photos that the big preview shows, at full size.
///
/// A photo's pixels are decoded when they are first drawn and kept while they are one of the last
/// two asked for, so that a change of a control does not decode it again. A file that has
/// changed on disk is read anew.
class PreviewPhotos
{
public:
    /// The upright photo; nothing when the file can't be read.
    [[nodiscard]] std::optional<platform::graphics::Image> photo(const QString& path);

    /// The photo as it is stored: the same as `photo` where it is stored upright.
    [[nodiscard]] std::optional<platform::graphics::Image> storedPhoto(const QString& path);

private:
    enum class Pixels { Upright, Stored };

    struct Kept
    {
        QString path;
        Pixels pixels = Pixels::Upright;
        QDateTime modified;
        qint64 bytes = 0;
        platform::graphics::Image image;
    };

    [[nodiscard]] static std::optional<platform::graphics::Image>
    opened(const QString& path, Pixels pixels);
    [[nodiscard]] std::optional<platform::graphics::Image>
    keptPhoto(const QString& path, Pixels pixels);

    QList<Kept> m_kept;
};

/// `overlay` drawn over `photo` at the photo's size; the one that there is when there is only one.
/// An overlay that is the photo with its mark stands for both, as it will be written.
[[nodiscard]] std::optional<platform::graphics::Image> composed(
    const std::optional<platform::graphics::Image>& photo,
    const std::optional<platform::graphics::Image>& overlay
);

} // namespace brenvaldo::workspace
