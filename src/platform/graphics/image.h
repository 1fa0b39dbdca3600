// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "geometry.h"

#include <QByteArray>
#include <QImage>

#include <memory>
#include <optional>

namespace brenvaldo::platform::graphics {

struct ImageNode; // the lazily evaluated pixels; known to this folder alone

enum class ColorModel { Gray, Rgb, Cmyk, Lab };

/// A picture: an immutable value that shares its pixels and is cheap to copy.
///
/// Nothing is decoded or computed until the picture is written or drawn, so a chain of operations
/// is one streamed pipeline. Pixels keep the depth, colour model, alpha and ICC profile of their
/// source; alpha is straight. Rows run from the top down. A picture from a sequential source can be
/// evaluated once; `copiedToMemory` makes one that can be evaluated at will, from any thread.
class Image
{
public:
    explicit Image(std::shared_ptr<const ImageNode> node);

    /// Wraps `image` (8 bits a channel; grey stays grey), taken as sRGB.
    [[nodiscard]] static Image fromQImage(const QImage& image);

    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;
    [[nodiscard]] PixelSize pixelSize() const { return {width(), height()}; }
    [[nodiscard]] int bitsPerComponent() const; ///< 8, 16 or 32
    [[nodiscard]] ColorModel colorModel() const;
    [[nodiscard]] bool hasAlpha() const;
    [[nodiscard]] const QByteArray& iccProfile() const; ///< empty when the source has none

    /// Dots per inch along the width; 72 when the source states none.
    [[nodiscard]] double dotsPerInch() const;
    [[nodiscard]] Image withDotsPerInch(double dotsPerInch) const;

    /// The picture drawn into a context of `size` whole pixels at default interpolation: area-true
    /// shrinking followed by a Lanczos kernel. `size` must be valid.
    [[nodiscard]] Image scaledTo(PixelSize size) const;

    /// The part of the picture inside `rect`; nothing when they do not meet.
    [[nodiscard]] std::optional<Image> croppedTo(const PixelRect& rect) const;

    enum class QuarterTurn { CounterClockwise, Clockwise, Half };
    enum class Axis { Horizontal, Vertical };
    [[nodiscard]] Image turned(QuarterTurn turn) const;
    /// Mirrored left to right (`Horizontal`) or top to bottom (`Vertical`).
    [[nodiscard]] Image flipped(Axis axis) const;

    /// Decodes and computes all pixels now; nothing when the source turns out to be damaged.
    [[nodiscard]] std::optional<Image> copiedToMemory() const;

    /// The picture for a screen: 8-bit sRGB, premultiplied where it has alpha; null when the source
    /// is damaged.
    [[nodiscard]] QImage toQImage() const;

    [[nodiscard]] const std::shared_ptr<const ImageNode>& node() const { return m_node; }

private:
    std::shared_ptr<const ImageNode> m_node;
};

} // namespace brenvaldo::platform::graphics
