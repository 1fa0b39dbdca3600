// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <optional>

namespace brenvaldo::platform::containers {

/// The parts of a PSD or PSB file behind its header: views into the file.
struct PhotoshopSections
{
    QByteArrayView colors; ///< the palette of an indexed picture
    QByteArrayView resources; ///< image resource blocks
    std::optional<QByteArrayView> layers; ///< nothing when it is cut off
    QByteArrayView picture; ///< the merged picture, up to the end of the file
};

constexpr qsizetype photoshopHeaderLength = 26;

/// True for a PSB file, which counts in wider fields.
[[nodiscard]] bool isLargePhotoshopFile(QByteArrayView file);

/// Nothing when the file ends before its resources do.
[[nodiscard]] std::optional<PhotoshopSections> photoshopSections(QByteArrayView file);

} // namespace brenvaldo::platform::containers
