// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_source.h"
#include "photo_decoder.h"

#include <platform/containers/exif_facts.h>
#include <platform/containers/type_identifier.h>

#include <platform/foundation/regular_file.h>

#include <QFile>
#include <QTransform>
#include <QtEndian>

#include <optional>

namespace brenvaldo::platform {

namespace {

/// The header of a JPEG as far as the frame, without its pixels.
struct JpegHead
{
    QByteArray exif; ///< TIFF structure; empty without one
    QSize size; ///< stored pixels
};

bool isFrameHeader(uchar marker)
{
    constexpr uchar huffmanTables = 0xC4;
    constexpr uchar extension = 0xC8;
    constexpr uchar arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != extension
        && marker != arithmeticTables;
}

QSize frameSize(const QByteArray& contents)
{
    constexpr qsizetype sizeFields = 5;
    if (contents.size() < sizeFields)
        return {};
    return {
        qFromBigEndian<quint16>(contents.constData() + 3),
        qFromBigEndian<quint16>(contents.constData() + 1),
    };
}

/// Marker of the next segment; its length field, itself included, is read as well.
struct Segment
{
    uchar marker;
    qint64 contentsSize;
};

std::optional<Segment> nextSegment(QFile& file)
{
    const QByteArray head = file.read(4);
    if (head.size() < 4 || static_cast<uchar>(head[0]) != 0xFF)
        return std::nullopt;
    const qint64 length = qFromBigEndian<quint16>(head.constData() + 2);
    if (length < 2)
        return std::nullopt;
    return Segment{static_cast<uchar>(head[1]), length - 2};
}

JpegHead readJpegHead(const QString& path)
{
    constexpr uchar application1 = 0xE1;
    static const QByteArray exifLabel("Exif\0\0", 6);
    JpegHead head;
    QFile file(path);
    if (!openRegularFile(file))
        return head;
    file.skip(2);
    while (const auto segment = nextSegment(file)) {
        const bool isExif = segment->marker == application1 && head.exif.isEmpty();
        if (!isExif && !isFrameHeader(segment->marker)) {
            file.skip(segment->contentsSize);
            continue;
        }
        const QByteArray contents = file.read(segment->contentsSize);
        if (isExif && contents.startsWith(exifLabel))
            head.exif = contents.mid(exifLabel.size());
        if (isFrameHeader(segment->marker)) {
            head.size = frameSize(contents);
            break;
        }
    }
    return head;
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
    switch (orientation) {
    case 2:
        return QTransform::fromScale(-1, 1);
    case 3:
        return QTransform::fromScale(-1, -1);
    case 4:
        return QTransform::fromScale(1, -1);
    case 5:
        return {0, 1, 1, 0, 0, 0};
    case 6:
        return {0, 1, -1, 0, 0, 0};
    case 7:
        return {0, -1, -1, 0, 0, 0};
    case 8:
        return {0, -1, 1, 0, 0, 0};
    default:
        return {};
    }
}

QImage jpegThumbnail(const QString& path)
{
    const JpegHead head = readJpegHead(path);
    const ExifFacts facts = readExifFacts(head.exif);
    if (facts.thumbnail.isEmpty())
        return {};
    const QImage stored = QImage::fromData(facts.thumbnail, "jpeg");
    if (stored.isNull())
        return {};
    return withoutBars(stored, head.size).transformed(uprightTransform(facts.orientation));
}

} // namespace

QImage embeddedThumbnail(const QString& path)
{
    const QString type = typeIdentifierOfContents(path);
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

} // namespace brenvaldo::platform
