// SPDX-License-Identifier: GPL-3.0-or-later
#include "icc_description.h"

#include "exif_properties.h"

#include <platform/containers/bytes.h>

#include <QStringDecoder>

namespace brenvaldo::platform::metadata {

using containers::sliceOf;

namespace {

constexpr std::uint64_t tagTable = 128;
constexpr std::uint64_t longestTable = 1000;

std::uint64_t bigAt(QByteArrayView bytes, std::uint64_t offset, int width)
{
    return containers::unsignedAt(bytes, offset, width, containers::ByteOrder::Big).value_or(0);
}

QByteArrayView descriptionTag(QByteArrayView profile)
{
    const std::uint64_t count = qMin(bigAt(profile, tagTable, 4), longestTable);
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t entry = tagTable + 4 + 12 * i;
        if (sliceOf(profile, entry, 4) == QByteArrayView("desc"))
            return sliceOf(profile, bigAt(profile, entry + 4, 4), bigAt(profile, entry + 8, 4))
                .value_or(QByteArrayView());
    }
    return {};
}

QString utf16Text(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf16BE);
    QString text = decoder(bytes);
    const qsizetype end = text.indexOf(QChar::Null);
    return end < 0 ? text : text.first(end);
}

/// The text in English, else in the first language.
QString multiLanguageText(QByteArrayView tag)
{
    const std::uint64_t count = qMin(bigAt(tag, 8, 4), longestTable);
    const std::uint64_t recordLength = bigAt(tag, 12, 4);
    QString first;
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t record = 16 + recordLength * i;
        const auto bytes = sliceOf(tag, bigAt(tag, record + 8, 4), bigAt(tag, record + 4, 4));
        if (!bytes)
            continue;
        const QString text = utf16Text(*bytes);
        if (sliceOf(tag, record, 2) == QByteArrayView("en"))
            return text;
        if (first.isEmpty())
            first = text;
    }
    return first;
}

} // namespace

QString iccDescription(QByteArrayView profile)
{
    const QByteArrayView tag = descriptionTag(profile);
    if (tag.startsWith("mluc"))
        return multiLanguageText(tag);
    if (!tag.startsWith("desc"))
        return {};
    const auto text = sliceOf(tag, 12, bigAt(tag, 8, 4));
    return text ? metadataText(*text) : QString();
}

} // namespace brenvaldo::platform::metadata
