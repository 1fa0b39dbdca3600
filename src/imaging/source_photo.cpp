// SPDX-License-Identifier: GPL-3.0-or-later
#include "source_photo.h"

#include "writer_rules.h"

namespace brenvaldo::imaging {

std::optional<platform::graphics::Image>
storedPhoto(const QString& path, platform::codecs::SourceAccess access)
{
    const auto source = platform::codecs::ImageSource::open(path);
    return source ? source->image({.access = access, .atLeast = std::nullopt}) : std::nullopt;
}

Outcome unreadablePhoto(const OutputTail& tail)
{
    return isNotSupported(tail.myFileType) ? ResultWord::NotSupported : ResultWord::Failed;
}

} // namespace brenvaldo::imaging
