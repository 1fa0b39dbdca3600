// SPDX-License-Identifier: GPL-3.0-or-later
#include "binary_property_list.h"

#include "archive_reader.h"

#include <algorithm>
#include <bit>

namespace brenvaldo::platform::archives {

using containers::ByteOrder;

namespace {

constexpr qsizetype headerSize = 8;
constexpr qsizetype trailerSize = 32;
constexpr std::uint64_t mostEntries = 256;

// The upper half of a marker byte is the kind, the lower half its size.
constexpr std::uint8_t booleanKind = 0x0;
constexpr std::uint8_t integerKind = 0x1;
constexpr std::uint8_t realKind = 0x2;
constexpr std::uint8_t textKind = 0x5;
constexpr std::uint8_t uidKind = 0x8;
constexpr std::uint8_t arrayKind = 0xA;
constexpr std::uint8_t dictionaryKind = 0xD;
constexpr std::uint8_t longSize = 0xF;

struct Marker
{
    std::uint8_t kind;
    std::uint8_t size;
};

Marker marker(ArchiveReader& reader)
{
    const std::uint8_t byte = reader.byte();
    return {
        .kind = static_cast<std::uint8_t>(byte >> 4U),
        .size = static_cast<std::uint8_t>(byte & 0xFU)};
}

/// An integer of 2 to the power of `exponent` bytes; only one of 8 bytes can be negative.
std::int64_t integer(ArchiveReader& reader, std::uint8_t exponent)
{
    refuseUnless(exponent <= 3);
    return static_cast<std::int64_t>(reader.number(1ULL << exponent, ByteOrder::Big));
}

/// The number of elements of a text or container of that kind.
std::uint64_t countOf(std::uint8_t kind, ArchiveReader& reader)
{
    const Marker head = marker(reader);
    refuseUnless(head.kind == kind);
    if (head.size != longSize)
        return head.size;
    const Marker length = marker(reader);
    refuseUnless(length.kind == integerKind);
    return static_cast<std::uint64_t>(integer(reader, length.size));
}

double real(ArchiveReader& reader, std::uint8_t exponent)
{
    refuseUnless(exponent == 2 || exponent == 3);
    if (exponent == 2)
        return std::bit_cast<float>(static_cast<std::uint32_t>(reader.number(4, ByteOrder::Big)));
    return std::bit_cast<double>(reader.number(8, ByteOrder::Big));
}

} // namespace

BinaryPropertyList::BinaryPropertyList(QByteArrayView data)
{
    refuseUnless(data.size() >= headerSize + trailerSize);
    m_objects = data.chopped(trailerSize);

    ArchiveReader trailer(data.last(trailerSize));
    (void)trailer.text(6);
    const std::uint64_t offsetSize = trailer.byte();
    m_referenceSize = trailer.byte();
    const std::uint64_t count = trailer.number(8, ByteOrder::Big);
    m_top = trailer.number(8, ByteOrder::Big);
    const std::uint64_t table = trailer.number(8, ByteOrder::Big);

    const auto size = static_cast<std::uint64_t>(m_objects.size());
    refuseUnless(count >= 1 && count <= mostEntries && table <= size);
    ArchiveReader offsets(m_objects.sliced(static_cast<qsizetype>(table)));
    for (std::uint64_t entry = 0; entry < count; ++entry)
        m_offsets.push_back(offsets.number(offsetSize, ByteOrder::Big));
}

ArchiveReader BinaryPropertyList::reader(Reference entry) const
{
    refuseUnless(entry < m_offsets.size());
    const std::uint64_t offset = m_offsets[entry];
    refuseUnless(offset >= headerSize && offset < static_cast<std::uint64_t>(m_objects.size()));
    return ArchiveReader(m_objects.sliced(static_cast<qsizetype>(offset)));
}

std::vector<BinaryPropertyList::Reference>
BinaryPropertyList::references(std::uint64_t count, ArchiveReader& from) const
{
    refuseUnless(count <= mostEntries);
    std::vector<Reference> found;
    for (std::uint64_t index = 0; index < count; ++index)
        found.push_back(from.number(m_referenceSize, ByteOrder::Big));
    return found;
}

std::string BinaryPropertyList::text(Reference entry) const
{
    ArchiveReader from = reader(entry);
    const std::uint64_t length = countOf(textKind, from);
    return from.text(length);
}

std::uint64_t BinaryPropertyList::uid(Reference entry) const
{
    ArchiveReader from = reader(entry);
    const Marker head = marker(from);
    refuseUnless(head.kind == uidKind);
    return from.number(head.size + 1U, ByteOrder::Big);
}

double BinaryPropertyList::number(Reference entry) const
{
    constexpr std::uint8_t no = 0x8;
    constexpr std::uint8_t yes = 0x9;

    ArchiveReader from = reader(entry);
    const Marker head = marker(from);
    switch (head.kind) {
    case booleanKind:
        refuseUnless(head.size == no || head.size == yes);
        return head.size == yes ? 1 : 0;
    case integerKind:
        return static_cast<double>(integer(from, head.size));
    default:
        refuseUnless(head.kind == realKind);
        return real(from, head.size);
    }
}

std::vector<BinaryPropertyList::Reference> BinaryPropertyList::array(Reference entry) const
{
    ArchiveReader from = reader(entry);
    const std::uint64_t count = countOf(arrayKind, from);
    return references(count, from);
}

BinaryPropertyList::Dictionary BinaryPropertyList::dictionary(Reference entry) const
{
    ArchiveReader from = reader(entry);
    const std::uint64_t count = countOf(dictionaryKind, from);
    std::vector<Reference> keys = references(count, from);
    return {.keys = std::move(keys), .values = references(count, from)};
}

BinaryPropertyList::Reference
BinaryPropertyList::value(Reference entry, const std::string& key) const
{
    const auto [keys, values] = dictionary(entry);
    const auto found = std::find_if(keys.begin(), keys.end(), [&](Reference candidate) {
        return text(candidate) == key;
    });
    refuseUnless(found != keys.end());
    return values[static_cast<std::size_t>(found - keys.begin())];
}

bool BinaryPropertyList::hasKey(Reference entry, const std::string& key) const
{
    const std::vector<Reference> keys = dictionary(entry).keys;
    return std::any_of(keys.begin(), keys.end(), [&](Reference candidate) {
        return text(candidate) == key;
    });
}

} // namespace brenvaldo::platform::archives
