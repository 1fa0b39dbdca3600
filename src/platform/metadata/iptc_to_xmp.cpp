// SPDX-License-Identifier: GPL-3.0-or-later
#include "iptc_to_xmp.h"

#include "xmp_parser.h"

#include <exiv2/exiv2.hpp>

#include <limits>

namespace brenvaldo::platform::metadata {

QByteArray xmpFromIptc(const QByteArray& iptc)
{
    constexpr std::uint32_t spaceForEdits = 2048;
    if (iptc.isEmpty() || iptc.size() > std::numeric_limits<int>::max())
        return {};
    const auto lock = lockedXmpParser();
    try {
        Exiv2::IptcData dataSets;
        const auto* bytes = reinterpret_cast<const Exiv2::byte*>(iptc.constData());
        if (Exiv2::IptcParser::decode(dataSets, bytes, static_cast<std::uint32_t>(iptc.size()))
            != 0)
            return {};
        Exiv2::XmpData properties;
        const char* charset = dataSets.detectCharset();
        Exiv2::copyIptcToXmp(dataSets, properties, charset ? charset : "ISO-8859-1");
        std::string packet;
        if (properties.empty()
            || Exiv2::XmpParser::encode(
                   packet, properties, Exiv2::XmpParser::useCompactFormat, spaceForEdits
               ) != 0)
            return {};
        return QByteArray::fromStdString(packet);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace brenvaldo::platform::metadata
