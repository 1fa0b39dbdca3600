// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_attributes.h"

#include "named_row.h"

#include <platform/foundation/literals.h>
#include <platform/metadata/image_properties.h>

#include <QTimeZone>

#include <array>
#include <cmath>

namespace brenvaldo::files {

namespace {

namespace property = platform::metadata::property;
using platform::metadata::PropertyDictionary;
using platform::metadata::PropertyValue;
using Value = std::optional<PropertyValue>;

Value valueOf(const PropertyDictionary& properties, const QString& key)
{
    const PropertyValue* value = properties.value(key);
    return value ? Value(*value) : std::nullopt;
}

Value valueIn(const PropertyDictionary& photo, const QString& dictionary, const QString& key)
{
    const PropertyDictionary* values = photo.dictionary(dictionary);
    return values ? valueOf(*values, key) : std::nullopt;
}

Value exif(const PropertyDictionary& photo, const QString& key)
{
    return valueIn(photo, property::exifDictionary, key);
}

Value tiff(const PropertyDictionary& photo, const QString& key)
{
    return valueIn(photo, property::tiffDictionary, key);
}

qint64 integer(const PropertyDictionary& properties, const QString& key)
{
    const Value value = valueOf(properties, key);
    return value ? static_cast<qint64>(value->number().value_or(0)) : 0;
}

bool isTurned(const PropertyDictionary& photo)
{
    constexpr int firstTurned = 5; // orientations 5 to 8 stand on a side
    return integer(photo, property::orientation) >= firstTurned;
}

Value uprightWidth(const PropertyDictionary& photo)
{
    return integer(photo, isTurned(photo) ? property::pixelHeight : property::pixelWidth);
}

Value uprightHeight(const PropertyDictionary& photo)
{
    return integer(photo, isTurned(photo) ? property::pixelWidth : property::pixelHeight);
}

/// 0 landscape or square, 1 portrait.
Value uprightOrientation(const PropertyDictionary& photo)
{
    return *uprightHeight(photo)->number() > *uprightWidth(photo)->number() ? 1 : 0;
}

Value pixelCount(const PropertyDictionary& photo)
{
    return integer(photo, property::pixelWidth) * integer(photo, property::pixelHeight);
}

/// Bits of a decoded pixel, in spite of the attribute's name: colours take four channels.
Value bitsPerPixel(const PropertyDictionary& photo)
{
    constexpr qint64 channels = 4;
    const qint64 depth = integer(photo, property::depth);
    const bool isGrey = photo.text(property::colorModel) == u"Gray";
    return isGrey ? depth : depth * channels;
}

Value hasAlpha(const PropertyDictionary& photo)
{
    return photo.contains(property::hasAlpha) ? 1 : 0;
}

Value bitOfFlash(const PropertyDictionary& photo, int bit)
{
    const Value flash = exif(photo, u"Flash"_s);
    if (!flash || !flash->number())
        return std::nullopt;
    return (static_cast<int>(*flash->number()) >> bit) & 1;
}

Value flashFired(const PropertyDictionary& photo) { return bitOfFlash(photo, 0); }

Value redEyeReduction(const PropertyDictionary& photo)
{
    constexpr int redEyeBit = 6;
    return bitOfFlash(photo, redEyeBit);
}

Value exifVersion(const PropertyDictionary& photo)
{
    const Value version = exif(photo, u"ExifVersion"_s);
    if (!version || !version->array())
        return version;
    QStringList numbers;
    for (const PropertyValue& number : *version->array())
        numbers.append(number.text());
    return numbers.join(u'.');
}

Value isoSpeed(const PropertyDictionary& photo)
{
    const Value speeds = exif(photo, u"ISOSpeedRatings"_s);
    if (!speeds || !speeds->array())
        return speeds;
    return speeds->array()->isEmpty() ? std::nullopt : Value(speeds->array()->first());
}

Value caption(const PropertyDictionary& photo)
{
    return valueIn(photo, property::iptcDictionary, property::iptcCaptionAbstract);
}

struct Row
{
    QLatin1StringView name;
    Value (*read)(const PropertyDictionary& photo);
};

using Photo = const PropertyDictionary&;

constexpr std::array rows{
    Row{QLatin1StringView("AcquisitionMake"), [](Photo photo) { return tiff(photo, u"Make"_s); }},
    Row{QLatin1StringView("AcquisitionModel"), [](Photo photo) { return tiff(photo, u"Model"_s); }},
    Row{QLatin1StringView("BitsPerSample"), bitsPerPixel},
    Row{QLatin1StringView("ColorSpace"),
        [](Photo photo) { return valueOf(photo, property::colorModel); }},
    Row{QLatin1StringView("Creator"), [](Photo photo) { return tiff(photo, u"Software"_s); }},
    Row{QLatin1StringView("Description"), caption},
    Row{QLatin1StringView("EXIFVersion"), exifVersion},
    Row{QLatin1StringView("ExposureMode"),
        [](Photo photo) { return exif(photo, u"ExposureMode"_s); }},
    Row{QLatin1StringView("ExposureTimeSeconds"),
        [](Photo photo) { return exif(photo, u"ExposureTime"_s); }},
    Row{QLatin1StringView("FlashOnOff"), flashFired},
    Row{QLatin1StringView("FNumber"), [](Photo photo) { return exif(photo, u"FNumber"_s); }},
    Row{QLatin1StringView("FocalLength"),
        [](Photo photo) { return exif(photo, u"FocalLength"_s); }},
    Row{QLatin1StringView("HasAlphaChannel"), hasAlpha},
    Row{QLatin1StringView("ISOSpeed"), isoSpeed},
    Row{QLatin1StringView("Orientation"), uprightOrientation},
    Row{QLatin1StringView("PixelCount"), pixelCount},
    Row{QLatin1StringView("PixelHeight"), uprightHeight},
    Row{QLatin1StringView("PixelWidth"), uprightWidth},
    Row{QLatin1StringView("ProfileName"),
        [](Photo photo) { return valueOf(photo, property::profileName); }},
    Row{QLatin1StringView("RedEyeOnOff"), redEyeReduction},
    Row{QLatin1StringView("ResolutionHeightDPI"),
        [](Photo photo) { return valueOf(photo, property::dpiHeight); }},
    Row{QLatin1StringView("ResolutionWidthDPI"),
        [](Photo photo) { return valueOf(photo, property::dpiWidth); }},
    Row{QLatin1StringView("WhiteBalance"),
        [](Photo photo) { return exif(photo, u"WhiteBalance"_s); }},
};

} // namespace

std::optional<PropertyValue> photoAttribute(const QString& path, const QString& name)
{
    const Row* row = rowNamed(rows, name);
    if (!row)
        return std::nullopt;
    const auto photo = platform::metadata::imageProperties(path);
    return photo ? row->read(*photo) : std::nullopt;
}

std::optional<QDateTime> exposureDate(const QString& path)
{
    const auto photo = platform::metadata::imageProperties(path);
    if (!photo)
        return std::nullopt;
    const Value taken = exif(*photo, property::exifDateTimeOriginal);
    if (!taken)
        return std::nullopt;
    const QDateTime local = QDateTime::fromString(taken->text(), u"yyyy:MM:dd HH:mm:ss"_s);
    if (!local.isValid())
        return std::nullopt;
    const Value offset = exif(*photo, u"OffsetTimeOriginal"_s);
    const QDateTime stated = offset
        ? QDateTime::fromString(local.toString(Qt::ISODate) + offset->text().trimmed(), Qt::ISODate)
        : QDateTime();
    return stated.isValid() ? stated : local;
}

} // namespace brenvaldo::files
