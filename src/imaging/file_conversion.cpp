// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_conversion.h"

#include "dv_image_handling.h"
#include "failure_log.h"

#include <platform/codecs/image_destination.h>
#include <platform/foundation/file_name.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/metadata/image_file_writer.h>
#include <platform/metadata/metadata_reader.h>
#include <platform/storage/atomic_file.h>

#include <QFile>
#include <QFileInfo>

#include <tuple>

namespace brenvaldo::imaging {

namespace {

/// True when every pixel of the photo can be computed.
bool isWhole(const platform::graphics::Image& photo)
{
    return photo.scaledTo({1, 1}).copiedToMemory().has_value();
}

/// True when no picture of that format can be made of the file: it is no photo, or the encoder
/// fails without a disk, too. A damaged photo is another matter.
bool isRefused(const QString& path, platform::codecs::FileFormat format)
{
    const auto photo = DVImageHandling::hStringToCGImageRef(path);
    if (!photo)
        return true;
    return isWhole(*photo)
        && !platform::codecs::canEncode(*DVImageHandling::hStringToCGImageRef(path), format, {});
}

bool writeConverted(const PictureToSave& picture, const ConversionRule& rule)
{
    if (!picture.image) {
        logFailedWrite(picture.destination, u"%1 can't be read as a photo"_s.arg(picture.source));
        return false;
    }

    platform::metadata::ImageFileRequest request;
    request.format = rule.format;
    if (rule.quality == ConversionRule::Quality::FromLevel)
        request.lossyQuality = conversionQuality(picture.compressionLevel);
    if (picture.properties)
        request.metadata = &*picture.properties;
    return platform::metadata::writeImageFile(*picture.image, request, picture.destination);
}

ResultWord write(const PictureToSave& picture, const ConversionRule& rule)
{
    if (rule.format == platform::codecs::FileFormat::Heic)
        platform::log(u"Convert: save as heic"_s);
    if (writeConverted(picture, rule))
        return ResultWord::Ok;

    // What the metadata route writes at its end is empty when its destination failed. A full disk
    // and a damaged photo leave what stands there, and so does a photo that is its own target.
    if (rule.route == ConversionRule::Route::Metadata
        && QFileInfo(picture.destination) != QFileInfo(picture.source)
        && isRefused(picture.source, rule.format))
        std::ignore = platform::storage::writeFileAtomically(picture.destination, {});
    return ResultWord::Failed;
}

ResultWord writeByType(const PictureToSave& picture)
{
    return write(picture, *conversionRuleForType(picture.typeIdentifier));
}

ResultWord writeByWord(const PictureToSave& picture)
{
    return write(picture, *conversionRuleForWord(picture.typeIdentifier));
}

/// The image as the rule wants it; nothing for a type that no rule knows.
std::optional<PictureToSave> converted(
    const FileConversion::Settings& settings,
    const std::optional<ConversionRule>& rule,
    PictureToSave::Writer writer,
    const std::optional<platform::graphics::Image>& image
)
{
    if (!rule)
        return std::nullopt;
    PictureToSave picture{
        .destination = settings.destination,
        .typeIdentifier = settings.type,
        .image = image,
        .compressionLevel = settings.compressionLevel,
        .writer = writer,
        .source = settings.source};
    if (rule->route == ConversionRule::Route::Metadata)
        picture.properties = platform::metadata::readMetadataBlocks(settings.source);
    return picture;
}

std::optional<platform::graphics::Image> photoOf(const FileConversion::Settings& settings)
{
    return DVImageHandling::hStringToCGImageRef(settings.source);
}

std::optional<PictureToSave> convertedByType(const FileConversion::Settings& settings)
{
    return converted(
        settings, conversionRuleForType(settings.type), writeByType, photoOf(settings)
    );
}

/// With the whole path of the file.
FileConversion::Settings inFolder(FileConversion::Settings settings)
{
    settings.destination += platform::nameWithoutExtension(settings.source) + u'.' + settings.type;
    return settings;
}

ConversionResult
saved(const FileConversion::Settings& settings, const std::optional<PictureToSave>& picture)
{
    return {
        .saveURL = QUrl::fromLocalFile(settings.destination),
        .type = settings.type,
        .name = platform::nameWithoutExtension(settings.source),
        .word = picture ? save(*picture) : failsForType(settings.destination, settings.type),
    };
}

} // namespace

Outcome FileConversion::conversion(const Settings& settings)
{
    const auto picture = convertedByType(settings);
    return picture ? Outcome(*picture) : ResultWord::Failed;
}

ConversionResult FileConversion::hConvertFileType(const Settings& settings) const
{
    return saved(settings, convertedByType(settings));
}

std::optional<PictureToSave>
FileConversion::pictureOfType(const Settings& settings, const platform::graphics::Image& image)
{
    return converted(inFolder(settings), conversionRuleForWord(settings.type), writeByWord, image);
}

ConversionResult FileConversion::hSaveAsFileType(const Settings& settings) const
{
    const Settings whole = inFolder(settings);
    const auto rule = conversionRuleForWord(whole.type);
    const ConversionResult result
        = saved(whole, converted(whole, rule, writeByWord, photoOf(whole)));
    if (whole.destination != settings.source)
        QFile::remove(settings.source);
    return result;
}

} // namespace brenvaldo::imaging
