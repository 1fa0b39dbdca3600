// SPDX-License-Identifier: GPL-3.0-or-later
#include "pixel_program.h"

#include "source_block.h"

#include <algorithm>

namespace brenvaldo::platform::filters {

PixelProgram::PixelProgram(const std::shared_ptr<const PixelNode>& result) { add(result); }

const PixelBlock&
PixelProgram::run(std::span<const void* const> sources, const BlockPlace& place, int count) const
{
    // A worker thread keeps its blocks: they are many, and asked for millions of times.
    thread_local std::vector<PixelBlock> blocks;
    thread_local Blocks inputs;
    if (blocks.size() < m_steps.size())
        blocks.resize(m_steps.size());
    for (std::size_t i = 0; i < m_steps.size(); ++i) {
        const Step& step = m_steps[i];
        if (!step.node->compute) {
            readBlock(*step.node, sources[step.source], count, blocks[i]);
            continue;
        }
        inputs.clear();
        for (const std::size_t input : step.inputs)
            inputs.push_back(&blocks[input]);
        step.node->compute(inputs, place, blocks[i]);
    }
    return blocks[m_steps.size() - 1];
}

std::size_t PixelProgram::add(const std::shared_ptr<const PixelNode>& node)
{
    if (const auto found = m_places.find(node.get()); found != m_places.end())
        return found->second;
    Step step = {.node = node, .inputs = {}};
    for (const auto& input : node->inputs)
        step.inputs.push_back(add(input));
    if (!node->compute)
        step.source = sourceOf(node->pixels);
    m_steps.push_back(std::move(step));
    m_places[node.get()] = m_steps.size() - 1;
    return m_steps.size() - 1;
}

std::size_t PixelProgram::sourceOf(const vips::VImage& pixels)
{
    const auto found = std::find_if(m_sources.begin(), m_sources.end(), [&](const auto& source) {
        return source.get_image() == pixels.get_image();
    });
    if (found != m_sources.end())
        return static_cast<std::size_t>(found - m_sources.begin());
    m_sources.push_back(pixels);
    return m_sources.size() - 1;
}

} // namespace brenvaldo::platform::filters
