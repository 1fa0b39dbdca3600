// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_block.h"

#include <QList>
#include <QtEndian>

namespace brenvaldo::test {

namespace {

QByteArray littleEndian16(quint16 value)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray littleEndian32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

enum FieldType : quint16 { Ascii = 2, Short = 3, Long = 4, Rational = 5, Undefined = 7 };

struct Entry
{
    quint16 tag;
    FieldType type;
    quint32 count;
    QByteArray value;
};

Entry text(quint16 tag, const QByteArray& value)
{
    return {tag, Ascii, static_cast<quint32>(value.size() + 1), value + '\0'};
}

Entry bytes(quint16 tag, const QByteArray& value)
{
    return {tag, Undefined, static_cast<quint32>(value.size()), value};
}

Entry shortNumber(quint16 tag, int value)
{
    return {tag, Short, 1, littleEndian16(static_cast<quint16>(value))};
}

Entry longNumber(quint16 tag, qsizetype value)
{
    return {tag, Long, 1, littleEndian32(static_cast<quint32>(value))};
}

Entry rational(quint16 tag, int value)
{
    return {tag, Rational, 1, littleEndian32(static_cast<quint32>(value)) + littleEndian32(1)};
}

qsizetype directorySize(const QList<Entry>& entries)
{
    qsizetype size = 2 + entries.size() * 12 + 4;
    for (const Entry& entry : entries)
        size += entry.value.size() > 4 ? entry.value.size() + entry.value.size() % 2 : 0;
    return size;
}

/// A directory at `offset` of the block with the values behind it.
QByteArray directory(const QList<Entry>& entries, qsizetype offset, qsizetype nextDirectory)
{
    QByteArray head = littleEndian16(static_cast<quint16>(entries.size()));
    QByteArray values;
    const qsizetype valuesAt = offset + 2 + entries.size() * 12 + 4;
    for (const Entry& entry : entries) {
        head
            += littleEndian16(entry.tag) + littleEndian16(entry.type) + littleEndian32(entry.count);
        if (entry.value.size() <= 4) {
            head += entry.value.leftJustified(4, '\0');
            continue;
        }
        head += littleEndian32(static_cast<quint32>(valuesAt + values.size()));
        values += entry.value + QByteArray(entry.value.size() % 2, '\0');
    }
    return head + littleEndian32(static_cast<quint32>(nextDirectory)) + values;
}

QList<Entry> exifEntries(const ExifFields& fields)
{
    QList<Entry> entries;
    if (!fields.dateTimeOriginal.isEmpty())
        entries += text(0x9003, fields.dateTimeOriginal);
    if (!fields.makerNote.isEmpty())
        entries += bytes(0x927C, fields.makerNote);
    if (!fields.userComment.isEmpty())
        entries += bytes(0x9286, fields.userComment);
    return entries;
}

QList<Entry> mainEntries(const ExifFields& fields, qsizetype exifDirectory)
{
    QList<Entry> entries;
    if (!fields.make.isEmpty())
        entries += text(0x010F, fields.make);
    if (fields.orientation != 0)
        entries += shortNumber(0x0112, fields.orientation);
    if (fields.dotsPerInch != 0) {
        constexpr int perInch = 2;
        entries += {rational(0x011A, fields.dotsPerInch), rational(0x011B, fields.dotsPerInch)};
        entries += shortNumber(0x0128, perInch);
    }
    if (exifDirectory != 0)
        entries += longNumber(0x8769, exifDirectory);
    return entries;
}

QList<Entry> thumbnailEntries(const QByteArray& thumbnail, qsizetype thumbnailAt)
{
    constexpr int jpegCompression = 6;
    return {
        shortNumber(0x0103, jpegCompression),
        longNumber(0x0201, thumbnailAt),
        longNumber(0x0202, thumbnail.size()),
    };
}

} // namespace

QByteArray exifBlock(const ExifFields& fields)
{
    constexpr qsizetype mainAt = 8;
    const QList<Entry> exif = exifEntries(fields);
    const qsizetype placeholder = exif.isEmpty() ? 0 : 1;
    const qsizetype exifAt = mainAt + directorySize(mainEntries(fields, placeholder));
    const qsizetype thumbnailDirectoryAt = exifAt + (exif.isEmpty() ? 0 : directorySize(exif));
    const bool hasThumbnail = !fields.thumbnail.isEmpty();

    QByteArray block = QByteArray("II*\0", 4) + littleEndian32(mainAt);
    block += directory(
        mainEntries(fields, exif.isEmpty() ? 0 : exifAt),
        mainAt,
        hasThumbnail ? thumbnailDirectoryAt : 0
    );
    if (!exif.isEmpty())
        block += directory(exif, exifAt, 0);
    if (hasThumbnail) {
        const qsizetype size = directorySize(thumbnailEntries(fields.thumbnail, 0));
        block += directory(
            thumbnailEntries(fields.thumbnail, thumbnailDirectoryAt + size), thumbnailDirectoryAt, 0
        );
        block += fields.thumbnail;
    }
    return block;
}

} // namespace brenvaldo::test
