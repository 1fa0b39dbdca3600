// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>

#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace brenvaldo;
using namespace brenvaldo::imaging;
using platform::graphics::Image;
using platform::graphics::PixelRect;

namespace {

std::vector<PixelRect> noFace(const Image&) { return {}; }

/// The corners of a photo of 80 x 40 pixels: red, green, blue.
std::vector<PixelRect> threeCorners(const Image&)
{
    return {{0, 0, 10, 8}, {70, 0, 10, 8}, {0, 32, 10, 8}};
}

std::vector<PixelRect> besideThePhoto(const Image& picture)
{
    return {{0, 0, 10, 8}, {picture.width() + 5, 0, 10, 10}};
}

/// The top left quarter of what it is given.
std::vector<PixelRect> topLeft(const Image& picture)
{
    return {{0, 0, picture.width() / 4, picture.height() / 4}};
}

class Faces : public testing::Test
{
protected:
    [[nodiscard]] test::PhotoBuilder corners() const
    {
        return test::PhotoBuilder().size(80, 40).corners();
    }

    ResultWord cutOut(const test::PhotoBuilder& photo, FaceFinder finder)
    {
        return handling.finish(outcomeOf(photo.write(folder.path(u"in.jpg"_s)), finder));
    }

    [[nodiscard]] Outcome outcomeOf(const QString& path, FaceFinder finder) const
    {
        QDir().mkpath(folder.path(u"out"_s));
        return DVImageHandling::hGetListOfFaces(
            {.source = path, .destinationBase = folder.path(u"out/trip"_s)}, finder, tail
        );
    }

    [[nodiscard]] QStringList files() const
    {
        return QDir(folder.path(u"out"_s)).entryList(QDir::Files, QDir::Name);
    }

    [[nodiscard]] QColor middleOf(const QString& name) const
    {
        const QImage face = test::storedPixels(folder.path(u"out/"_s + name));
        return face.pixelColor(face.width() / 2, face.height() / 2);
    }

    test::TemporaryFolder folder;
    DVImageHandling handling;
    OutputTail tail{
        .outputType = u"public.jpeg"_s,
        .compressionLevel = u"10"_s,
        .fileExtension = {},
        .fileExtensionNSStr = {},
        .fileUTI = {},
        .myFileType = u"public.jpeg"_s};
};

} // namespace

TEST_F(Faces, AreNumberedAndCutOutOfThePhoto)
{
    EXPECT_EQ(cutOut(corners(), threeCorners), ResultWord::Ok);
    EXPECT_EQ(files(), (QStringList{u"f1_trip.jpg"_s, u"f2_trip.jpg"_s, u"f3_trip.jpg"_s}));
    EXPECT_EQ(test::storedPixels(folder.path(u"out/f1_trip.jpg"_s)).size(), QSize(10, 8));
    EXPECT_GT(middleOf(u"f1_trip.jpg"_s).red(), 200);
    EXPECT_GT(middleOf(u"f2_trip.jpg"_s).green(), 200);
    EXPECT_GT(middleOf(u"f3_trip.jpg"_s).blue(), 200);
}

TEST_F(Faces, HaveTheTypeOfThePhoto)
{
    tail.myFileType = u"public.png"_s;
    EXPECT_EQ(cutOut(corners().format(test::PhotoFormat::Png), topLeft), ResultWord::Ok);
    EXPECT_EQ(files(), QStringList{u"f1_trip.png"_s});
}

TEST_F(Faces, AreCutFromTheStoredPixelsWhereTheyAreInTheUprightOnes)
{
    EXPECT_EQ(cutOut(corners().orientation(6), topLeft), ResultWord::Ok);
    const QImage face = test::storedPixels(folder.path(u"out/f1_trip.jpg"_s));
    EXPECT_EQ(face.size(), QSize(10, 20));
    EXPECT_GT(face.pixelColor(2, 2).red(), 200); // upright, the corner is blue
    EXPECT_EQ(test::openedPhoto(folder.path(u"out/f1_trip.jpg"_s)).header().orientation, 6);
}

TEST_F(Faces, LeaveNoTraceAndTheWordOfBeforeWhereThereAreNone)
{
    EXPECT_EQ(cutOut(corners(), noFace), ResultWord::Failed);
    EXPECT_EQ(cutOut(corners(), topLeft), ResultWord::Ok);
    EXPECT_EQ(cutOut(corners(), noFace), ResultWord::Ok);
    EXPECT_EQ(handling.finish(outcomeOf(folder.path(u"none.jpg"_s), topLeft)), ResultWord::Ok);
    EXPECT_EQ(files(), QStringList{u"f1_trip.jpg"_s});
}

TEST_F(Faces, AnswerTheWordOfTheLastOne)
{
    EXPECT_EQ(cutOut(corners(), besideThePhoto), ResultWord::Failed);
    EXPECT_EQ(files(), QStringList{u"f1_trip.jpg"_s});

    QFile::remove(folder.path(u"out/f1_trip.jpg"_s));
    QDir().mkpath(folder.path(u"out/f1_trip.jpg/in the way"_s));
    EXPECT_EQ(cutOut(corners(), threeCorners), ResultWord::Ok);
}
