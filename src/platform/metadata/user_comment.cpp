// SPDX-License-Identifier: GPL-3.0-or-later
#include "user_comment.h"

#include <platform/containers/tiff_edit.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::ByteOrder;

namespace {

bool isAscii(const QString& text)
{
    constexpr char16_t firstBeyond = 0x80;
    return std::all_of(text.begin(), text.end(), [](QChar unit) {
        return unit.unicode() < firstBeyond;
    });
}

QByteArray utf16(const QString& text, ByteOrder order)
{
    QByteArray bytes;
    for (const QChar unit : text)
        containers::appendUnsigned(bytes, unit.unicode(), 2, order);
    return bytes;
}

} // namespace

containers::TiffField userCommentField(const QString& comment, ByteOrder order)
{
    const QByteArray value = isAscii(comment) ? QByteArray("ASCII\0\0\0", 8) + comment.toLatin1()
                                              : QByteArray("UNICODE\0", 8) + utf16(comment, order);
    return {.tag = tiff::UserComment, .type = tiff::Undefined, .value = value};
}

std::optional<QByteArray> exifWithUserComment(const QByteArray& exif, const QString& comment)
{
    const QByteArray block = exif.isEmpty() ? containers::emptyTiff(ByteOrder::Big) : exif;
    const auto file = containers::TiffFile::open(block);
    if (!file)
        return std::nullopt;
    if (const auto overwritten
        = containers::tiffWithExifValue(block, userCommentField(comment, file->order())))
        return overwritten;
    const auto pieces
        = containers::editedTiff(block, {.exif = {userCommentField(comment, file->order())}});
    return pieces ? std::optional(pieces->join()) : std::nullopt;
}

} // namespace brenvaldo::platform::metadata
