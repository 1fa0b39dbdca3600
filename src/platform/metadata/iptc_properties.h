// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "property_dictionary.h"

#include <QByteArrayView>

namespace brenvaldo::platform::metadata {

struct ExifProperties;
class XmpValues;

/// The IPTC dictionary: each key from the IIM data sets, else from XMP, else from EXIF.
///
/// Texts are UTF-8 where they are valid as such and ISO 8859-1 otherwise, whatever the data sets
/// announce.
[[nodiscard]] PropertyDictionary
iptcProperties(QByteArrayView iim, const XmpValues& xmp, const ExifProperties& exif);

} // namespace brenvaldo::platform::metadata
