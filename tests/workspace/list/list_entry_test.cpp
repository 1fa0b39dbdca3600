// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/list/list_entry.h>

#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <chrono>

using namespace brenvaldo;
using workspace::ListPicture;

namespace {

class ListEntry : public testing::Test
{
protected:
    [[nodiscard]] QString turnedPhoto() const
    {
        return test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"turned.jpg"_s));
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(ListEntry, TellsSizesWithoutBlanks)
{
    EXPECT_EQ(workspace::sizeText({4000, 3000}, 2202010), u"4000x3000px | 2.10MB"_s);
    EXPECT_EQ(workspace::sizeText({4000, 3000}, 1024), u"4000x3000px | 1024.00bytes"_s);
}

TEST_F(ListEntry, PrintsNothingForZeroPixels)
{
    EXPECT_EQ(workspace::sizeText({0, 0}, 2048), u"xpx | 2.00KB"_s);
}

TEST_F(ListEntry, TakesAChosenPhotoAsItShows)
{
    const QString path = turnedPhoto();

    const auto entry = workspace::chosenEntry(path);

    EXPECT_EQ(entry.myPhotoName, u"turned.jpg"_s);
    EXPECT_EQ(entry.myPhotoDescription, path);
    EXPECT_EQ(entry.myPhotoURL, QUrl::fromLocalFile(path));
    EXPECT_EQ(entry.myPhotoOrientation, u"P"_s);
    EXPECT_TRUE(entry.myPhotoPxSize.startsWith(u"30x40px | "_s));
    EXPECT_EQ(entry.myPhotoSelect, 1);
    EXPECT_EQ(entry.myRenameSelect, 0);
    EXPECT_EQ(entry.myNewName, QString());
    EXPECT_EQ(entry.myPhoto, (ListPicture{ListPicture::Kind::Thumbnail, path}));
}

TEST_F(ListEntry, TakesADroppedPhotoAsItIsStored)
{
    const QString path = turnedPhoto();

    const auto entry = workspace::droppedEntry(path);

    EXPECT_EQ(entry.myPhotoOrientation, u"L"_s);
    EXPECT_TRUE(entry.myPhotoPxSize.startsWith(u"40x30px | "_s));
    EXPECT_TRUE(entry.myPhotoURL.isEmpty());
    EXPECT_EQ(entry.myPhoto, (ListPicture{ListPicture::Kind::Thumbnail, path}));
}

TEST_F(ListEntry, KeepsTheFullPictureOfAnInsertedPhoto)
{
    const QString path = turnedPhoto();

    const auto entry = workspace::insertedEntry(path);

    EXPECT_EQ(entry.myPhotoOrientation, u"L"_s);
    EXPECT_FALSE(entry.myPhotoURL.isEmpty());
    EXPECT_EQ(entry.myPhoto, (ListPicture{ListPicture::Kind::FullPicture, path}));
}

TEST_F(ListEntry, MarksATextFileForRenaming)
{
    const QString path = folder.write(u"notes.txt"_s, "text");

    const auto entry = workspace::renameEntry(path);

    EXPECT_EQ(entry.myPhoto.kind, ListPicture::Kind::Generic);
    EXPECT_EQ(entry.myRenameSelect, 1);
    EXPECT_EQ(entry.myPhotoSelect, 1);
    EXPECT_EQ(entry.myPhotoOrientation, u"S"_s);
    EXPECT_EQ(entry.myPhotoPxSize, QString());
}

TEST_F(ListEntry, KnowsThePhotosAmongTheFilesToRenameByEightExtensions)
{
    for (const char* extension :
         {"bmp", "gif", "png", "jpg", "jpeg", "tif", "tiff", "heic", "HEIC"}) {
        const QString path = u"/gone/a."_s + QString::fromLatin1(extension);
        EXPECT_EQ(workspace::renameEntry(path).myRenameSelect, 0) << extension;
    }
    for (const char* extension : {"webp", "psd", "pdf", "jp2", ""}) {
        const QString path = u"/gone/a."_s + QString::fromLatin1(extension);
        EXPECT_EQ(workspace::renameEntry(path).myRenameSelect, 1) << extension;
    }
}

TEST_F(ListEntry, KeepsTheAddressOfAFileToRename)
{
    EXPECT_EQ(workspace::renameEntry(u"/gone/a.txt"_s).myPhotoURL, QUrl(u"file:///gone/a.txt"_s));
}

TEST_F(ListEntry, TakesAPhotoForRenamingAsSquareWithoutSize)
{
    const QString path = test::PhotoBuilder().size(40, 30).write(folder.path(u"a.JPG"_s));

    const auto entry = workspace::renameEntry(path);

    EXPECT_EQ(entry.myPhoto, (ListPicture{ListPicture::Kind::Thumbnail, path}));
    EXPECT_EQ(entry.myRenameSelect, 0);
    EXPECT_EQ(entry.myPhotoOrientation, u"S"_s);
    EXPECT_EQ(entry.myPhotoPxSize, QString());
}

TEST_F(ListEntry, GivesAnUnreadablePhotoAnEntryWithoutPicture)
{
    const QString path = folder.write(u"broken.jpg"_s, QByteArray(2048, 'x'));

    for (const auto& entry : {workspace::chosenEntry(path), workspace::droppedEntry(path)}) {
        EXPECT_EQ(entry.myPhotoOrientation, u"S"_s);
        EXPECT_EQ(entry.myPhotoPxSize, u"xpx | 2.00KB"_s);
        EXPECT_FALSE(workspace::drawnPicture(entry.myPhoto, 94));
        EXPECT_EQ(entry.myRenameSelect, 0);
    }
}

TEST_F(ListEntry, DecodesNoPixels)
{
    const QString path = test::PhotoBuilder()
                             .size(4000, 3000)
                             .solid({90, 90, 90})
                             .write(folder.path(u"big.jpg"_s));
    const auto start = std::chrono::steady_clock::now();

    for (int photo = 0; photo < 10; ++photo)
        (void)workspace::chosenEntry(path);

    const auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_LT(elapsed, 10 * std::chrono::milliseconds(20));
}
