// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <array>

using namespace brenvaldo;
using namespace brenvaldo::test;
using watermark::TextWatermarkSettings;

namespace {

constexpr int offsetAcross = 5;
constexpr int offsetUp = 3;

enum class Room { None, Half, All };

/// A row of the table of places: how much of the room stands before the layer, and what is added.
struct PlaceRow
{
    const char* name;
    int anchor;
    int angle;
    Room left;
    Room below;
    int x;
    int y;

    friend void PrintTo(const PlaceRow& row, std::ostream* out) { *out << row.name; }
};

constexpr int X = offsetAcross;
constexpr int Y = offsetUp;

constexpr std::array places{
    PlaceRow{"TopLeftUpright", 0, 0, Room::None, Room::All, X, Y},
    PlaceRow{"TopCenterUpright", 1, 0, Room::Half, Room::All, X, Y},
    PlaceRow{"TopRightUpright", 2, 0, Room::All, Room::All, X, Y},
    PlaceRow{"MiddleLeftUpright", 3, 0, Room::None, Room::Half, X, Y},
    PlaceRow{"CenterUpright", 4, 0, Room::Half, Room::Half, X, Y},
    PlaceRow{"MiddleRightUpright", 5, 0, Room::All, Room::Half, X, Y},
    PlaceRow{"BottomLeftUpright", 6, 0, Room::None, Room::None, X, Y},
    PlaceRow{"BottomCenterUpright", 7, 0, Room::Half, Room::None, X, Y},
    PlaceRow{"BottomRightUpright", 8, 0, Room::All, Room::None, X, Y},

    PlaceRow{"TopLeftLeftTurned", 0, 90, Room::None, Room::All, Y, -X},
    PlaceRow{"TopCenterLeftTurned", 1, 90, Room::Half, Room::All, Y, -X},
    PlaceRow{"TopRightLeftTurned", 2, 90, Room::All, Room::All, Y, -X},
    PlaceRow{"MiddleLeftLeftTurned", 3, 90, Room::None, Room::Half, Y, -X},
    PlaceRow{"CenterLeftTurned", 4, 90, Room::Half, Room::Half, Y, -X},
    PlaceRow{"MiddleRightLeftTurned", 5, 90, Room::All, Room::Half, Y, -X},
    PlaceRow{"BottomLeftLeftTurnedBreaksTheRule", 6, 90, Room::None, Room::None, -Y, X},
    PlaceRow{"BottomCenterLeftTurned", 7, 90, Room::Half, Room::None, Y, -X},
    PlaceRow{"BottomRightLeftTurned", 8, 90, Room::All, Room::None, Y, -X},

    PlaceRow{"TopLeftRightTurnedBreaksTheRule", 0, -90, Room::None, Room::All, -Y, -X},
    PlaceRow{"TopCenterRightTurned", 1, -90, Room::Half, Room::All, -Y, X},
    PlaceRow{"TopRightRightTurned", 2, -90, Room::All, Room::All, -Y, X},
    PlaceRow{"MiddleLeftRightTurned", 3, -90, Room::None, Room::Half, -Y, X},
    PlaceRow{"CenterRightTurned", 4, -90, Room::Half, Room::Half, -Y, X},
    PlaceRow{"MiddleRightRightTurned", 5, -90, Room::All, Room::Half, -Y, X},
    PlaceRow{"BottomLeftRightTurned", 6, -90, Room::None, Room::None, -Y, X},
    PlaceRow{"BottomCenterRightTurned", 7, -90, Room::Half, Room::None, -Y, X},
    PlaceRow{"BottomRightRightTurned", 8, -90, Room::All, Room::None, -Y, X},

    PlaceRow{"TopRightAslant", 2, 30, Room::All, Room::All, Y, -X},
    PlaceRow{"BottomLeftAslantBreaksTheRule", 6, 30, Room::None, Room::None, -Y, X},
    PlaceRow{"TopLeftAslantBreaksTheRule", 0, -30, Room::None, Room::All, -Y, -X},
    PlaceRow{"BottomRightAslant", 8, -30, Room::All, Room::None, -Y, X},
};

double before(Room room, int photo, int layer)
{
    switch (room) {
    case Room::None:
        return 0;
    case Room::Half:
        return (photo - layer) * 0.5;
    case Room::All:
        return photo - layer;
    }
    return 0;
}

/// The photo with the whole layer painted at the place that the row tells.
QImage expectedPhoto(const TextWatermarkSettings& settings, const PlaceRow& row)
{
    const platform::graphics::Image photo = plainPhoto();
    const QImage layer = wholeLayer(overlayOf(settings, photo));
    const int x = static_cast<int>(before(row.left, photo.width(), layer.width()) + row.x);
    const int y = static_cast<int>(before(row.below, photo.height(), layer.height()) + row.y);
    QImage expected = photo.toQImage();
    QPainter(&expected).drawImage(x, photo.height() - y - layer.height(), layer);
    return expected;
}

class TextMarkPlace : public testing::TestWithParam<PlaceRow>
{
};

} // namespace

TEST_P(TextMarkPlace, IsThatOfTheTablePixelByPixel)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement
        = {.anchor = GetParam().anchor,
           .xOffset = offsetAcross,
           .yOffset = offsetUp,
           .angle = GetParam().angle};

    const QImage found = markedPhoto(settings);

    EXPECT_LE(largestDifference(found, expectedPhoto(settings, GetParam())), 1);
    EXPECT_GT(changedPixels(found), 100);
}

INSTANTIATE_TEST_SUITE_P(Table, TextMarkPlace, testing::ValuesIn(places), [](const auto& row) {
    return row.param.name;
});

TEST(TextMark, TruncatesTheHalfOfAnOddRoomTowardZero)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.placement.anchor = 4;
    const platform::graphics::PixelSize layer = overlayOf(settings).size();

    for (const int room : {6, 7}) {
        const QImage image = markedPhoto(settings, plainPhoto(layer.width + room, layer.height));
        const QRect onLayer = blockOnItsLayer(settings);
        EXPECT_EQ(changedBox(image).left(), onLayer.left() + 3) << room;
    }
}

TEST(TextMark, LargerThanThePhotoIsCutAtTheAnchoredSide)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.text = block() + u"  "_s;
    settings.placement.anchor = 3;
    const platform::graphics::PixelSize layer = overlayOf(settings).size();

    // Only the first third of the layer fits.
    const QImage left = markedPhoto(settings, plainPhoto(layer.width / 3, 40));
    settings.placement.anchor = 5;
    const QImage right = markedPhoto(settings, plainPhoto(layer.width / 3, 40));

    EXPECT_GT(changedPixels(left), 0);
    EXPECT_EQ(changedPixels(right), 0);
}
