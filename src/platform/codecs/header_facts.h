// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>

namespace brenvaldo::platform::codecs {

/// What the header of a file says beside the size of the picture.
struct HeaderFacts
{
    QByteArray iccProfile = {};
    std::optional<double> dotsPerInch = {};
};

} // namespace brenvaldo::platform::codecs
