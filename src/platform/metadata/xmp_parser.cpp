// SPDX-License-Identifier: GPL-3.0-or-later
#include "xmp_parser.h"

#include <exiv2/exiv2.hpp>

namespace brenvaldo::platform::metadata {

std::unique_lock<std::mutex> lockedXmpParser()
{
    static std::once_flag once;
    static std::mutex mutex;
    std::call_once(once, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize();
    });
    return std::unique_lock(mutex);
}

} // namespace brenvaldo::platform::metadata
