// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <memory>

namespace brenvaldo::platform::filters {

struct PixelNode; // a step of the calculation; known to this folder alone

/// A picture on its way through filters: an immutable value that is cheap to copy.
///
/// Filters add steps to a calculation in floating point, which is done when the picture that
/// `toImage` gives is evaluated. Its colours are sRGB whatever the photo's were.
class FilterImage
{
public:
    /// A photo of any model and depth. Throws `std::exception` when the engine refuses it.
    explicit FilterImage(const graphics::Image& photo);

    FilterImage(graphics::PixelSize size, bool hasAlpha, std::shared_ptr<const PixelNode> node);

    [[nodiscard]] graphics::PixelSize pixelSize() const { return m_size; }
    [[nodiscard]] bool hasAlpha() const { return m_hasAlpha; }
    [[nodiscard]] const std::shared_ptr<const PixelNode>& node() const { return m_node; }

    /// 8-bit sRGB with the resolution of `photo`, which the picture was made of; it has alpha where
    /// the photo has.
    [[nodiscard]] graphics::Image toImage(const graphics::Image& photo) const;

private:
    graphics::PixelSize m_size;
    bool m_hasAlpha = false;
    std::shared_ptr<const PixelNode> m_node;
};

} // namespace brenvaldo::platform::filters
