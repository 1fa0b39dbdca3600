// SPDX-License-Identifier: GPL-3.0-or-later
#include "iptc_data_sets.h"

#include <platform/containers/bytes.h>
#include <platform/containers/photoshop_resources.h>

#include <algorithm>
#include <string_view>

namespace brenvaldo::platform::metadata {

using containers::appendUnsigned;
using containers::ByteOrder;
using containers::unsignedAt;

namespace {

constexpr std::uint64_t marker = 0x1C;
constexpr std::uint64_t longestShortLength = 0x7FFF;
constexpr std::uint64_t extendedLength = 0x8000;
constexpr int characterSet = 0x15A;
constexpr int recordVersion = 0x200;
constexpr int rasterizedCaption = 0x27D;
constexpr int firstPreview = 0x2C8;
constexpr QByteArrayView utf8("\x1B%G");

/// A data set in the making.
struct Entry
{
    int number;
    QByteArray value;
};
using Entries = QList<Entry>;

std::optional<IptcDataSet> dataSetAt(QByteArrayView iptc, std::uint64_t offset)
{
    const auto number = unsignedAt(iptc, offset + 1, 2, ByteOrder::Big);
    auto length = unsignedAt(iptc, offset + 3, 2, ByteOrder::Big);
    if (unsignedAt(iptc, offset, 1, ByteOrder::Big) != marker || !number || !length)
        return std::nullopt;
    std::uint64_t headLength = 5;
    if (*length >= extendedLength) {
        // What stands there is the number of bytes that hold the length.
        const std::uint64_t width = *length - extendedLength;
        length = width >= 1 && width <= 4
            ? unsignedAt(iptc, offset + headLength, static_cast<int>(width), ByteOrder::Big)
            : std::nullopt;
        headLength += width;
    }
    const auto whole = containers::sliceOf(iptc, offset, headLength + length.value_or(0));
    if (!length || !whole)
        return std::nullopt;
    return IptcDataSet{
        .number = static_cast<int>(*number),
        .value = containers::tailOf(*whole, headLength),
        .whole = *whole};
}

/// 0 for a key that IIM has no place for.
int numberOf(IptcKey key)
{
    switch (key) {
    case IptcKey::ObjectName:
        return 0x205;
    case IptcKey::Keywords:
        return 0x219;
    case IptcKey::CaptionAbstract:
        return 0x278;
    case IptcKey::Headline:
        return 0x269;
    case IptcKey::CopyrightNotice:
        return 0x274;
    case IptcKey::RightsUsageTerms:
        return 0;
    case IptcKey::Byline:
        return 0x250;
    case IptcKey::BylineTitle:
        return 0x255;
    case IptcKey::Source:
        return 0x273;
    }
    return 0;
}

QByteArray bytesOf(const Entry& entry)
{
    const auto length = static_cast<std::uint64_t>(entry.value.size());
    QByteArray bytes;
    appendUnsigned(bytes, marker, 1, ByteOrder::Big);
    appendUnsigned(bytes, static_cast<std::uint64_t>(entry.number), 2, ByteOrder::Big);
    if (length > longestShortLength) {
        appendUnsigned(bytes, extendedLength + 4, 2, ByteOrder::Big);
        appendUnsigned(bytes, length, 4, ByteOrder::Big);
    } else {
        appendUnsigned(bytes, length, 2, ByteOrder::Big);
    }
    return bytes + entry.value;
}

bool isText(int number)
{
    return number > recordVersion && number < firstPreview && number != rasterizedCaption;
}

/// ISO 8859-1 with the letters that Windows has in place of its control characters.
QString oldText(QByteArrayView bytes)
{
    constexpr char16_t firstControl = 0x80;
    constexpr std::u16string_view letters = u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                                            u"\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
                                            u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                                            u"\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    QString text = QString::fromLatin1(bytes);
    for (QChar& unit : text) {
        if (unit.unicode() >= firstControl && unit.unicode() < firstControl + letters.size())
            unit = letters[unit.unicode() - firstControl];
    }
    return text;
}

bool saysUtf8(const QList<IptcDataSet>& sets)
{
    return std::any_of(sets.begin(), sets.end(), [](const IptcDataSet& set) {
        return set.number == characterSet && set.value == utf8;
    });
}

Entries entriesOf(const QList<IptcDataSet>& sets)
{
    const bool isUtf8 = saysUtf8(sets);
    Entries entries;
    for (const IptcDataSet& set : sets) {
        const bool isConverted = !isUtf8 && isText(set.number) && !set.value.isValidUtf8();
        entries.append(
            {.number = set.number,
             .value = isConverted ? oldText(set.value).toUtf8() : set.value.toByteArray()}
        );
    }
    return entries;
}

/// In front of the sets of higher numbers.
void insert(Entries& entries, const Entry& entry)
{
    const auto place = std::find_if(entries.begin(), entries.end(), [&entry](const Entry& other) {
        return other.number > entry.number;
    });
    entries.insert(place, entry);
}

/// True when something came or went.
bool change(Entries& entries, int number, const QStringList& values)
{
    const qsizetype removed
        = entries.removeIf([number](const Entry& entry) { return entry.number == number; });
    for (const QString& value : values)
        insert(entries, {.number = number, .value = value.toUtf8()});
    return removed > 0 || !values.isEmpty();
}

} // namespace

IptcDataSets readIptcDataSets(QByteArrayView iptc)
{
    IptcDataSets result{.sets = {}, .rest = iptc};
    std::uint64_t offset = 0;
    while (const auto set = dataSetAt(iptc, offset)) {
        result.sets.append(*set);
        offset += static_cast<std::uint64_t>(set->whole.size());
        result.rest = containers::tailOf(iptc, offset);
    }
    return result;
}

std::optional<QByteArray> iptcWith(const QByteArray& iptc, const QList<IptcChange>& changes)
{
    const QByteArray block = containers::withoutIptcPadding(iptc);
    const IptcDataSets before = readIptcDataSets(block);
    if (!before.rest.isEmpty())
        return std::nullopt;
    Entries entries = entriesOf(before.sets);
    bool isChanged = false;
    for (const IptcChange& edit : changes) {
        if (const int number = numberOf(edit.key))
            isChanged = change(entries, number, edit.values) || isChanged;
    }
    if (!isChanged)
        return iptc;
    change(entries, characterSet, {QString::fromLatin1(utf8)});
    if (before.sets.isEmpty())
        insert(entries, {.number = recordVersion, .value = QByteArray("\0\4", 2)});
    QByteArray result;
    for (const Entry& entry : entries)
        result.append(bytesOf(entry));
    return result;
}

} // namespace brenvaldo::platform::metadata
