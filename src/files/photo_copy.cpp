// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_copy.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/metadata/image_file_writer.h>
#include <platform/metadata/metadata_reader.h>

#include <algorithm>
#include <array>

namespace brenvaldo::files {

namespace {

enum class Pixels { Stored, Upright };
enum class Metadata { Kept, Dropped };

struct CopyType
{
    const char* title;
    platform::codecs::FileFormat format;
    Pixels pixels;
    Metadata metadata;
};

constexpr std::array<CopyType, 7> copyTypes = {{
    {"pdf", platform::codecs::FileFormat::Pdf, Pixels::Upright, Metadata::Dropped},
    {"png", platform::codecs::FileFormat::Png, Pixels::Stored, Metadata::Kept},
    {"tiff", platform::codecs::FileFormat::Tiff, Pixels::Stored, Metadata::Kept},
    {"bmp", platform::codecs::FileFormat::Bmp, Pixels::Stored, Metadata::Dropped},
    {"gif", platform::codecs::FileFormat::Gif, Pixels::Stored, Metadata::Dropped},
    {"jp2", platform::codecs::FileFormat::Jpeg2000, Pixels::Stored, Metadata::Dropped},
    {"jpeg", platform::codecs::FileFormat::Jpeg, Pixels::Stored, Metadata::Kept},
}};

const CopyType* copyType(const QString& title)
{
    const auto* const found
        = std::find_if(copyTypes.begin(), copyTypes.end(), [&](const CopyType& type) {
              return title == QLatin1String(type.title);
          });
    return found == copyTypes.end() ? nullptr : found;
}

} // namespace

QStringList photoCopyTypes()
{
    QStringList titles;
    for (const CopyType& type : copyTypes)
        titles += QLatin1String(type.title);
    return titles;
}

double compressionFactor(const QString& title)
{
    const QString digits = u"12345678"_s;
    if (title.size() != 1 || !digits.contains(title))
        return 0.9;
    return title.toInt() / 10.0;
}

bool writePhotoCopy(const PhotoCopy& copy)
{
    const CopyType* const type = copyType(copy.type);
    const auto source = platform::codecs::ImageSource::open(copy.source);
    if (!type || !source)
        return false;
    const auto image = type->pixels == Pixels::Upright ? source->uprightImage() : source->image();
    if (!image)
        return false;
    const auto metadata = platform::metadata::readMetadataBlocks(copy.source);
    const bool keepsMetadata = metadata && type->metadata == Metadata::Kept;
    platform::metadata::ImageFileRequest request
        = {.format = type->format,
           .lossyQuality = {},
           .metadata = keepsMetadata ? &*metadata : nullptr};
    if (type->format == platform::codecs::FileFormat::Jpeg)
        request.lossyQuality = compressionFactor(copy.compression);
    return platform::metadata::writeImageFile(*image, request, copy.target);
}

} // namespace brenvaldo::files
