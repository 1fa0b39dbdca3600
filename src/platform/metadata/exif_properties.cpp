// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_properties.h"

#include "exif_tables.h"

#include <platform/containers/tiff_numbers.h>
#include <platform/foundation/literals.h>

#include <QStringDecoder>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::ByteOrder;
using containers::TiffField;

namespace {

constexpr qsizetype characterCodeLength = 8;

PropertyValue valueOf(const containers::TiffNumber& number)
{
    return std::visit([](auto value) { return PropertyValue(value); }, number);
}

/// All numbers of the field; one that is not known, a fraction by 0, counts 0. Empty when none is
/// known.
PropertyValue::Array numbersOf(const TiffField& field, ByteOrder order)
{
    const int width = containers::tiffTypeWidth(field.type);
    PropertyValue::Array numbers;
    bool isAnyKnown = false;
    for (qsizetype offset = 0; offset + width <= field.value.size(); offset += width) {
        const auto number
            = containers::tiffNumberAt(field, static_cast<std::uint64_t>(offset), order);
        isAnyKnown = isAnyKnown || number.has_value();
        numbers.append(number ? valueOf(*number) : PropertyValue(0));
    }
    return isAnyKnown ? numbers : PropertyValue::Array();
}

std::optional<PropertyValue> arrayOf(const TiffField& field, ByteOrder order)
{
    const PropertyValue::Array numbers = numbersOf(field, order);
    return numbers.isEmpty() ? std::nullopt : std::optional(PropertyValue(numbers));
}

std::optional<PropertyValue> plainOf(const TiffField& field, ByteOrder order)
{
    if (field.type == tiff::Ascii)
        return PropertyValue(metadataText(field.value));
    const PropertyValue::Array numbers = numbersOf(field, order);
    if (numbers.isEmpty())
        return std::nullopt;
    return numbers.size() == 1 ? numbers.first() : PropertyValue(numbers);
}

/// "0230" gives 2, 3; "0221" gives 2, 2, 1.
std::optional<PropertyValue> versionOf(const TiffField& field)
{
    const QByteArray& digits = field.value;
    const bool isVersion
        = digits.size() == 4 && std::all_of(digits.begin(), digits.end(), [](char digit) {
              return digit >= '0' && digit <= '9';
          });
    if (!isVersion)
        return std::nullopt;
    PropertyValue::Array parts{
        PropertyValue(digits.first(2).toInt()), PropertyValue(digits.mid(2, 1).toInt())};
    if (digits[3] != '0')
        parts.append(PropertyValue(digits.mid(3, 1).toInt()));
    return PropertyValue(parts);
}

/// The three parts of an angle or a time; missing ones count 0. Empty without a first part.
QList<double> threeParts(const TiffField& field, ByteOrder order)
{
    constexpr int parts = 3;
    const int width = containers::tiffTypeWidth(tiff::Rational);
    const bool isFraction = field.type == tiff::Rational || field.type == tiff::SignedRational;
    if (!isFraction || field.value.size() < width)
        return {};
    QList<double> values;
    for (int i = 0; i < parts; ++i) {
        const auto value
            = containers::tiffNumberAt(field, static_cast<std::uint64_t>(i * width), order);
        // A camera without a fix writes fractions by 0 for the parts that it does not know.
        if (!value && i == 0)
            return {};
        values.append(value ? std::get<double>(*value) : 0);
    }
    return values;
}

std::optional<PropertyValue> degreesOf(const TiffField& field, ByteOrder order)
{
    constexpr double minutesPerDegree = 60;
    constexpr double secondsPerDegree = 3600;
    const QList<double> parts = threeParts(field, order);
    if (parts.isEmpty())
        return std::nullopt;
    return PropertyValue(parts[0] + parts[1] / minutesPerDegree + parts[2] / secondsPerDegree);
}

std::optional<PropertyValue> timeOf(const TiffField& field, ByteOrder order)
{
    const QList<double> parts = threeParts(field, order);
    if (parts.isEmpty())
        return std::nullopt;
    const double wholeSeconds = std::floor(parts[2]);
    QString text = u"%1:%2:%3"_s.arg(parts[0], 2, 'f', 0, QLatin1Char('0'))
                       .arg(parts[1], 2, 'f', 0, QLatin1Char('0'))
                       .arg(wholeSeconds, 2, 'f', 0, QLatin1Char('0'));
    const double thousandths = std::floor((parts[2] - wholeSeconds) * 1000);
    if (thousandths > 0)
        text += QString::number(thousandths / 1000, 'g', 3).mid(1);
    return PropertyValue(text);
}

std::optional<PropertyValue> propertyOf(const TiffField& field, ExifRule rule, ByteOrder order)
{
    switch (rule) {
    case ExifRule::Plain:
        return plainOf(field, order);
    case ExifRule::Array:
        return arrayOf(field, order);
    case ExifRule::FirstByte:
        return field.value.isEmpty()
            ? std::nullopt
            : std::optional(PropertyValue(int{static_cast<std::uint8_t>(field.value.front())}));
    case ExifRule::Version:
        return versionOf(field);
    case ExifRule::Comment:
        return field.type == tiff::Ascii ? PropertyValue(metadataText(field.value))
                                         : PropertyValue(userCommentText(field.value, order));
    case ExifRule::Degrees:
        return degreesOf(field, order);
    case ExifRule::TimeOfDay:
        return field.type == tiff::Ascii ? plainOf(field, order) : timeOf(field, order);
    }
    return std::nullopt;
}

PropertyDictionary dictionaryOf(
    const containers::TiffDirectory& directory, std::span<const ExifRow> rows, ByteOrder order
)
{
    PropertyDictionary properties;
    for (const ExifRow& row : rows) {
        const TiffField* field = containers::fieldOf(directory, row.tag);
        if (!field)
            continue;
        if (const auto value = propertyOf(*field, row.rule, order))
            properties.insert(QLatin1StringView(row.key), *value);
    }
    return properties;
}

/// UTF-16 in the byte order of the block, unless most units make sense in the other order only.
QString unicodeText(QByteArrayView bytes, ByteOrder order)
{
    qsizetype zeroFirst = 0;
    qsizetype zeroSecond = 0;
    for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
        zeroFirst += bytes[i] == '\0' && bytes[i + 1] != '\0' ? 1 : 0;
        zeroSecond += bytes[i] != '\0' && bytes[i + 1] == '\0' ? 1 : 0;
    }
    if (zeroFirst != zeroSecond)
        order = zeroFirst > zeroSecond ? ByteOrder::Big : ByteOrder::Little;
    QStringDecoder decoder(
        order == ByteOrder::Big ? QStringDecoder::Utf16BE : QStringDecoder::Utf16LE
    );
    return decoder(bytes);
}

