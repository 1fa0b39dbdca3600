// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pixel_node.h"

#include <cstddef>
#include <map>
#include <span>

namespace brenvaldo::platform::filters {

/// The steps of a calculation in the order in which they are done, each of them once.
class PixelProgram
{
public:
    explicit PixelProgram(const std::shared_ptr<const PixelNode>& result);

    /// The different pictures that are read.
    [[nodiscard]] const std::vector<vips::VImage>& sources() const { return m_sources; }

    /// The result for `count` pixels at most, those of `sources` at the given addresses.
    [[nodiscard]] const PixelBlock&
    run(std::span<const void* const> sources, const BlockPlace& place, int count) const;

private:
    struct Step
    {
        std::shared_ptr<const PixelNode> node;
        std::vector<std::size_t> inputs; ///< steps before this one
        std::size_t source = 0;
    };

    std::size_t add(const std::shared_ptr<const PixelNode>& node);
    std::size_t sourceOf(const vips::VImage& pixels);

    std::vector<Step> m_steps;
    std::map<const PixelNode*, std::size_t> m_places;
    std::vector<vips::VImage> m_sources;
};

} // namespace brenvaldo::platform::filters
