// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive_reader.h"

namespace brenvaldo::platform::archives {

std::uint8_t ArchiveReader::byte() { return static_cast<std::uint8_t>(text(1).front()); }

std::string ArchiveReader::text(std::uint64_t length)
{
    refuseUnless(length <= static_cast<std::uint64_t>(m_data.size()));
    const auto count = static_cast<qsizetype>(length);
    const std::string taken(m_data.data(), static_cast<std::size_t>(count));
    m_data = m_data.sliced(count);
    return taken;
}

std::uint64_t ArchiveReader::number(std::uint64_t size, containers::ByteOrder order)
{
    refuseUnless(size >= 1 && size <= 8);
    const auto value = containers::unsignedAt(m_data, 0, static_cast<int>(size), order);
    refuseUnless(value.has_value());
    m_data = m_data.sliced(static_cast<qsizetype>(size));
    return *value;
}

} // namespace brenvaldo::platform::archives
