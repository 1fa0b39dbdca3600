// SPDX-License-Identifier: GPL-3.0-or-later
#include "qr_code.h"

#include "code_picture.h"

#include <platform/services/code_generator.h>

namespace brenvaldo::services {

std::optional<platform::graphics::Image>
cQRCode::QRCodeImageWithData(const QByteArray& data, double size)
{
    const auto modules = platform::services::qrCode(data);
    if (!modules)
        return std::nullopt;
    return codePicture(*modules, {size * 0.5, size * 0.5});
}

} // namespace brenvaldo::services
