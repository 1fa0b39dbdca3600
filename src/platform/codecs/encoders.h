// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_destination.h"

#include <platform/foundation/output_file.h>
#include <platform/graphics/image_node.h>

namespace brenvaldo::platform::codecs {

// One encoder a format, each writing into `file`. They throw `vips::VError` when the pixels can't
// be computed or the format can't hold them. Whether every byte was taken is known to the file
// alone: some of the libraries behind them forget it.

void encodeJpeg(const graphics::ImageNode& node, std::optional<double> quality, OutputFile& file);
void encodePng(const graphics::ImageNode& node, OutputFile& file);
void encodeTiff(const graphics::ImageNode& node, OutputFile& file);
void encodeGif(const graphics::ImageNode& node, OutputFile& file);
void encodeJpeg2000(const graphics::ImageNode& node, OutputFile& file);
void encodeBmp(const graphics::ImageNode& node, OutputFile& file);
void encodePdf(const graphics::ImageNode& node, OutputFile& file);
/// `blocks` may be null.
void encodeHeic(
    const graphics::ImageNode& node, const containers::MetadataBlocks* blocks, OutputFile& file
);

/// What a format can hold.
enum class AlphaSupport { Keeps, Flattens };
enum class DepthSupport { Any, EightBits };
enum class ColorSupport { Any, Srgb, SrgbInsteadOfCmyk };

struct FormatLimits
{
    AlphaSupport alpha = AlphaSupport::Keeps;
    DepthSupport depth = DepthSupport::Any;
    ColorSupport colors = ColorSupport::Any;
};

/// The picture brought into what a format can hold; transparent parts are laid on white.
[[nodiscard]] graphics::ImageNode
fittedTo(const graphics::ImageNode& node, const FormatLimits& limits);

} // namespace brenvaldo::platform::codecs
