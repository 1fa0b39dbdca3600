// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/photoshop_file.h>

#include <QByteArray>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;

namespace {

QByteArray headerOfVersion(char version)
{
    return QByteArray("8BPS\0", 5) + version + QByteArray(20, '\0');
}

const QByteArray colors(
    "\0\0\0\x02"
    "cc",
    6
);
const QByteArray resources(
    "\0\0\0\x03"
    "rrr",
    7
);

} // namespace

TEST(PhotoshopSections, StandOneBehindTheOther)
{
    const QByteArray file = headerOfVersion(1) + colors + resources
        + QByteArray("\0\0\0\x01"
                     "l"
                     "picture",
                     12);

    const auto sections = photoshopSections(file);

    ASSERT_TRUE(sections);
    EXPECT_EQ(sections->colors, "cc");
    EXPECT_EQ(sections->resources, "rrr");
    EXPECT_EQ(sections->layers, QByteArrayView("l"));
    EXPECT_EQ(sections->picture, "picture");
}

TEST(PhotoshopSections, OfALargeFileCountLayersInEightBytes)
{
    const QByteArray file = headerOfVersion(2) + colors + resources
        + QByteArray("\0\0\0\0\0\0\0\x01"
                     "l"
                     "picture",
                     16);

    const auto sections = photoshopSections(file);

    ASSERT_TRUE(sections);
    EXPECT_EQ(sections->layers, QByteArrayView("l"));
    EXPECT_EQ(sections->picture, "picture");
}

TEST(PhotoshopSections, TellResourcesThoughTheLayersAreCutOff)
{
    const QByteArray file = headerOfVersion(1) + colors + resources + QByteArray("\0\0\0\x09l", 5);
    const auto sections = photoshopSections(file);

    ASSERT_TRUE(sections);
    EXPECT_EQ(sections->resources, "rrr");
    EXPECT_FALSE(sections->layers);
    EXPECT_TRUE(sections->picture.isEmpty());
}

TEST(PhotoshopSections, AreNoneWhenTheResourcesAreCutOff)
{
    EXPECT_FALSE(photoshopSections({}));
    EXPECT_FALSE(photoshopSections(headerOfVersion(1) + colors + resources.chopped(1)));
    EXPECT_FALSE(photoshopSections(headerOfVersion(1) + colors.chopped(1)));
}
