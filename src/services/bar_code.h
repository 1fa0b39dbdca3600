// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QString>

#include <optional>

namespace brenvaldo::services {

/// Makes Code 128 bar codes.
class cBarCode
{
public:
    /// The code of an ASCII text, `size` pixels wide and that by 6.8 high, whatever its length;
    /// nothing for other texts and for what no code can hold.
    [[nodiscard]] static std::optional<platform::graphics::Image>
    hBarCodeImageWithNSString(const QString& text, double size);
};

} // namespace brenvaldo::services
