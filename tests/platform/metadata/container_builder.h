// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace brenvaldo::test {

// Containers with metadata and no picture, just enough for a reader of their structure.

/// Start marker, the segments, and a scan.
[[nodiscard]] QByteArray bareJpeg(const QByteArrayList& segments);

/// Signature, header, the chunks, picture data and end.
[[nodiscard]] QByteArray barePng(const QByteArrayList& chunks);

/// A box of the ISO base media format.
[[nodiscard]] QByteArray isoBox(const QByteArray& type, const QByteArray& payload);

[[nodiscard]] QByteArray bareHeif(const QByteArray& exif, const QByteArray& xmp);
[[nodiscard]] QByteArray bareJpeg2000(const QByteArrayList& boxes);
[[nodiscard]] QByteArray bareJpegXl(const QByteArray& exif, const QByteArray& xmp);
[[nodiscard]] QByteArray bareWebp(const QByteArray& exif, const QByteArray& xmp);
[[nodiscard]] QByteArray bareGif(const QByteArray& comment, const QByteArray& xmp);
[[nodiscard]] QByteArray barePsd(const QByteArray& resources);

} // namespace brenvaldo::test
