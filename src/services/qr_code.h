// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QByteArray>

#include <optional>

namespace brenvaldo::services {

/// Makes QR codes.
class cQRCode
{
public:
    /// The code of the bytes in a square of `size` pixels a side; nothing for what no code can
    /// hold.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    QRCodeImageWithData(const QByteArray& data, double size);
};

} // namespace brenvaldo::services
