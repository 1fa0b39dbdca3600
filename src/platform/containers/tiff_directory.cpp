// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiff_directory.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint64_t classicVersion = 42;
constexpr std::uint64_t bigVersion = 43;
constexpr int inlineLength = 4;

/// Bytes of one number of each type, and how many bytes change places when the order changes.
struct TypeWidth
{
    int size = 0;
    int swapUnit = 0;
};

constexpr std::array<TypeWidth, 19> typeWidths{{
    {0, 0}, // no type
    {1, 1}, // BYTE
    {1, 1}, // ASCII
    {2, 2}, // SHORT
    {4, 4}, // LONG
    {8, 4}, // RATIONAL
    {1, 1}, // SBYTE
    {1, 1}, // UNDEFINED
    {2, 2}, // SSHORT
    {4, 4}, // SLONG
    {8, 4}, // SRATIONAL
    {4, 4}, // FLOAT
    {8, 8}, // DOUBLE
    {4, 4}, // IFD
    {0, 0}, {0, 0}, {8, 8}, // LONG8
    {8, 8}, // SLONG8
    {8, 8}, // IFD8
}};

TypeWidth widthOf(std::uint64_t type)
{
    return type < typeWidths.size() ? typeWidths.at(type) : TypeWidth{};
}

} // namespace

int tiffTypeWidth(std::uint16_t type) { return widthOf(type).size; }

const TiffField* fieldOf(const TiffDirectory& directory, std::uint16_t tag)
{
    const auto found = std::find_if(directory.begin(), directory.end(), [tag](const auto& field) {
        return field.tag == tag;
    });
    return found == directory.end() ? nullptr : &*found;
}

std::optional<TiffFile> TiffFile::open(QByteArrayView bytes)
{
    TiffFile file;
    if (!bytes.startsWith("II") && !bytes.startsWith("MM"))
        return std::nullopt;
    file.m_bytes = bytes;
    file.m_order = bytes.startsWith("II") ? ByteOrder::Little : ByteOrder::Big;
    const auto version = unsignedAt(bytes, 2, 2, file.m_order);
    file.m_isBig = version == bigVersion;
    if (!file.m_isBig && version != classicVersion)
        return std::nullopt;
    const auto first = file.m_isBig ? unsignedAt(bytes, 8, 8, file.m_order)
                                    : unsignedAt(bytes, 4, 4, file.m_order);
    if (!first)
        return std::nullopt;
    file.m_firstOffset = *first;
    return file;
}

TiffDirectory TiffFile::firstDirectory() const { return directoryAt(m_firstOffset); }

std::uint64_t TiffFile::firstEnd() const
{
    const std::uint64_t countWidth = m_isBig ? 8 : 2;
    const std::uint64_t entryLength = m_isBig ? 20 : 12;
    const std::uint64_t linkWidth = m_isBig ? 8 : 4;
    const auto count = unsignedAt(m_bytes, m_firstOffset, static_cast<int>(countWidth), m_order);
    if (!count || *count > static_cast<std::uint64_t>(m_bytes.size()) / entryLength)
        return 0;
    const std::uint64_t length = countWidth + *count * entryLength + linkWidth;
    return sliceOf(m_bytes, m_firstOffset, length) ? m_firstOffset + length : 0;
}

std::uint64_t TiffFile::secondOffset() const
{
    const int linkWidth = m_isBig ? 8 : 4;
    const std::uint64_t end = firstEnd();
    if (end == 0)
        return 0;
    const auto link = end - static_cast<std::uint64_t>(linkWidth);
    const std::uint64_t next = unsignedAt(m_bytes, link, linkWidth, m_order).value_or(0);
    return next == m_firstOffset ? 0 : next;
}

TiffDirectory TiffFile::secondDirectory() const
{
    const std::uint64_t offset = secondOffset();
    return offset == 0 ? TiffDirectory() : directoryAt(offset);
}

TiffDirectory TiffFile::subDirectory(const TiffDirectory& parent, std::uint16_t tag) const
{
    const TiffField* field = fieldOf(parent, tag);
    if (!field)
        return {};
    const QList<std::uint64_t> offsets = unsignedValues(*field, m_order);
    return offsets.isEmpty() ? TiffDirectory() : directoryAt(offsets.first());
}

TiffDirectory TiffFile::directoryAt(std::uint64_t offset) const
{
    const int countWidth = m_isBig ? 8 : 2;
    const std::uint64_t entryLength = m_isBig ? 20 : 12;
    const auto count = unsignedAt(m_bytes, offset, countWidth, m_order);
    if (!count)
        return {};

    TiffDirectory directory;
    std::vector<bool> isKnown(std::numeric_limits<std::uint16_t>::max() + 1);
    std::uint64_t entry = offset + static_cast<std::uint64_t>(countWidth);
    // Values of an honest file do not overlap: more bytes than the file has are an attack.
    auto budget = static_cast<std::uint64_t>(m_bytes.size());
    for (std::uint64_t i = 0; i < *count && sliceOf(m_bytes, entry, entryLength); ++i) {
        const auto field = fieldAt(entry);
        entry += entryLength;
        if (!field || isKnown[field->tag])
            continue;
        isKnown[field->tag] = true;
        const auto length = static_cast<std::uint64_t>(field->value.size());
        if (length > budget)
            break;
        budget -= length;
        directory.append(*field);
    }
    return directory;
}

