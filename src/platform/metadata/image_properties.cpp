// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_properties.h"

#include "container_properties.h"
#include "exif_properties.h"
#include "icc_description.h"
#include "iptc_properties.h"
#include "metadata_reader.h"
#include "xmp_packet.h"
#include "xmp_values.h"

#include <platform/codecs/image_source.h>
#include <platform/containers/mapped_file.h>
#include <platform/foundation/inches.h>
#include <platform/foundation/literals.h>

#include <array>

namespace brenvaldo::platform::metadata {

using graphics::ColorModel;

namespace {

/// Everything that the dictionary is made of.
struct Facts
{
    codecs::ImageHeader header;
    QByteArray iccProfile;
    ContainerProperties container;
    ExifProperties exif;
    PropertyDictionary iptc;
    PropertyDictionary exifAux;
};

struct AuxiliaryRow
{
    const char* key = nullptr;
    const char* xmp = nullptr;
    const char* exif = nullptr; ///< key of the EXIF dictionary; null when there is none
};

constexpr std::array auxiliaryRows{
    AuxiliaryRow{"LensInfo", "Xmp.aux.LensInfo", "LensSpecification"},
    AuxiliaryRow{"LensModel", "Xmp.aux.Lens", "LensModel"},
    AuxiliaryRow{"LensID", "Xmp.aux.LensID", nullptr},
    AuxiliaryRow{"LensSerialNumber", "Xmp.aux.LensSerialNumber", "LensSerialNumber"},
    AuxiliaryRow{"SerialNumber", "Xmp.aux.SerialNumber", "BodySerialNumber"},
    AuxiliaryRow{"OwnerName", "Xmp.aux.OwnerName", "CameraOwnerName"},
    AuxiliaryRow{"Firmware", "Xmp.aux.Firmware", nullptr},
    AuxiliaryRow{"ImageNumber", "Xmp.aux.ImageNumber", nullptr},
    AuxiliaryRow{"FlashCompensation", "Xmp.aux.FlashCompensation", nullptr},
};

PropertyDictionary exifAuxProperties(const XmpValues& xmp, const PropertyDictionary& exif)
{
    PropertyDictionary properties;
    for (const AuxiliaryRow& row : auxiliaryRows) {
        const QStringList texts = xmp.texts(row.xmp);
        const PropertyValue* other = row.exif ? exif.value(QLatin1StringView(row.exif)) : nullptr;
        if (!texts.isEmpty())
            properties.insert(QLatin1StringView(row.key), texts.first());
        else if (other)
            properties.insert(QLatin1StringView(row.key), *other);
    }
    return properties;
}

QString colorModelText(ColorModel model)
{
    switch (model) {
    case ColorModel::Gray:
        return u"Gray"_s;
    case ColorModel::Rgb:
        return u"RGB"_s;
    case ColorModel::Cmyk:
        return u"CMYK"_s;
    case ColorModel::Lab:
        return u"Lab"_s;
    }
    return {};
}

/// Dots per inch that EXIF states in that key; nothing without a unit of length.
std::optional<double> exifResolution(const PropertyDictionary& tiff, QLatin1StringView key)
{
    constexpr double noUnit = 1;
    constexpr double inch = 2;
    constexpr double centimetre = 3;
    const PropertyValue* resolution = tiff.value(key);
    const PropertyValue* unit = tiff.value(QLatin1StringView("ResolutionUnit"));
    const double value = resolution ? resolution->number().value_or(0) : 0;
    const double kind = unit ? unit->number().value_or(inch) : inch;
    if (value <= 0 || kind == noUnit)
        return std::nullopt;
    return kind == centimetre ? value * centimetresPerInch : value;
}

void addResolution(PropertyDictionary& top, const Facts& facts)
{
    const auto exifWidth = exifResolution(facts.exif.tiff, QLatin1StringView("XResolution"));
    const auto exifHeight = exifResolution(facts.exif.tiff, QLatin1StringView("YResolution"));
    // A PNG speaks for itself; in a JPEG the camera's word counts more than JFIF.
    const bool containerFirst = !facts.container.png.isEmpty() && facts.container.dpiHeight;
    const auto width = containerFirst || !exifWidth ? facts.container.dpiWidth : exifWidth;
    const auto height = containerFirst || !exifHeight ? facts.container.dpiHeight : exifHeight;
    if (width && height) {
        top.insert(property::dpiHeight, *height);
        top.insert(property::dpiWidth, *width);
    }
}

QString profileNameOf(const Facts& facts)
{
    constexpr double sRgb = 1;
    if (!facts.iccProfile.isEmpty())
        return iccDescription(facts.iccProfile);
    const PropertyValue* colorSpace = facts.exif.exif.value(QLatin1StringView("ColorSpace"));
    const bool isSrgb = facts.container.isSrgb || (colorSpace && colorSpace->number() == sRgb);
    return isSrgb ? u"sRGB IEC61966-2.1"_s : QString();
}

/// What the file states; a HEIC is turned by its own boxes, and EXIF is only shown.
std::optional<int> statedOrientation(const Facts& facts)
{
    constexpr double last = 8;
    const PropertyValue* stated = facts.exif.tiff.value(property::orientation);
    const double value = stated ? stated->number().value_or(0) : 0;
    if (value >= 1 && value <= last)
        return static_cast<int>(value);
    return facts.header.orientation > 1 ? std::optional(facts.header.orientation) : std::nullopt;
}

void addFlag(PropertyDictionary& top, QLatin1StringView key, bool isSet)
{
    if (isSet)
        top.insert(key, true);
}

void addDictionary(
    PropertyDictionary& top, QLatin1StringView key, const PropertyDictionary& dictionary
)
{
    if (!dictionary.isEmpty())
        top.insert(key, dictionary);
}

PropertyDictionary dictionaryOf(const Facts& facts)
{
    PropertyDictionary top;
    const bool isIndexed = facts.container.isIndexed;
    top.insert(
        property::colorModel, colorModelText(isIndexed ? ColorModel::Rgb : facts.header.colorModel)
    );
    addResolution(top, facts);
    top.insert(property::depth, facts.header.bitsPerComponent);
    addFlag(top, property::hasAlpha, facts.header.hasAlpha);
    addFlag(top, property::isFloat, facts.container.isFloat);
    addFlag(top, property::isIndexed, isIndexed);
    if (const auto orientation = statedOrientation(facts))
        top.insert(property::orientation, *orientation);
    top.insert(property::pixelHeight, facts.header.storedSize.height);
    top.insert(property::pixelWidth, facts.header.storedSize.width);
    if (const QString name = profileNameOf(facts); !name.isEmpty())
        top.insert(property::profileName, name);
    addDictionary(top, property::exifDictionary, facts.exif.exif);
    addDictionary(top, property::exifAuxDictionary, facts.exifAux);
    addDictionary(top, property::gifDictionary, facts.container.gif);
    addDictionary(top, property::gpsDictionary, facts.exif.gps);
    addDictionary(top, property::iptcDictionary, facts.iptc);
    addDictionary(top, property::jfifDictionary, facts.container.jfif);
    addDictionary(top, property::pngDictionary, facts.container.png);
    addDictionary(top, property::tiffDictionary, facts.exif.tiff);
    return top;
}

} // namespace

std::optional<PropertyDictionary> imageProperties(const QString& path)
{
    const auto source = codecs::ImageSource::open(path);
    const auto blocks = readMetadataBlocks(path);
    if (!source || !blocks)
        return std::nullopt;

    const containers::MappedFile file(path);
    const XmpValues xmp(completeXmp(*blocks));
    Facts facts;
    facts.header = source->header();
    if (const auto image = source->image())
        facts.iccProfile = image->iccProfile();
    facts.container = containerProperties(file.bytes());
    // A TIFF is its own block: the tags of its storage count as well.
    auto exif = containers::TiffFile::open(file.bytes());
    if (!exif)
        exif = containers::TiffFile::open(blocks->exif);
    if (exif)
        facts.exif = exifProperties(*exif);
    facts.iptc = iptcProperties(blocks->iptc, xmp, facts.exif);
    facts.exifAux = exifAuxProperties(xmp, facts.exif.exif);
    return dictionaryOf(facts);
}

} // namespace brenvaldo::platform::metadata
