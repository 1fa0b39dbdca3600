// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/archives/bookmark.h>

#include <cstdlib>

using namespace brenvaldo::platform::archives;

/// A record that leads to a path is one that can be made for it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray record(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto path = pathOfBookmark(record);
    if (path && !bookmarkFor(*path))
        std::abort();
    return 0;
}
