// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawing_file.h"

#include "photo_decoder.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/graphics/image_node.h>

#include <QFile>

#include <string_view>

namespace brenvaldo::platform::codecs {

namespace {

/// Name of the engine's operation that reads the file; null for a file that is no drawing.
const char* loaderOf(const QByteArray& file)
{
    const char* found = vips_foreign_find_load(file.constData());
    const std::string_view loader = found != nullptr ? found : "";
    if (loader.starts_with("VipsForeignLoadSvg"))
        return "svgload";
    if (loader.starts_with("VipsForeignLoadPdf"))
        return "pdfload";
    vips_error_clear();
    return nullptr;
}

graphics::ImageNode loaded(const QByteArray& file, const char* loader)
{
    vips::VImage drawing;
    vips::VImage::call(
        loader, vips::VImage::option()->set("filename", file.constData())->set("out", &drawing)
    );
    checkDecodedWhole({drawing.width(), drawing.height()});
    graphics::ImageNode node = graphics::nodeOfDecodedPixels(drawing);
    node.dotsPerInch = 72;
    return node;
}

} // namespace

std::optional<graphics::Image> openDrawing(const QString& path)
{
    const QByteArray file = QFile::encodeName(path);
    const char* loader = loaderOf(file);
    if (loader == nullptr)
        return std::nullopt;
    try {
        return graphics::makeImage(loaded(file, loader)).copiedToMemory();
    } catch (const std::exception& error) {
        log(u"Failed to read drawing %1: %2"_s.arg(path, graphics::faultText(error)));
        return std::nullopt;
    }
}

} // namespace brenvaldo::platform::codecs
