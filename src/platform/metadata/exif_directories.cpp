// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_directories.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::ByteOrder;
using containers::longField;
using containers::TiffDirectory;
using containers::TiffField;

namespace {

constexpr std::uint64_t longestGap = 32768;

/// First and last tag of each group.
constexpr std::array<std::pair<std::uint16_t, std::uint16_t>, 18> storageTags{
    {{254, 259}, // kind, size, depth, compression
     {262, 266}, // photometric interpretation, thresholds, fill order
     {273, 273}, // strip offsets
     {277, 281}, // samples, rows, strip lengths, smallest and largest sample
     {284, 284}, // planes
     {288, 293}, // free space, grey response, fax options
     {317, 317}, // predictor
     {320, 328}, // palette, halftone, tiles
     {330, 330}, // further directories
     {332, 332}, // inks
     {334, 334},
     {338, 347}, // extra samples, sample format, JPEG tables
     {512, 521}, // old JPEG
     {tiff::Xmp, tiff::Xmp},
     {tiff::Iptc, tiff::Iptc},
     {tiff::PhotoshopResources, tiff::PhotoshopResources},
     {tiff::IccProfile, tiff::IccProfile},
     {tiff::PhotoshopLayers, tiff::PhotoshopLayers}}};

TiffDirectory withoutStorageTags(const TiffDirectory& directory)
{
    TiffDirectory result;
    std::copy_if(
        directory.begin(),
        directory.end(),
        std::back_inserter(result),
        [](const TiffField& field) { return !describesStorage(field.tag); }
    );
    return result;
}

TiffDirectory without(TiffDirectory directory, std::initializer_list<std::uint16_t> tags)
{
    directory.removeIf([&](const TiffField& field) {
        return std::find(tags.begin(), tags.end(), field.tag) != tags.end();
    });
    return directory;
}

QByteArray serialized(const TiffDirectory& directory, std::uint64_t offset, ByteOrder order)
{
    return directory.isEmpty() ? QByteArray()
                               : containers::serializedDirectory(directory, offset, order);
}

/// Adds the fields that point from one directory to another, with no offsets yet.
ExifDirectories withPointers(ExifDirectories parts)
{
    if (!parts.interoperability.isEmpty())
        parts.exif.append(longField(tiff::InteroperabilityDirectory, 0, parts.order));
    if (!parts.exif.isEmpty())
        parts.image.append(longField(tiff::ExifDirectory, 0, parts.order));
    if (!parts.gps.isEmpty())
        parts.image.append(longField(tiff::GpsDirectory, 0, parts.order));
    return parts;
}

void setPointer(TiffDirectory& directory, std::uint16_t tag, std::uint64_t offset, ByteOrder order)
{
    for (TiffField& field : directory) {
        if (field.tag == tag)
            field = longField(tag, offset, order);
    }
}

/// The maker note when it does not stand in its entry itself; null otherwise.
TiffField* longMakerNote(TiffDirectory& exif)
{
    const auto found = std::find_if(exif.begin(), exif.end(), [](const TiffField& field) {
        return field.tag == tiff::MakerNote && field.value.size() > 4;
    });
    return found == exif.end() ? nullptr : &*found;
}

/// Where the directories and the maker note come to stand.
struct Plan
{
    std::uint64_t image = containers::tiffHeaderLength;
    std::uint64_t gps = 0;
    std::uint64_t interoperability = 0;
    std::uint64_t exif = 0;
    std::uint64_t end = 0; ///< of the directories
    std::uint64_t makerNote = 0;
};

/// The length of a directory does not depend on its offset.
Plan planFrom(std::uint64_t start, const ExifDirectories& parts)
{
    const auto lengthOf = [&parts](const TiffDirectory& directory) {
        return static_cast<std::uint64_t>(serialized(directory, 0, parts.order).size());
    };
    Plan plan{.image = start};
    plan.gps = start + lengthOf(parts.image);
    plan.interoperability = plan.gps + lengthOf(parts.gps);
    plan.exif = plan.interoperability + lengthOf(parts.interoperability);
    plan.end = plan.exif + lengthOf(parts.exif);
    plan.makerNote = plan.end;
    return plan;
}

/// The maker note at the offset it had, the directories in front of it or, where there is no room,
/// behind it; an offset out of reach is given up.
Plan planFor(const ExifDirectories& parts, const TiffField* makerNote)
{
    Plan plan = planFrom(containers::tiffHeaderLength, parts);
    const std::uint64_t wanted = makerNote ? makerNote->valueOffset : 0;
    const bool isInReach
        = wanted >= containers::tiffHeaderLength && wanted <= plan.end + longestGap;
    if (!makerNote || !isInReach)
        return plan;
    if (wanted < plan.end) {
        const std::uint64_t noteEnd = wanted + static_cast<std::uint64_t>(makerNote->value.size());
        plan = planFrom(noteEnd + noteEnd % 2, parts);
    }
    plan.makerNote = wanted;
    return plan;
}

} // namespace

bool describesStorage(std::uint16_t tag)
{
    return std::any_of(storageTags.begin(), storageTags.end(), [tag](const auto& range) {
        return tag >= range.first && tag <= range.second;
    });
}

ExifDirectories exifDirectoriesOf(const containers::TiffFile& file)
{
    const TiffDirectory image = file.firstDirectory();
    const TiffDirectory exif = file.subDirectory(image, tiff::ExifDirectory);
    return {
        .order = file.order(),
        .image = without(withoutStorageTags(image), {tiff::ExifDirectory, tiff::GpsDirectory}),
        .exif = without(exif, {tiff::InteroperabilityDirectory}),
        .gps = file.subDirectory(image, tiff::GpsDirectory),
        .interoperability = file.subDirectory(exif, tiff::InteroperabilityDirectory)};
}

ExifDirectories inOrder(const ExifDirectories& directories, ByteOrder order)
{
    ExifDirectories result = directories;
    result.order = order;
    if (order == directories.order)
        return result;
    for (TiffDirectory* directory :
         {&result.image, &result.exif, &result.gps, &result.interoperability})
        *directory = containers::swapped(*directory);
    return result;
}

QByteArray serializedExif(const ExifDirectories& directories)
{
    if (directories.image.isEmpty() && directories.exif.isEmpty() && directories.gps.isEmpty())
        return {};
    const ByteOrder order = directories.order;
    ExifDirectories parts = withPointers(directories);
    TiffField* makerNote = longMakerNote(parts.exif);
    if (makerNote)
        makerNote->isPlaced = true;
    const Plan plan = planFor(parts, makerNote);
    setPointer(parts.image, tiff::GpsDirectory, plan.gps, order);
    setPointer(parts.image, tiff::ExifDirectory, plan.exif, order);
    setPointer(parts.exif, tiff::InteroperabilityDirectory, plan.interoperability, order);
    if (makerNote)
        makerNote->valueOffset = plan.makerNote;

    QByteArray block = containers::tiffHeader(order, plan.image);
    block.resize(static_cast<qsizetype>(plan.image), '\0');
    block += serialized(parts.image, plan.image, order);
    block += serialized(parts.gps, plan.gps, order);
    block += serialized(parts.interoperability, plan.interoperability, order);
    block += serialized(parts.exif, plan.exif, order);
    if (!makerNote)
        return block;
    const auto noteOffset = static_cast<qsizetype>(plan.makerNote);
    if (noteOffset > block.size())
        block.resize(noteOffset, '\0');
    return block.replace(noteOffset, makerNote->value.size(), makerNote->value);
}

} // namespace brenvaldo::platform::metadata
