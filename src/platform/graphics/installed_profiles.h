// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "profile_conversion.h"

#include <QStringList>

#include <vector>

namespace brenvaldo::platform::graphics {

/// Where ICC profiles are installed for this user and on this machine; some may not exist.
[[nodiscard]] QStringList profileFolders();

/// The colour spaces of the profiles in `folders` and below: CMYK ones, then RGB, Lab and grey.
/// Files with the same contents count once, broken ones not at all; a profile without a description
/// has the name of its file. Where no RGB profile is installed, sRGB stands in.
[[nodiscard]] std::vector<ColorSpace> installedColorSpaces(const QStringList& folders);

} // namespace brenvaldo::platform::graphics
