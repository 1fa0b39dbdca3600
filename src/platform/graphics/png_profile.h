// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QIODevice>

namespace brenvaldo::platform {

// The PNG library drops every profile that it finds fault with, so its chunk is read and written
// here.

/// Where the chunk of the profile may stand in every file: behind signature and header.
constexpr qint64 pngHeaderLength = 33;

/// The whole chunk of a profile; empty for an empty one.
[[nodiscard]] QByteArray pngProfileChunk(const QByteArray& profile);

/// The profile of the PNG at the start of `file`; empty without one or when its chunk is damaged.
[[nodiscard]] QByteArray readPngProfile(QIODevice& file);

} // namespace brenvaldo::platform
