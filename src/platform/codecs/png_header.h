// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "header_facts.h"

#include <QByteArray>
#include <QByteArrayView>

namespace brenvaldo::platform::codecs {

// The PNG library drops every profile that it finds fault with, and the engine does not tell a
// resolution of one pixel a millimetre from none, and takes none as a little less than 72 dots per
// inch: their chunks are read and written here.

/// Where the chunk of the profile may stand in every file: behind signature and header.
constexpr qint64 pngHeaderLength = 33;

/// The whole chunk of a profile; empty for an empty one.
[[nodiscard]] QByteArray pngProfileChunk(const QByteArray& profile);

/// The facts in the header of the PNG; those of damaged chunks are left out.
[[nodiscard]] HeaderFacts readPngHeaderFacts(QByteArrayView file);

} // namespace brenvaldo::platform::codecs
