// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_root_fields.h"

#include <algorithm>

namespace brenvaldo::platform::metadata {

using containers::TiffDirectory;
using containers::TiffField;
using containers::TiffFile;

namespace {

constexpr qsizetype inlineLength = 4;

/// The first directory of `file`, whose long values stay where they stand.
TiffDirectory placedRoot(const TiffFile& file)
{
    TiffDirectory directory = file.firstDirectory();
    for (TiffField& field : directory)
        field.isPlaced = true;
    return directory;
}

/// The block up to its first directory when nothing follows that, padded to where one can start.
QByteArray withoutLastRoot(const QByteArray& exif, const TiffFile& file)
{
    const auto end = static_cast<std::uint64_t>(exif.size());
    QByteArray block
        = file.firstEnd() == end ? exif.first(static_cast<qsizetype>(file.firstOffset())) : exif;
    if (block.size() % 2 != 0)
        block.append('\0');
    return block;
}

/// Moves the fields of these tags out of `directory`, those whose values stand last to the front.
TiffDirectory taken(TiffDirectory& directory, const QList<std::uint16_t>& tags)
{
    const auto first
        = std::stable_partition(directory.begin(), directory.end(), [&tags](const auto& field) {
              return !tags.contains(field.tag);
          });
    TiffDirectory result(first, directory.end());
    directory.erase(first, directory.end());
    std::sort(result.begin(), result.end(), [](const auto& left, const auto& right) {
        return left.valueOffset > right.valueOffset;
    });
    return result;
}

/// Cuts off the value of `field` when it stands last.
void cutOff(QByteArray& block, const TiffField& field)
{
    const auto start = static_cast<qsizetype>(field.valueOffset);
    const qsizetype end = start + field.value.size();
    if (field.value.size() > inlineLength && end + end % 2 == block.size())
        block.truncate(start);
}

/// The bytes of the placed `directory` with the link that the first one of `file` has.
QByteArray linked(const TiffDirectory& directory, const TiffFile& file)
{
    QByteArray bytes = containers::serializedDirectory(directory, file.firstOffset(), file.order());
    bytes.chop(4);
    containers::appendUnsigned(bytes, file.secondOffset(), 4, file.order());
    return bytes;
}

} // namespace

QByteArray withRootFields(const QByteArray& exif, const TiffDirectory& fields)
{
    const auto file = TiffFile::open(exif);
    if (!file || file->isBig() || file->firstEnd() == 0 || fields.isEmpty())
        return exif;
    TiffDirectory directory = placedRoot(*file);
    for (const TiffField& field : fields)
        containers::replace(directory, field);

    QByteArray block = withoutLastRoot(exif, *file);
    const auto offset = static_cast<std::uint64_t>(block.size());
    block.append(containers::serializedDirectory(directory, offset, file->order()));
    block.replace(0, containers::tiffHeaderLength, containers::tiffHeader(file->order(), offset));
    containers::setSecondOffset(block, file->secondOffset());
    return block;
}

QByteArray withoutRootFields(const QByteArray& exif, const QList<std::uint16_t>& tags)
{
    const auto file = TiffFile::open(exif);
    if (!file || file->isBig() || file->firstEnd() == 0)
        return exif;
    TiffDirectory kept = placedRoot(*file);
    const TiffDirectory removed = taken(kept, tags);
    if (removed.isEmpty())
        return exif;

    QByteArray block = exif;
    for (const TiffField& field : removed)
        cutOff(block, field);
    const auto offset = static_cast<qsizetype>(file->firstOffset());
    if (static_cast<std::uint64_t>(block.size()) <= file->firstEnd())
        block.truncate(offset);
    const QByteArray root = linked(kept, *file);
    const qsizetype former = block.first(offset).indexOf(root);
    if (former < 0)
        return block.replace(offset, root.size(), root);
    return block.replace(
        0,
        containers::tiffHeaderLength,
        containers::tiffHeader(file->order(), static_cast<std::uint64_t>(former))
    );
}

} // namespace brenvaldo::platform::metadata
