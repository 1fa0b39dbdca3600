// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "psd_file.h"

#include <QByteArray>

#include <vector>

namespace brenvaldo::platform::codecs {

/// Gives the rows of the merged picture, whole bytes as they are stored, with run lengths expanded.
class PsdRows
{
public:
    /// @throws vips::VError when the file is too short for its rows.
    explicit PsdRows(const PsdFile& file);

    /// The row `y` of a channel. @throws vips::VError when its run lengths don't fit.
    [[nodiscard]] QByteArrayView row(int channel, int y, QByteArray& scratch) const;

private:
    [[nodiscard]] std::size_t rowIndex(int channel, int y) const;

    PsdFile m_file;
    qsizetype m_rowBytes;
    std::vector<std::uint64_t> m_offsets; ///< of all packed rows, and where the last one ends
};

} // namespace brenvaldo::platform::codecs
