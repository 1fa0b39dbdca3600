// SPDX-License-Identifier: GPL-3.0-or-later
#include "photoshop_file.h"

#include "bytes.h"

namespace brenvaldo::platform::containers {

namespace {

/// Reads sections that begin with their length.
class SectionReader
{
public:
    explicit SectionReader(QByteArrayView file)
        : m_rest(tailOf(file, photoshopHeaderLength))
    {
    }

    std::optional<QByteArrayView> next(int widthOfLength)
    {
        const auto length = unsignedAt(m_rest, 0, widthOfLength, ByteOrder::Big);
        const auto width = static_cast<std::uint64_t>(widthOfLength);
        const auto section = length ? sliceOf(m_rest, width, *length) : std::nullopt;
        m_rest = section ? tailOf(m_rest, width + *length) : QByteArrayView();
        return section;
    }

    [[nodiscard]] QByteArrayView rest() const { return m_rest; }

private:
    QByteArrayView m_rest;
};

} // namespace

bool isLargePhotoshopFile(QByteArrayView file)
{
    constexpr std::uint64_t largeVersion = 2;
    return unsignedAt(file, 4, 2, ByteOrder::Big) == largeVersion;
}

std::optional<PhotoshopSections> photoshopSections(QByteArrayView file)
{
    SectionReader reader(file);
    const auto colors = reader.next(4);
    const auto resources = reader.next(4);
    if (!resources)
        return std::nullopt;
    const auto layers = reader.next(isLargePhotoshopFile(file) ? 8 : 4);
    return PhotoshopSections{
        .colors = *colors, .resources = *resources, .layers = layers, .picture = reader.rest()};
}

} // namespace brenvaldo::platform::containers
