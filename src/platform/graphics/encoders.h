// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_destination.h"
#include "image_node.h"

#include <QString>

namespace brenvaldo::platform {

// One encoder a format, each writing the file at `path` anew. They throw `vips::VError` when the
// pixels can't be computed or the file can't be written.

void encodeJpeg(const ImageNode& node, std::optional<double> quality, const QString& path);
void encodePng(const ImageNode& node, const QString& path);
void encodeTiff(const ImageNode& node, const QString& path);
void encodeGif(const ImageNode& node, const QString& path);
void encodeJpeg2000(const ImageNode& node, const QString& path);
void encodeBmp(const ImageNode& node, const QString& path);
void encodePdf(const ImageNode& node, const QString& path);
/// `blocks` may be null.
void encodeHeic(const ImageNode& node, const MetadataBlocks* blocks, const QString& path);

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
[[nodiscard]] ImageNode fittedTo(const ImageNode& node, const FormatLimits& limits);

} // namespace brenvaldo::platform
