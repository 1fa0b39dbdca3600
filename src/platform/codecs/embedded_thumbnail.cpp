// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_source.h"
#include "orientation.h"
#include "photo_decoder.h"

#include <platform/containers/bytes.h>
#include <platform/containers/exif_facts.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/mapped_file.h>
#include <platform/containers/type_identifier.h>

#include <QTransform>

namespace brenvaldo::platform::codecs {

namespace {

bool isFrameHeader(uchar marker)
{
    constexpr uchar huffmanTables = 0xC4;
    constexpr uchar extension = 0xC8;
    constexpr uchar arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != extension
        && marker != arithmeticTables;
}

/// The size in a frame header, behind the bits of a sample.
QSize frameSize(QByteArrayView frame)
{
    const auto height = containers::unsignedAt(frame, 1, 2, containers::ByteOrder::Big);
    const auto width = containers::unsignedAt(frame, 3, 2, containers::ByteOrder::Big);
    if (!height || !width)
        return {};
    return {static_cast<int>(*width), static_cast<int>(*height)};
}

/// The size of the stored pixels; empty without a frame.
QSize jpegSize(const containers::JpegHeader& header)
{
    for (const containers::JpegSegment& segment : header.segments) {
        if (isFrameHeader(segment.marker))
            return frameSize(segment.payload);
    }
    return {};
}

/// The middle of `thumbnail` with the proportions of the photo: cameras put black bars around it.
QImage withoutBars(const QImage& thumbnail, QSize photo)
{
    if (photo.isEmpty())
        return thumbnail;
    const QSize bounds = thumbnail.size();
    const QSize inner = photo.scaled(bounds, Qt::KeepAspectRatio);
    if (inner.isEmpty() || inner == bounds)
        return thumbnail;
    return thumbnail.copy(
        (bounds.width() - inner.width()) / 2,
        (bounds.height() - inner.height()) / 2,
        inner.width(),
        inner.height()
    );
}

QTransform uprightTransform(int orientation)
{
    constexpr int quarter = 90;
    const UprightTurn turn = uprightTurn(orientation);
    return QTransform::fromScale(turn.isMirrored ? -1 : 1, 1).rotate(turn.quarters * quarter);
}

QImage jpegThumbnail(const QString& path)
{
    const containers::MappedFile file(path);
    const auto header = containers::readJpegHeader(file.bytes());
    if (!header)
        return {};
    const containers::ExifFacts facts = containers::readExifFacts(containers::jpegExif(*header));
    if (facts.thumbnail.isEmpty())
        return {};
    const QImage stored = QImage::fromData(facts.thumbnail, "jpeg");
    if (stored.isNull())
        return {};
    return withoutBars(stored, jpegSize(*header)).transformed(uprightTransform(facts.orientation));
}

} // namespace

QImage embeddedThumbnail(const QString& path)
{
    const QString type = containers::typeIdentifierOfContents(path);
    if (type == QLatin1String("public.jpeg"))
        return jpegThumbnail(path);
    if (!isHeifType(type))
        return {};
    try {
        return heifThumbnail(path);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace brenvaldo::platform::codecs
