// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/services/face_finder.h>

#include <support/drawn_face.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;
using namespace brenvaldo;
using platform::graphics::PixelRect;
using platform::services::findFaces;

namespace {

std::vector<PixelRect> facesOf(const test::PhotoBuilder& photo)
{
    const test::TemporaryFolder folder;
    return findFaces(*test::openedPhoto(photo.write(folder.path(u"a.jpg"_s))).uprightImage());
}

bool hasEyesAndMouth(const PixelRect& box, const test::DrawnFace& face)
{
    const QRect inside(box.x, box.y, box.width, box.height);
    const QPoint eye(face.size * 22 / 100, -face.size * 12 / 100);
    return inside.contains(face.middle + eye)
        && inside.contains(face.middle + QPoint(-eye.x(), eye.y()))
        && inside.contains(face.middle + QPoint(0, face.size * 42 / 100));
}

} // namespace

TEST(FoundFaces, StandFromLeftToRight)
{
    const test::DrawnFace left{.middle = {400, 700}, .size = 120};
    const test::DrawnFace middle{.middle = {1000, 500}, .size = 200};
    const test::DrawnFace right{.middle = {1600, 600}, .size = 150};
    const auto faces = facesOf(test::photoOfFaces({2000, 1200}, {middle, right, left}));
    ASSERT_EQ(faces.size(), 3U);
    EXPECT_TRUE(hasEyesAndMouth(faces[0], left));
    EXPECT_TRUE(hasEyesAndMouth(faces[1], middle));
    EXPECT_TRUE(hasEyesAndMouth(faces[2], right));
}

TEST(FoundFaces, HaveTheForehead)
{
    const auto faces = facesOf(test::photoOfFaces({1000, 1000}, {{.middle = {500, 500}}}));
    ASSERT_EQ(faces.size(), 1U);
    EXPECT_NEAR(faces[0].height, 1.2 * faces[0].width, 2);
    EXPECT_LT(faces[0].y, 500 - 80);
}

TEST(FoundFaces, StayInsideOfThePicture)
{
    const auto faces
        = facesOf(test::photoOfFaces({400, 420}, {{.middle = {200, 150}, .size = 200}}));
    ASSERT_EQ(faces.size(), 1U);
    EXPECT_GE(faces[0].y, 0);
    EXPECT_LE(faces[0].x + faces[0].width, 400);
    EXPECT_LE(faces[0].y + faces[0].height, 420);
}

TEST(FoundFaces, AreSeenInASmallAndInALargePhoto)
{
    EXPECT_EQ(
        facesOf(test::photoOfFaces({160, 120}, {{.middle = {80, 60}, .size = 40}})).size(), 1U
    );
    EXPECT_EQ(
        facesOf(test::photoOfFaces({3000, 2000}, {{.middle = {800, 900}, .size = 220}})).size(), 1U
    );
}

TEST(FoundFaces, AreNoneInAPhotoOfNobodyAndInADamagedOne)
{
    EXPECT_TRUE(facesOf(test::PhotoBuilder().size(600, 400)).empty());

    const test::TemporaryFolder folder;
    const QString path = test::photoOfFaces({800, 800}, {{.middle = {400, 400}}})
                             .format(test::PhotoFormat::Png)
                             .write(folder.path(u"cut.png"_s));
    QFile file(path);
    ASSERT_TRUE(file.resize(file.size() / 3));
    EXPECT_TRUE(findFaces(*test::openedPhoto(path).uprightImage()).empty());
}
