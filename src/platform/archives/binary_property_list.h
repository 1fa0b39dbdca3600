// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <string>
#include <vector>

namespace brenvaldo::platform::archives {

/// Reads single entries of a small binary property list.
///
/// Every function raises `DamagedArchive` when the entry does not exist, is of another kind or is
/// not whole. Nothing is read that is not asked for, so entries may refer to each other in circles.
class BinaryPropertyList
{
public:
    using Reference = std::uint64_t; ///< number of an entry

    explicit BinaryPropertyList(QByteArrayView data);

    [[nodiscard]] Reference top() const { return m_top; }
    [[nodiscard]] std::string text(Reference entry) const;
    [[nodiscard]] std::uint64_t uid(Reference entry) const;
    /// A real, an integer or a boolean.
    [[nodiscard]] double number(Reference entry) const;
    [[nodiscard]] std::vector<Reference> array(Reference entry) const;
    /// The value of `key` in the dictionary `entry`.
    [[nodiscard]] Reference value(Reference entry, const std::string& key) const;
    [[nodiscard]] bool hasKey(Reference entry, const std::string& key) const;

private:
    struct Dictionary
    {
        std::vector<Reference> keys;
        std::vector<Reference> values;
    };

    [[nodiscard]] Dictionary dictionary(Reference entry) const;
    [[nodiscard]] std::vector<Reference>
    references(std::uint64_t count, class ArchiveReader& from) const;
    [[nodiscard]] class ArchiveReader reader(Reference entry) const;

    QByteArrayView m_objects;
    std::vector<std::uint64_t> m_offsets;
    std::uint64_t m_referenceSize = 0;
    Reference m_top = 0;
};

} // namespace brenvaldo::platform::archives
