// SPDX-License-Identifier: GPL-3.0-or-later
#include "deferred_mark.h"

#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/image_node.h>

#include <mutex>
#include <optional>

namespace brenvaldo::platform::drawing {

using graphics::Image;

namespace {

/// A photo that gets its mark when it is first needed.
class PhotoToMark
{
public:
    explicit PhotoToMark(std::function<MarkedPhoto()> mark)
        : m_mark(std::move(mark))
    {
    }

    const MarkedPhoto& marked()
    {
        std::call_once(m_once, [this] {
            m_marked = m_mark();
            m_mark = nullptr;
        });
        return *m_marked;
    }

private:
    std::function<MarkedPhoto()> m_mark;
    std::once_flag m_once;
    std::optional<MarkedPhoto> m_marked;
};

} // namespace

Image markedLater(const Image& photo, std::function<MarkedPhoto()> mark)
{
    Q_ASSERT(!graphics::isSequential(photo.node()->pixels));
    const auto photoToMark = std::make_shared<PhotoToMark>(std::move(mark));
    return graphics::builtImage(*photo.node(), photo.pixelSize(), [&] {
        graphics::ImageNode node = photo.node()->withPixels(graphics::deferredPixels(
            graphics::layoutOf(photo.node()->pixels),
            [photoToMark] { return photoToMark->marked().picture.node()->pixels; }
        ));
        node.stampedOn = photo.node();
        node.stampedPart = [photoToMark] { return photoToMark->marked().part; };
        return node;
    });
}

} // namespace brenvaldo::platform::drawing
