// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"
#include "jpeg2000_boxes.h"

namespace brenvaldo::platform::codecs {

void encodeJpeg2000(const graphics::ImageNode& node, OutputFile& file)
{
    constexpr int signalToNoise = 48; // decibels; no visible loss
    const graphics::ImageNode fitted = fittedTo(node, {.colors = ColorSupport::SrgbInsteadOfCmyk});
    VipsBlob* blob
        = fitted.pixels.jp2ksave_buffer(vips::VImage::option()
                                            ->set("Q", signalToNoise)
                                            ->set("subsample_mode", VIPS_FOREIGN_SUBSAMPLE_OFF));
    std::size_t size = 0;
    const void* bytes = vips_blob_get(blob, &size);
    const QByteArray plain(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
    vips_area_unref(VIPS_AREA(blob));

    file.write(
        withHeaderFacts(plain, {.iccProfile = fitted.iccProfile, .dotsPerInch = fitted.dotsPerInch})
    );
}

} // namespace brenvaldo::platform::codecs
