// SPDX-License-Identifier: GPL-3.0-or-later
#include "photoshop_resources.h"

#include "bytes.h"

#include <algorithm>
#include <array>

namespace brenvaldo::platform::containers {

namespace {

constexpr std::array resourceSignatures{"8BIM", "PHUT", "DCSR", "AgHg", "MeSa"};
constexpr qsizetype longestPadding = 3;

std::optional<PhotoshopResource> resourceAt(QByteArrayView block, std::uint64_t offset)
{
    const auto signature = sliceOf(block, offset, 4);
    if (!signature
        || std::none_of(
            resourceSignatures.begin(),
            resourceSignatures.end(),
            [&](const char* known) { return *signature == QByteArrayView(known, 4); }
        ))
        return std::nullopt;

    const auto id = unsignedAt(block, offset + 4, 2, ByteOrder::Big);
    const auto nameLength = unsignedAt(block, offset + 6, 1, ByteOrder::Big);
    if (!id || !nameLength)
        return std::nullopt;
    const std::uint64_t lengthOffset = offset + 6 + ((*nameLength + 2) & ~1ULL);
    const auto length = unsignedAt(block, lengthOffset, 4, ByteOrder::Big);
    if (!length)
        return std::nullopt;
    const auto data = sliceOf(block, lengthOffset + 4, *length);
    if (!data)
        return std::nullopt;

    const std::uint64_t end = std::min(
        lengthOffset + 4 + *length + (*length & 1U), static_cast<std::uint64_t>(block.size())
    );
    return PhotoshopResource{
        .id = static_cast<std::uint16_t>(*id),
        .data = *data,
        .whole = *sliceOf(block, offset, end - offset)};
}

} // namespace

QList<PhotoshopResource> photoshopResources(QByteArrayView block)
{
    QList<PhotoshopResource> resources;
    std::uint64_t offset = 0;
    while (const auto resource = resourceAt(block, offset)) {
        resources.append(*resource);
        offset += static_cast<std::uint64_t>(resource->whole.size());
    }
    return resources;
}

QByteArray photoshopResourceData(QByteArrayView block, PhotoshopResourceId id)
{
    for (const PhotoshopResource& resource : photoshopResources(block)) {
        if (resource.id == static_cast<std::uint16_t>(id))
            return resource.data.toByteArray();
    }
    return {};
}

QByteArray photoshopResource(PhotoshopResourceId id, const QByteArray& data)
{
    QByteArray resource("8BIM");
    appendUnsigned(resource, static_cast<std::uint16_t>(id), 2, ByteOrder::Big);
    resource.append(2, '\0');
    appendUnsigned(resource, static_cast<std::uint64_t>(data.size()), 4, ByteOrder::Big);
    resource.append(data);
    if (data.size() % 2 != 0)
        resource.append('\0');
    return resource;
}

QByteArray photoshopBlockWithIptc(const QByteArray& block, const QByteArray& iptc)
{
    if (iptc == photoshopResourceData(block, PhotoshopResourceId::Iptc))
        return block;

    QByteArray result;
    for (const PhotoshopResource& resource : photoshopResources(block)) {
        if (resource.id == static_cast<std::uint16_t>(PhotoshopResourceId::Iptc))
            continue;
        result.append(resource.whole);
        if (resource.whole.size() % 2 != 0)
            result.append('\0');
    }
    if (!iptc.isEmpty())
        result.append(photoshopResource(PhotoshopResourceId::Iptc, iptc));
    return result;
}

QByteArray withoutIptcPadding(const QByteArray& iptc)
{
    std::uint64_t end = 0;
    while (unsignedAt(iptc, end, 1, ByteOrder::Big) == 0x1CU) {
        const auto length = unsignedAt(iptc, end + 3, 2, ByteOrder::Big);
        if (!length || !sliceOf(iptc, end + 5, *length))
            return iptc;
        end += 5 + *length;
    }
    const QByteArrayView rest = tailOf(iptc, end);
    const bool isPadding = rest.size() <= longestPadding
        && std::all_of(rest.begin(), rest.end(), [](char byte) { return byte == '\0'; });
    return isPadding ? iptc.first(static_cast<qsizetype>(end)) : iptc;
}

} // namespace brenvaldo::platform::containers
