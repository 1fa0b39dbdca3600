// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_conversion.h"

#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/graphics/image_destination.h>
#include <platform/graphics/image_source.h>
#include <platform/metadata/image_file_writer.h>
#include <platform/metadata/metadata_reader.h>
#include <platform/storage/atomic_file.h>

#include <QFile>
#include <QFileInfo>

#include <tuple>

namespace brenvaldo::imaging {

using platform::ImageSource;

namespace {

QString nameWithoutExtension(const QString& path)
{
    return platform::deletingPathExtension(platform::lastPathComponent(path));
}

std::optional<platform::Image> storedPhoto(const QString& path)
{
    const auto source = ImageSource::open(path);
    return source ? source->image() : std::nullopt;
}

/// True when every pixel of the photo can be computed.
bool isWhole(const platform::Image& photo)
{
    return photo.scaledTo({1, 1}).copiedToMemory().has_value();
}

/// True when no picture of that format can be made of the file: it is no photo, or the encoder
/// fails without a disk, too. A damaged photo is another matter.
bool isRefused(const QString& path, platform::FileFormat format)
{
    const auto photo = storedPhoto(path);
    if (!photo)
        return true;
    return isWhole(*photo)
        && !platform::encode(*storedPhoto(path), format, {}, QStringLiteral("/dev/null"));
}

bool writeConverted(
    const FileConversion::Settings& settings, const ConversionRule& rule, const QString& target
)
{
    const auto image = storedPhoto(settings.source);
    if (!image)
        return false;

    platform::ImageFileRequest request;
    request.format = rule.format;
    if (rule.quality == ConversionRule::Quality::FromLevel)
        request.lossyQuality = conversionQuality(settings.compressionLevel);
    std::optional<platform::MetadataBlocks> properties;
    if (rule.route == ConversionRule::Route::Metadata)
        properties = platform::readMetadataBlocks(settings.source);
    if (properties)
        request.metadata = &*properties;
    return platform::writeImageFile(*image, request, target);
}

ResultWord
convert(const FileConversion::Settings& settings, const ConversionRule& rule, const QString& target)
{
    if (rule.format == platform::FileFormat::Heic)
        platform::log(QStringLiteral("Convert: save as heic"));
    if (writeConverted(settings, rule, target))
        return ResultWord::Ok;

    // What the metadata route writes at its end is empty when its destination failed. A full disk
    // and a damaged photo leave what stands there, and so does a photo that is its own target.
    if (rule.route == ConversionRule::Route::Metadata
        && QFileInfo(target) != QFileInfo(settings.source)
        && isRefused(settings.source, rule.format))
        std::ignore = platform::writeFileAtomically(target, {});
    return ResultWord::Failed;
}

ConversionResult
run(const FileConversion::Settings& settings,
    const std::optional<ConversionRule>& rule,
    const QString& target)
{
    return {
        .saveURL = QUrl::fromLocalFile(target),
        .type = settings.type,
        .name = nameWithoutExtension(settings.source),
        .word = rule ? convert(settings, *rule, target) : ResultWord::Failed,
    };
}

} // namespace

ConversionResult FileConversion::hConvertFileType(const Settings& settings) const
{
    return run(settings, conversionRuleForType(settings.type), settings.destination);
}

ConversionResult FileConversion::hSaveAsFileType(const Settings& settings) const
{
    const QString target = settings.destination + nameWithoutExtension(settings.source)
        + QLatin1Char('.') + settings.type;
    const ConversionResult result = run(settings, conversionRuleForWord(settings.type), target);
    if (target != settings.source)
        QFile::remove(settings.source);
    return result;
}

} // namespace brenvaldo::imaging
