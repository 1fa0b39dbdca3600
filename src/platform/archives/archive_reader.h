// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/bytes.h>

#include <QByteArrayView>

#include <cstdint>
#include <string>

namespace brenvaldo::platform::archives {

/// Raised while foreign bytes are read and caught by the function that started the reading: the
/// bytes are not what they should be.
struct DamagedArchive
{
};

inline void refuseUnless(bool sound)
{
    if (!sound)
        throw DamagedArchive();
}

/// Takes bytes off the front of `data`; raises `DamagedArchive` instead of reading past the end.
class ArchiveReader
{
public:
    explicit ArchiveReader(QByteArrayView data)
        : m_data(data)
    {
    }

    [[nodiscard]] std::uint8_t byte();
    [[nodiscard]] std::string text(std::uint64_t length);

    /// An unsigned number of 1 to 8 bytes.
    [[nodiscard]] std::uint64_t number(std::uint64_t size, containers::ByteOrder order);

private:
    QByteArrayView m_data;
};

} // namespace brenvaldo::platform::archives
