// SPDX-License-Identifier: GPL-3.0-or-later
#include "heif_locations.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

using containers::appendUnsigned;
using containers::ByteOrder;

namespace {

constexpr std::uint64_t lastVersion = 2;
constexpr std::uint64_t firstWithMethods = 1;
constexpr int widest = 8;

int idWidthOf(std::uint64_t version) { return version < lastVersion ? 2 : 4; }

/// Takes numbers from the box one after the other.
class Cursor
{
public:
    explicit Cursor(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    std::uint64_t next(int width)
    {
        if (width == 0)
            return 0;
        const auto value = containers::unsignedAt(m_bytes, m_place, width, ByteOrder::Big);
        m_isWhole = m_isWhole && value.has_value();
        m_place += static_cast<std::uint64_t>(width);
        return value.value_or(0);
    }

    /// False once a number was asked for beyond the end.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    QByteArrayView m_bytes;
    std::uint64_t m_place = 0;
    bool m_isWhole = true;
};

struct Widths
{
    int offset;
    int length;
    int base;
    int index;

    [[nodiscard]] bool areSane() const
    {
        // Without a length an extent reaches to the end of the file.
        return length > 0 && std::max({offset, length, base, index}) <= widest;
    }
};

Widths widthsOf(std::uint64_t packed, std::uint64_t version)
{
    const auto nibble
        = [packed](unsigned place) { return static_cast<int>((packed >> (place * 4U)) & 15U); };
    return {nibble(3), nibble(2), nibble(1), version < firstWithMethods ? 0 : nibble(0)};
}

HeifLocation nextLocation(Cursor& cursor, std::uint64_t version, const Widths& widths)
{
    HeifLocation location{.id = cursor.next(idWidthOf(version))};
    if (version >= firstWithMethods)
        location.method = cursor.next(2) & 15U;
    location.dataReference = cursor.next(2);
    const std::uint64_t base = cursor.next(widths.base);
    const std::uint64_t count = cursor.next(2);
    for (std::uint64_t i = 0; i < count && cursor.isWhole(); ++i) {
        HeifExtent extent{.index = cursor.next(widths.index)};
        extent.offset = base + cursor.next(widths.offset);
        extent.length = cursor.next(widths.length);
        location.extents.append(extent);
    }
    return location;
}

bool hasOpenExtent(const HeifLocation& location)
{
    return location.isInFile()
        && std::any_of(location.extents.begin(), location.extents.end(), [](const auto& extent) {
               return extent.length == 0;
           });
}

QByteArray bytesOf(const HeifLocation& location, const HeifLocations& all, int width)
{
    QByteArray bytes;
    appendUnsigned(bytes, location.id, idWidthOf(all.version), ByteOrder::Big);
    appendUnsigned(bytes, location.method, 2, ByteOrder::Big);
    appendUnsigned(bytes, location.dataReference, 2, ByteOrder::Big);
    appendUnsigned(bytes, static_cast<std::uint64_t>(location.extents.size()), 2, ByteOrder::Big);
    for (const HeifExtent& extent : location.extents) {
        appendUnsigned(bytes, extent.index, all.indexWidth, ByteOrder::Big);
        appendUnsigned(bytes, extent.offset, width, ByteOrder::Big);
        appendUnsigned(bytes, extent.length, width, ByteOrder::Big);
    }
    return bytes;
}

} // namespace

std::optional<HeifLocations> readHeifLocations(QByteArrayView payload)
{
    Cursor cursor(payload);
    HeifLocations locations{.version = cursor.next(1)};
    cursor.next(3); // flags
    const Widths widths = widthsOf(cursor.next(2), locations.version);
    if (locations.version > lastVersion || !widths.areSane())
        return std::nullopt;
    locations.indexWidth = widths.index;
    const std::uint64_t count = cursor.next(idWidthOf(locations.version));
    for (std::uint64_t i = 0; i < count && cursor.isWhole(); ++i) {
        locations.items.append(nextLocation(cursor, locations.version, widths));
        if (hasOpenExtent(locations.items.last()))
            return std::nullopt;
    }
    return cursor.isWhole() ? std::optional(locations) : std::nullopt;
}

QByteArray heifLocationBox(const HeifLocations& locations, int width)
{
    HeifLocations all = locations;
    all.version = std::max(all.version, firstWithMethods);
    QByteArray payload;
    appendUnsigned(payload, all.version, 1, ByteOrder::Big);
    payload.append(3, '\0');
    const auto nibbles = static_cast<std::uint64_t>(width << 4 | width);
    appendUnsigned(payload, nibbles, 1, ByteOrder::Big);
    appendUnsigned(payload, static_cast<std::uint64_t>(all.indexWidth), 1, ByteOrder::Big);
    appendUnsigned(
        payload,
        static_cast<std::uint64_t>(all.items.size()),
        idWidthOf(all.version),
        ByteOrder::Big
    );
    for (const HeifLocation& location : all.items)
        payload.append(bytesOf(location, all, width));
    return containers::isoBoxOf("iloc", payload);
}

} // namespace brenvaldo::platform::metadata
