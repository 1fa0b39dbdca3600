// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/archives/color_archive.h>

#include <cstdlib>

using namespace brenvaldo::platform::archives;

/// The archive stands in its bytes; a colour that was read is the same after writing it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray archive(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto color = colorFromArchive(QString::fromLatin1(archive.toBase64()));
    if (color && colorFromArchive(colorArchive(*color)) != color)
        std::abort();
    return 0;
}
