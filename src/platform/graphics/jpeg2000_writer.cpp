// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"
#include "jpeg2000_boxes.h"

#include <QFile>

namespace brenvaldo::platform {

void encodeJpeg2000(const ImageNode& node, const QString& path)
{
    constexpr int signalToNoise = 48; // decibels; no visible loss
    const ImageNode fitted = fittedTo(node, {.colors = ColorSupport::SrgbInsteadOfCmyk});
    VipsBlob* blob
        = fitted.pixels.jp2ksave_buffer(vips::VImage::option()
                                            ->set("Q", signalToNoise)
                                            ->set("subsample_mode", VIPS_FOREIGN_SUBSAMPLE_OFF));
    std::size_t size = 0;
    const void* bytes = vips_blob_get(blob, &size);
    const QByteArray plain(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
    vips_area_unref(VIPS_AREA(blob));

    const QByteArray labelled
        = withLabels(plain, {.iccProfile = fitted.iccProfile, .dotsPerInch = fitted.dotsPerInch});
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(labelled) != labelled.size()
        || !file.flush())
        throw vips::VError("the file can't be written");
}

} // namespace brenvaldo::platform
