// SPDX-License-Identifier: GPL-3.0-or-later
#include "input_file.h"

#include <platform/codecs/image_source.h>
#include <platform/graphics/engine.h>

using namespace brenvaldo;

namespace {

/// Larger pictures are opened but not decoded, which would only cost time.
constexpr int largestSide = 512;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const platform::graphics::Engine engine;
    const fuzz::InputFile file(data, size);
    static_cast<void>(platform::codecs::embeddedThumbnail(file.path()));
    const auto source = platform::codecs::ImageSource::open(file.path());
    if (!source || source->header().storedSize.width > largestSide
        || source->header().storedSize.height > largestSide)
        return 0;
    if (const auto image = source->uprightImage())
        static_cast<void>(image->toQImage());
    return 0;
}