QString upToZero(const QString& text) { return text.left(text.indexOf(QChar::Null)); }

/// ISO 2022-JP, or the bare two-byte codes of JIS X 0208 without its escape sequences.
QString japaneseText(QByteArrayView bytes)
{
    constexpr char escape = '\x1B';
    const QByteArray escaped
        = (bytes.contains(escape) ? QByteArray() : QByteArray("\x1B$B")) + bytes.toByteArray();
    QStringDecoder decoder("ISO-2022-JP");
    const QString text = decoder.isValid() ? QString(decoder(escaped)) : QString();
    return decoder.isValid() && !decoder.hasError() ? upToZero(text) : metadataText(bytes);
}

} // namespace

ExifProperties exifProperties(const containers::TiffFile& file)
{
    const containers::TiffDirectory image = file.firstDirectory();
    const ByteOrder order = file.order();
    return {
        .exif = dictionaryOf(file.subDirectory(image, tiff::ExifDirectory), exifTable(), order),
        .tiff = dictionaryOf(image, tiffTable(), order),
        .gps = dictionaryOf(file.subDirectory(image, tiff::GpsDirectory), gpsTable(), order)};
}

QString userCommentText(QByteArrayView comment, ByteOrder order)
{
    if (comment.size() < characterCodeLength)
        return metadataText(comment);
    const QByteArrayView code = comment.first(characterCodeLength);
    const QByteArrayView text = comment.sliced(characterCodeLength);
    if (code.startsWith("UNICODE"))
        return upToZero(unicodeText(text, order));
    if (code.startsWith("JIS"))
        return japaneseText(text);
    return metadataText(text);
}

QString metadataText(QByteArrayView bytes)
{
    const qsizetype end = bytes.indexOf('\0');
    const QByteArrayView text = end < 0 ? bytes : bytes.first(end);
    return text.isValidUtf8() ? QString::fromUtf8(text) : QString::fromLatin1(text);
}

} // namespace brenvaldo::platform::metadata
