// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg2000_boxes.h"

#include <QByteArrayView>
#include <QtEndian>

#include <cmath>

namespace brenvaldo::platform {

namespace {

constexpr qsizetype boxHeaderSize = 8;
constexpr qsizetype colorFieldsSize = 3; ///< in front of a profile: method, precedence, accuracy
constexpr char restrictedProfile = 2;
constexpr double metresPerInch = 0.0254;

template <typename Integer>
QByteArray bigEndian(Integer value)
{
    QByteArray bytes(sizeof(Integer), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray box(const char* type, const QByteArray& contents)
{
    return bigEndian(static_cast<quint32>(contents.size() + boxHeaderSize)) + type + contents;
}

struct BoxPlace
{
    qsizetype at;
    qsizetype size; ///< with the header
};

/// The first box of a type between `from` and `to`; boxes of 64-bit or open size end the search.
std::optional<BoxPlace>
findBox(QByteArrayView bytes, QByteArrayView type, qsizetype from, qsizetype to)
{
    qsizetype at = from;
    while (at + boxHeaderSize <= to) {
        const qsizetype size = qFromBigEndian<quint32>(bytes.data() + at);
        if (size < boxHeaderSize || size > to - at)
            return std::nullopt;
        if (bytes.sliced(at + 4, 4) == type)
            return BoxPlace{at, size};
        at += size;
    }
    return std::nullopt;
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
    const QByteArray ratio
        = bigEndian(static_cast<quint16>(std::lround(numerator))) + bigEndian(denominator);
    return box("res ", box("resc", ratio + ratio + QByteArray(2, exponent)));
}

QByteArray profileBox(const QByteArray& profile)
{
    return box(
        "colr", QByteArray(1, restrictedProfile) + QByteArray(colorFieldsSize - 1, '\0') + profile
    );
}

/// The profile among the contents of a header box.
QByteArray embeddedProfile(const QByteArray& header)
{
    const auto color = findBox(header, "colr", 0, header.size());
    if (!color || color->size <= boxHeaderSize + colorFieldsSize)
        return {};
    const char method = header.at(color->at + boxHeaderSize);
    constexpr char anyProfile = 3;
    if (method != restrictedProfile && method != anyProfile)
        return {};
    const qsizetype skipped = boxHeaderSize + colorFieldsSize;
    return header.mid(color->at + skipped, color->size - skipped);
}

std::optional<double> captureResolution(const QByteArray& header)
{
    const auto resolution = findBox(header, "res ", 0, header.size());
    if (!resolution)
        return std::nullopt;
    const auto capture = findBox(
        header, "resc", resolution->at + boxHeaderSize, resolution->at + resolution->size
    );
    constexpr qsizetype captureSize = 18;
    if (!capture || capture->size < captureSize)
        return std::nullopt;
    const char* fields = header.constData() + capture->at + boxHeaderSize;
    const double numerator = qFromBigEndian<quint16>(fields + 4);
    const double denominator = qFromBigEndian<quint16>(fields + 6);
    const double dotsPerMetre = numerator / denominator * std::pow(10, fields[9]);
    if (!std::isfinite(dotsPerMetre) || dotsPerMetre <= 0)
        return std::nullopt;
    return std::round(dotsPerMetre * metresPerInch * 100) / 100;
}

bool endsWithEndMarker(QIODevice& file)
{
    return file.seek(file.size() - 2) && file.read(2) == QByteArrayView("\xFF\xD9", 2);
}

} // namespace

QByteArray withLabels(const QByteArray& file, const FileLabels& labels)
{
    const auto header = findBox(file, "jp2h", 0, file.size());
    if (!header)
        return file;
    QByteArray contents = file.mid(header->at + boxHeaderSize, header->size - boxHeaderSize);
    const auto color = findBox(contents, "colr", 0, contents.size());
    if (color && !labels.iccProfile.isEmpty())
        contents.replace(color->at, color->size, profileBox(labels.iccProfile));
    if (labels.dotsPerInch)
        contents += resolutionBox(*labels.dotsPerInch);
    return file.first(header->at) + box("jp2h", contents) + file.mid(header->at + header->size);
}

FileLabels readLabels(const QByteArray& head)
{
    const auto header = findBox(head, "jp2h", 0, head.size());
    if (!header)
        return {};
    const QByteArray contents = head.mid(header->at + boxHeaderSize, header->size - boxHeaderSize);
    return {.iccProfile = embeddedProfile(contents), .dotsPerInch = captureResolution(contents)};
}

bool holdsWholeCodeStream(QIODevice& file)
{
    constexpr qsizetype largeHeaderSize = 16;
    constexpr qint64 extendsToTheEnd = 0;
    constexpr qint64 hasLargeSize = 1;
    qint64 at = 0;
    while (file.seek(at)) {
        const QByteArray head = file.read(largeHeaderSize);
        if (head.startsWith(QByteArrayView("\xFF\x4F", 2)))
            return endsWithEndMarker(file);
        if (head.size() < largeHeaderSize)
            return false;
        qint64 size = qFromBigEndian<quint32>(head.constData());
        const bool isCodeStream = head.sliced(4, 4) == "jp2c";
        if (size == extendsToTheEnd)
            return isCodeStream && endsWithEndMarker(file);
        if (size == hasLargeSize)
            size = qFromBigEndian<qint64>(head.constData() + boxHeaderSize);
        if (size < boxHeaderSize || size > file.size() - at)
            return false;
        if (isCodeStream)
            return true;
        at += size;
    }
    return false;
}

} // namespace brenvaldo::platform
