// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "property_dictionary.h"

#include <QByteArrayView>

#include <optional>

namespace brenvaldo::platform::metadata {

/// What the structure of a file itself states, apart from its metadata blocks.
struct ContainerProperties
{
    std::optional<double> dpiWidth;
    std::optional<double> dpiHeight;
    bool isIndexed = false;
    bool isFloat = false;
    bool isSrgb = false; ///< stated without a profile
    PropertyDictionary jfif;
    PropertyDictionary png;
    PropertyDictionary gif;
};

[[nodiscard]] ContainerProperties containerProperties(QByteArrayView file);

} // namespace brenvaldo::platform::metadata
