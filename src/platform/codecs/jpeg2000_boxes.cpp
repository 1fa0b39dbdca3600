// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg2000_boxes.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>
#include <platform/foundation/inches.h>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::codecs {

using containers::ByteOrder;
using containers::IsoBox;
using containers::isoBox;
using containers::isoBoxes;
using containers::unsignedAt;

namespace {

constexpr qsizetype colorFieldsSize = 3; ///< in front of a profile: method, precedence, accuracy
constexpr char restrictedProfile = 2;

QByteArray bigEndian(std::uint64_t value, int width)
{
    QByteArray bytes;
    containers::appendUnsigned(bytes, value, width, ByteOrder::Big);
    return bytes;
}

QByteArray box(const char* type, const QByteArray& contents)
{
    constexpr qsizetype lengthAndType = 8;
    return bigEndian(static_cast<std::uint64_t>(contents.size() + lengthAndType), 4) + type
        + contents;
}

/// The first box of that type; null when there is none.
const IsoBox* findBox(const QList<IsoBox>& boxes, QByteArrayView type)
{
    const auto found = std::find_if(boxes.begin(), boxes.end(), [type](const IsoBox& candidate) {
        return candidate.type == type;
    });
    return found == boxes.end() ? nullptr : &*found;
}

/// Capture resolution as numerator, denominator and a power of ten, dots a metre, down and across.
QByteArray resolutionBox(double dotsPerInch)
{
    constexpr quint16 denominator = 100;
    constexpr double largestNumerator = 0xFFFF;
    double numerator = dotsPerInch / metresPerInch * denominator;
    char exponent = 0;
    while (numerator > largestNumerator) {
        numerator /= 10;
        ++exponent;
    }
    const QByteArray ratio = bigEndian(static_cast<std::uint64_t>(std::lround(numerator)), 2)
        + bigEndian(denominator, 2);
    return box("res ", box("resc", ratio + ratio + QByteArray(2, exponent)));
}

QByteArray profileBox(const QByteArray& profile)
{
    return box(
        "colr", QByteArray(1, restrictedProfile) + QByteArray(colorFieldsSize - 1, '\0') + profile
    );
}

/// The profile among the boxes of a header.
QByteArray embeddedProfile(const QList<IsoBox>& header)
{
    const QByteArrayView color = isoBox(header, "colr");
    if (color.size() <= colorFieldsSize)
        return {};
    constexpr char anyProfile = 3;
    const char method = color.front();
    const bool holdsProfile = method == restrictedProfile || method == anyProfile;
    return holdsProfile ? color.sliced(colorFieldsSize).toByteArray() : QByteArray();
}

std::optional<double> captureResolution(const QList<IsoBox>& header)
{
    const QByteArrayView capture = isoBox(isoBoxes(isoBox(header, "res ")), "resc");
    const auto numerator = unsignedAt(capture, 4, 2, ByteOrder::Big);
    const auto denominator = unsignedAt(capture, 6, 2, ByteOrder::Big);
    const auto exponent = unsignedAt(capture, 9, 1, ByteOrder::Big);
    if (!numerator || !denominator || !exponent)
        return std::nullopt;
    const double dotsPerMetre = static_cast<double>(*numerator) / static_cast<double>(*denominator)
        * std::pow(10, static_cast<std::int8_t>(*exponent));
    if (!std::isfinite(dotsPerMetre) || dotsPerMetre <= 0)
        return std::nullopt;
    return std::round(dotsPerMetre * metresPerInch * 100) / 100;
}

bool endsWithEndMarker(QByteArrayView file) { return file.endsWith(QByteArrayView("\xFF\xD9")); }

} // namespace

QByteArray withHeaderFacts(const QByteArray& file, const HeaderFacts& facts)
{
    const QList<IsoBox> boxes = isoBoxes(file);
    const IsoBox* header = findBox(boxes, "jp2h");
    if (!header)
        return file;
    QByteArray contents;
    bool needsProfile = !facts.iccProfile.isEmpty();
    for (const IsoBox& part : isoBoxes(header->payload)) {
        const bool isReplaced = needsProfile && part.type == QByteArrayView("colr");
        contents += isReplaced ? profileBox(facts.iccProfile) : part.whole.toByteArray();
        needsProfile = needsProfile && !isReplaced;
    }
    if (facts.dotsPerInch)
        contents += resolutionBox(*facts.dotsPerInch);
    const qsizetype start = header->whole.begin() - QByteArrayView(file).begin();
    return file.first(start) + box("jp2h", contents) + file.sliced(start + header->whole.size());
}

HeaderFacts readJpeg2000HeaderFacts(QByteArrayView file)
{
    const QList<IsoBox> header = isoBoxes(isoBox(isoBoxes(file), "jp2h"));
    return {.iccProfile = embeddedProfile(header), .dotsPerInch = captureResolution(header)};
}

bool holdsWholeCodeStream(QByteArrayView file)
{
    if (file.startsWith("\xFF\x4F"))
        return endsWithEndMarker(file);
    const QList<IsoBox> boxes = isoBoxes(file);
    const IsoBox* codeStream = findBox(boxes, "jp2c");
    if (!codeStream)
        return false;
    const bool isOpen = codeStream->whole.startsWith(QByteArrayView("\0\0\0\0", 4));
    return !isOpen || endsWithEndMarker(file);
}

} // namespace brenvaldo::platform::codecs
