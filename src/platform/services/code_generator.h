// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

#include <optional>

/// \file
/// Codes that machines read, one pixel a module, dark on white, with the quiet zone around them.

namespace brenvaldo::platform::services {

/// A QR code of the bytes at correction level M (ISO/IEC 18004), with four quiet modules around it.
///
/// Square. Nothing for no bytes, and for more than the largest symbol holds (2331 bytes).
[[nodiscard]] std::optional<QImage> qrCode(const QByteArray& message);

/// A Code 128 bar code (ISO/IEC 15417) of ASCII characters, with `quietModules` on both sides.
///
/// One module high. Nothing for no characters, for some beyond ASCII, and for more than 60 symbols.
[[nodiscard]] std::optional<QImage> code128(const QByteArray& message, int quietModules);

} // namespace brenvaldo::platform::services
