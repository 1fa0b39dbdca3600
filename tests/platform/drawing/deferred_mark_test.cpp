// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/deferred_mark.h>
#include <platform/drawing/stamp.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace brenvaldo {
namespace {

using platform::drawing::markedLater;
using platform::drawing::MarkedPhoto;
using platform::graphics::Image;
using platform::graphics::PixelRect;

Image pictureOf(const QColor& color)
{
    QImage painted(20, 10, QImage::Format_RGB888);
    painted.fill(color);
    return Image::fromQImage(painted);
}

} // namespace

TEST(DeferredMark, IsLaidOnceAndNotBeforeItIsNeeded)
{
    int made = 0;
    const Image marked = markedLater(pictureOf(Qt::white), [&made] {
        ++made;
        return MarkedPhoto{.picture = pictureOf(Qt::red), .part = {}};
    });
    EXPECT_EQ(made, 0);

    EXPECT_EQ(marked.toQImage().pixel(5, 5), qRgb(255, 0, 0));
    EXPECT_EQ(marked.toQImage().pixel(19, 9), qRgb(255, 0, 0));
    EXPECT_EQ(made, 1);
}

TEST(DeferredMark, TellsThePartThatItChanges)
{
    const Image photo = pictureOf(Qt::white);
    const PixelRect part{.x = 1, .y = 2, .width = 3, .height = 4};

    const Image marked = markedLater(photo, [part] {
        return MarkedPhoto{.picture = pictureOf(Qt::red), .part = part};
    });

    EXPECT_TRUE(platform::drawing::isStamped(marked, photo));
    EXPECT_EQ(platform::drawing::stampedPart(marked, photo), part);
}

TEST(DeferredMark, FailsWhenTheMarkCantBeLaid)
{
    const Image photo = pictureOf(Qt::white);

    const Image marked
        = markedLater(photo, []() -> MarkedPhoto { throw std::runtime_error("no mark"); });

    EXPECT_TRUE(marked.toQImage().isNull());
    EXPECT_EQ(platform::drawing::stampedPart(marked, photo), std::nullopt);
}

} // namespace brenvaldo
