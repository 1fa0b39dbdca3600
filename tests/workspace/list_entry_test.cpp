// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/list_entry.h>

#include <support/case_name.h>
#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <chrono>

using namespace brenvaldo;
using workspace::ListPicture;

namespace {

struct Thumbnail
{
    const char* name;
    platform::PixelSize photo;
    platform::PixelSize thumbnail;
};

void PrintTo(const Thumbnail& thumbnail, std::ostream* out) { *out << thumbnail.name; }

class Thumbnails : public testing::TestWithParam<Thumbnail>
{
};

class ListEntry : public testing::Test
{
protected:
    [[nodiscard]] QString turnedPhoto() const
    {
        return test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"turned.jpg"_qs)
        );
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_P(Thumbnails, FitABoxOf94Pixels)
{
    EXPECT_EQ(workspace::thumbnailSize(GetParam().photo), GetParam().thumbnail);
}

INSTANTIATE_TEST_SUITE_P(
    ListEntry,
    Thumbnails,
    testing::Values(
        Thumbnail{"Tall", {94, 188}, {47, 94}},
        Thumbnail{"Wide", {4000, 3000}, {94, 70}},
        Thumbnail{"Square", {3000, 3000}, {94, 94}},
        Thumbnail{"SmallSquare", {1, 1}, {94, 94}},
        Thumbnail{"Thread", {1, 4000}, {1, 94}},
        Thumbnail{"Unreadable", {0, 0}, {0, 0}}
    ),
    test::CaseName{}
);

TEST_F(ListEntry, TellsSizesWithoutBlanks)
{
    EXPECT_EQ(workspace::sizeText({4000, 3000}, 2202010), u"4000x3000px | 2.10MB"_qs);
    EXPECT_EQ(workspace::sizeText({4000, 3000}, 1024), u"4000x3000px | 1024.00bytes"_qs);
}

TEST_F(ListEntry, PrintsNothingForZeroPixels)
{
    EXPECT_EQ(workspace::sizeText({0, 0}, 2048), u"xpx | 2.00KB"_qs);
}

TEST_F(ListEntry, TakesAChosenPhotoAsItShows)
{
    const QString path = turnedPhoto();

    const auto entry = workspace::chosenEntry(path);

    EXPECT_EQ(entry.myPhotoName, u"turned.jpg"_qs);
    EXPECT_EQ(entry.myPhotoDescription, path);
    EXPECT_EQ(entry.myPhotoURL, QUrl::fromLocalFile(path));
    EXPECT_EQ(entry.myPhotoOrientation, u"P"_qs);
    EXPECT_TRUE(entry.myPhotoPxSize.startsWith(u"30x40px | "_qs));
    EXPECT_EQ(entry.myPhotoSelect, 1);
    EXPECT_EQ(entry.myRenameSelect, 0);
    EXPECT_EQ(entry.myNewName, QString());
    EXPECT_EQ(entry.myPhoto.scaledTo, (platform::PixelSize{70, 94}));
}

TEST_F(ListEntry, TakesADroppedPhotoAsItIsStored)
{
    const auto entry = workspace::droppedEntry(turnedPhoto());

    EXPECT_EQ(entry.myPhotoOrientation, u"L"_qs);
    EXPECT_TRUE(entry.myPhotoPxSize.startsWith(u"40x30px | "_qs));
    EXPECT_TRUE(entry.myPhotoURL.isEmpty());
    EXPECT_EQ(entry.myPhoto.scaledTo, (platform::PixelSize{70, 94}));
}

TEST_F(ListEntry, KeepsTheFullPictureOfAnInsertedPhoto)
{
    const auto entry = workspace::insertedEntry(turnedPhoto());

    EXPECT_EQ(entry.myPhotoOrientation, u"L"_qs);
    EXPECT_FALSE(entry.myPhotoURL.isEmpty());
    EXPECT_EQ(entry.myPhoto.scaledTo, std::nullopt);
}

TEST_F(ListEntry, MarksATextFileForRenaming)
{
    const QString path = folder.write(u"notes.txt"_qs, "text");

    const auto entry = workspace::renameEntry(path);

    EXPECT_EQ(entry.myPhoto.kind, ListPicture::Kind::Document);
    EXPECT_EQ(entry.myRenameSelect, 1);
    EXPECT_EQ(entry.myPhotoSelect, 1);
    EXPECT_EQ(entry.myPhotoOrientation, u"S"_qs);
    EXPECT_EQ(entry.myPhotoPxSize, QString());
}

TEST_F(ListEntry, TakesAPhotoForRenamingAsSquareWithoutSize)
{
    const QString path = test::PhotoBuilder().size(40, 30).write(folder.path(u"a.JPG"_qs));

    const auto entry = workspace::renameEntry(path);

    EXPECT_EQ(entry.myPhoto.kind, ListPicture::Kind::Photo);
    EXPECT_EQ(entry.myPhoto.scaledTo, (platform::PixelSize{94, 70}));
    EXPECT_EQ(entry.myRenameSelect, 0);
    EXPECT_EQ(entry.myPhotoOrientation, u"S"_qs);
    EXPECT_EQ(entry.myPhotoPxSize, QString());
}

TEST_F(ListEntry, GivesAnUnreadablePhotoAnEntryWithoutPicture)
{
    const QString path = folder.write(u"broken.jpg"_qs, QByteArray(2048, 'x'));

    for (const auto& entry : {workspace::chosenEntry(path), workspace::droppedEntry(path)}) {
        EXPECT_EQ(entry.myPhotoOrientation, u"S"_qs);
        EXPECT_EQ(entry.myPhotoPxSize, u"xpx | 2.00KB"_qs);
        EXPECT_EQ(entry.myPhoto.scaledTo, platform::PixelSize{});
        EXPECT_EQ(entry.myRenameSelect, 0);
    }
}

TEST_F(ListEntry, DecodesNoPixels)
{
    const QString path = test::PhotoBuilder()
                             .size(4000, 3000)
                             .solid({90, 90, 90})
                             .write(folder.path(u"big.jpg"_qs));
    const auto start = std::chrono::steady_clock::now();

    for (int photo = 0; photo < 10; ++photo)
        (void)workspace::chosenEntry(path);

    const auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_LT(elapsed, 10 * std::chrono::milliseconds(20));
}
