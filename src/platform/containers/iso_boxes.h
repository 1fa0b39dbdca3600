// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

namespace brenvaldo::platform::containers {

/// A box of the ISO base media format: views into the file.
struct IsoBox
{
    QByteArrayView type; ///< four letters
    QByteArrayView payload;
    QByteArrayView whole; ///< length, type and payload
};

/// The boxes that stand side by side in `bytes`, up to the first that is damaged.
[[nodiscard]] QList<IsoBox> isoBoxes(QByteArrayView bytes);

/// The payload of the first box of that type; empty when there is none.
[[nodiscard]] QByteArrayView isoBox(const QList<IsoBox>& boxes, QByteArrayView type);

/// Makes a whole box.
[[nodiscard]] QByteArray isoBoxOf(QByteArrayView type, QByteArrayView payload);

/// The EXIF block of an item that starts with the number of bytes in front of the block.
[[nodiscard]] QByteArray exifBehindOffset(QByteArrayView item);

} // namespace brenvaldo::platform::containers
