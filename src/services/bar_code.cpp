// SPDX-License-Identifier: GPL-3.0-or-later
#include "bar_code.h"

#include "code_picture.h"

#include <files/ns_string_handling.h>
#include <platform/services/code_generator.h>

namespace brenvaldo::services {

std::optional<platform::graphics::Image>
cBarCode::hBarCodeImageWithNSString(const QString& text, double size)
{
    constexpr int quietModules = 7;
    constexpr double widthOfHeight = 6.8;
    const auto ascii = files::cNSStringHandling::hNSStringToNSData(text);
    const auto modules = ascii ? platform::services::code128(*ascii, quietModules) : std::nullopt;
    if (!modules)
        return std::nullopt;
    const double width = size * 0.5;
    return codePicture(*modules, {width, width / widthOfHeight});
}

} // namespace brenvaldo::services