std::optional<TiffField> TiffFile::fieldAt(std::uint64_t offset) const
{
    const int wordWidth = m_isBig ? 8 : 4;
    const auto tag = unsignedAt(m_bytes, offset, 2, m_order);
    const auto type = unsignedAt(m_bytes, offset + 2, 2, m_order);
    const auto count = unsignedAt(m_bytes, offset + 4, wordWidth, m_order);
    if (!tag || !type || !count)
        return std::nullopt;
    const auto unit = static_cast<std::uint64_t>(widthOf(*type).size);
    if (unit == 0 || *count > static_cast<std::uint64_t>(m_bytes.size()) / unit)
        return std::nullopt;

    const std::uint64_t length = *count * unit;
    std::uint64_t place = offset + 4 + static_cast<std::uint64_t>(wordWidth);
    if (length > static_cast<std::uint64_t>(wordWidth)) {
        const auto stored = unsignedAt(m_bytes, place, wordWidth, m_order);
        if (!stored)
            return std::nullopt;
        place = *stored;
    }
    const auto value = sliceOf(m_bytes, place, length);
    if (!value)
        return std::nullopt;
    return TiffField{
        .tag = static_cast<std::uint16_t>(*tag),
        .type = static_cast<std::uint16_t>(*type),
        .value = QByteArray::fromRawData(value->data(), value->size()),
        .valueOffset = place};
}

QList<std::uint64_t> unsignedValues(const TiffField& field, ByteOrder order)
{
    const int width = tiffTypeWidth(field.type);
    QList<std::uint64_t> values;
    std::uint64_t offset = 0;
    while (width > 0) {
        const auto value = unsignedAt(field.value, offset, width, order);
        if (!value)
            break;
        values.append(*value);
        offset += static_cast<std::uint64_t>(width);
    }
    return values;
}

TiffField longField(std::uint16_t tag, std::uint64_t value, ByteOrder order)
{
    return longField(tag, QList{value}, order);
}

TiffField longField(std::uint16_t tag, const QList<std::uint64_t>& values, ByteOrder order)
{
    TiffField field{.tag = tag, .type = tiff::Long};
    for (const std::uint64_t value : values)
        appendUnsigned(field.value, value, 4, order);
    return field;
}

TiffField swapped(const TiffField& field)
{
    const int unit = widthOf(field.type).swapUnit;
    TiffField result = field;
    result.value.detach();
    for (qsizetype start = 0; start + unit <= result.value.size(); start += unit)
        std::reverse(result.value.begin() + start, result.value.begin() + start + unit);
    return result;
}

TiffDirectory swapped(const TiffDirectory& directory)
{
    TiffDirectory result;
    for (const TiffField& field : directory)
        result.append(field.type == tiff::Undefined ? field : swapped(field));
    return result;
}

void replace(TiffDirectory& directory, const TiffField& field)
{
    directory.removeIf([&field](const TiffField& other) { return other.tag == field.tag; });
    directory.append(field);
}

QByteArray serializedDirectory(TiffDirectory directory, std::uint64_t offset, ByteOrder order)
{
    std::sort(directory.begin(), directory.end(), [](const auto& left, const auto& right) {
        return left.tag < right.tag;
    });
    const auto count = static_cast<std::uint64_t>(directory.size());
    std::uint64_t valueOffset = offset + 2 + 12 * count + 4;
    QByteArray entries;
    QByteArray values;
    appendUnsigned(entries, count, 2, order);
    for (const TiffField& field : directory) {
        const auto length = static_cast<std::uint64_t>(field.value.size());
        appendUnsigned(entries, field.tag, 2, order);
        appendUnsigned(entries, field.type, 2, order);
        appendUnsigned(
            entries, length / static_cast<std::uint64_t>(widthOf(field.type).size), 4, order
        );
        if (length <= inlineLength) {
            entries.append(field.value.leftJustified(inlineLength, '\0'));
            continue;
        }
        appendUnsigned(entries, field.isPlaced ? field.valueOffset : valueOffset, 4, order);
        if (field.isPlaced)
            continue;
        values.append(field.value);
        if (length % 2 != 0)
            values.append('\0');
        valueOffset += length + length % 2;
    }
    appendUnsigned(entries, 0, 4, order);
    return entries + values;
}

bool setSecondOffset(QByteArray& bytes, std::uint64_t offset)
{
    const auto file = TiffFile::open(bytes);
    const std::uint64_t end = file && !file->isBig() ? file->firstEnd() : 0;
    if (end == 0)
        return false;
    QByteArray link;
    appendUnsigned(link, offset, 4, file->order());
    bytes.replace(static_cast<qsizetype>(end) - link.size(), link.size(), link);
    return true;
}

QByteArray tiffHeader(ByteOrder order, std::uint64_t offset)
{
    QByteArray header(order == ByteOrder::Little ? "II" : "MM");
    appendUnsigned(header, classicVersion, 2, order);
    appendUnsigned(header, offset, 4, order);
    return header;
}

} // namespace brenvaldo::platform::containers
