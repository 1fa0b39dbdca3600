// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace brenvaldo::test {

struct JpegKind
{
    int restartBlocks = 0; ///< blocks from one restart marker to the next; 0 for none
    bool hasScanOfEachComponent = false;
};

/// A photo of 64 x 48 pixels, in blocks of 8 x 8, with noise enough that each block holds data.
[[nodiscard]] QByteArray jpegOf(const JpegKind& kind);

} // namespace brenvaldo::test
