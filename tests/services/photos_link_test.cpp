// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/photos_link.h>

#include <files/tool_box.h>
#include <platform/services/folder_library.h>

#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace brenvaldo;
using services::PhotoUpload;
using testing::Contains;
using testing::ElementsAre;

namespace {

/// Notes what it is asked for, and answers at once.
class NotingLibrary : public platform::services::PhotoLibrary
{
public:
    QList<platform::services::PhotoAlbum> albums() override { return known; }
    void createAlbum(const QString& title, Completion completion) override
    {
        requests.append(u"album "_s + title);
        answer(completion);
    }
    void addPhoto(const platform::services::NewPhoto& photo, Completion completion) override
    {
        requests.append(u"photo in "_s + photo.album);
        files.append(photo.file);
        answer(completion);
    }
    void setFavourite(const QString& photo, bool, Completion completion) override
    {
        requests.append(u"favourite "_s + photo);
        answer(completion);
    }
    void touch(const QString& photo, Completion completion) override
    {
        requests.append(u"touch "_s + photo);
        answer(completion);
    }
    void waitForAll() override { }

    QList<platform::services::PhotoAlbum> known;
    QStringList faults; ///< of the next changes; an empty one is a success
    QStringList requests;
    QStringList files;

private:
    void answer(const Completion& completion)
    {
        const QString fault = faults.isEmpty() ? QString() : faults.takeFirst();
        completion({.id = u"new"_s, .fault = fault});
    }
};

class PhotosLink : public testing::Test
{
protected:
    PhotosLink() { QDir().mkpath(files::cToolBox::hGetTempDir()); }

    [[nodiscard]] QString photo(const QString& name = u"a.jpg"_s) const
    {
        QDir().mkpath(folder.path(u"in"_s));
        return test::PhotoBuilder().size(40, 30).write(folder.path(u"in/"_s + name));
    }

    [[nodiscard]] static PhotoUpload uploadOf(const QString& path, const QString& album)
    {
        return {
            .path = path,
            .album = album,
            .keyword = u"sea;sun"_s,
            .title = u"Title"_s,
            .description = {},
            .favourite = u"1"_s};
    }

    [[nodiscard]] QStringList titles() const
    {
        QStringList titles;
        for (const QStringList& row :
             panels.vwFileManagementSorting.theApplePhotosData.arrangedObjects())
            titles.append(row.join(u'|'));
        return titles;
    }

    test::TemporaryFolder folder;
    test::LogLines log;
    panels::Panels panels;
    NotingLibrary library;
    services::cPhotosLink link{panels, library};
};

} // namespace

TEST_F(PhotosLink, ListsTheAlbumsAsAReaderSortsThem)
{
    library.known = {{u"1"_s, u"album 10"_s}, {u"2"_s, u"Album 2"_s}, {u"3"_s, u"a"_s}};
    panels.vwFileManagementSorting.theApplePhotosData.setObjects({{u"old"_s}});
    link.hGetAllAlbums();
    EXPECT_THAT(titles(), ElementsAre(u"a"_s, u"Album 2"_s, u"album 10"_s));
}

TEST_F(PhotosLink, AsksForTheNameOfANewAlbum)
{
    auto& sheet = panels.wwPhotosAlbumWindow;
    sheet.tfPhotosAlbumName.setStringValue(u"before"_s);
    link.hMakeNewAlbums();
    EXPECT_TRUE(sheet.sheet.isOpen());
    EXPECT_EQ(sheet.tfPhotosAlbumName.stringValue(), QString());

    link.cancelClosePhotosAlbumSheetObjC();
    EXPECT_FALSE(sheet.sheet.isOpen());
    EXPECT_TRUE(library.requests.isEmpty());

    link.hMakeNewAlbums();
    sheet.tfPhotosAlbumName.setStringValue(u"Sea"_s);
    library.known = {{u"new"_s, u"Sea"_s}};
    link.okClosePhotosAlbumSheetObjC();
    EXPECT_FALSE(sheet.sheet.isOpen());
    EXPECT_THAT(library.requests, ElementsAre(u"album Sea"_s));
    EXPECT_THAT(log.lines(), ElementsAre(u"Successfully created album: Sea"_s));
    QCoreApplication::processEvents();
    EXPECT_THAT(titles(), ElementsAre(u"Sea"_s));
}

TEST_F(PhotosLink, LogsWhyAnAlbumWasNotMade)
{
    library.faults = {u"no room"_s};
    link.createAlbumWithName(u"Sea"_s);
    EXPECT_THAT(log.lines(), ElementsAre(u"Error creating album: no room"_s));
}

TEST_F(PhotosLink, PutsACopyWithTheTextsIntoTheFirstAlbumOfTheTitle)
{
    library.known = {{u"1"_s, u"Lake"_s}, {u"2"_s, u"Sea"_s}, {u"3"_s, u"Sea"_s}};
    const QString path = photo();
    link.uploadToPhotos(uploadOf(path, u"Sea"_s));
    EXPECT_THAT(library.requests, ElementsAre(u"photo in 2"_s, u"favourite new"_s));
    EXPECT_EQ(library.files, QStringList{files::cToolBox::hGetTempDir() + u"/a.jpg"_s});
    EXPECT_THAT(log.lines(), ElementsAre(u"Comment added successfully"_s));
    EXPECT_FALSE(QFile::exists(library.files.first()));
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(PhotosLink, AsksForAnAlbumThatThisPhotoDoesNotJoin)
{
    link.uploadToPhotos(uploadOf(photo(), {}));
    EXPECT_THAT(library.requests, ElementsAre(u"album "_s, u"photo in "_s, u"favourite new"_s));
}

TEST_F(PhotosLink, ChangesNothingMoreWithoutTheFavouriteMark)
{
    PhotoUpload upload = uploadOf(photo(), u"Sea"_s);
    upload.favourite = u"0"_s;
    link.uploadToPhotos(upload);
    EXPECT_THAT(library.requests, Contains(u"touch new"_s));
    EXPECT_THAT(library.requests, testing::Not(Contains(u"favourite new"_s)));
}

TEST_F(PhotosLink, LogsEachFailureAndKeepsTheCopyOfAPhotoThatWasNotAdded)
{
    library.known = {{u"1"_s, u"Sea"_s}};
    library.faults = {u"full"_s, {}, u"locked"_s};
    link.uploadToPhotos(uploadOf(photo(), u"Sea"_s));
    EXPECT_TRUE(QFile::exists(files::cToolBox::hGetTempDir() + u"/a.jpg"_s));
    link.uploadToPhotos(uploadOf(photo(), u"Sea"_s));
    EXPECT_THAT(
        log.lines(),
        ElementsAre(
            u"Failed to add image to Photos library and mark as favorite: full"_s,
            u"Failed to add comment: locked"_s
        )
    );
    EXPECT_FALSE(QFile::exists(files::cToolBox::hGetTempDir() + u"/a.jpg"_s));
}

TEST_F(PhotosLink, WorksOnThePhotoItselfWhereNoCopyCanBeMade)
{
    const QString path = photo(u"b.jpg"_s);
    QDir(files::cToolBox::hGetTempDir()).removeRecursively();
    QFile inTheWay(files::cToolBox::hGetTempDir());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    link.uploadToPhotos(uploadOf(path, u"Sea"_s));
    EXPECT_EQ(library.files, QStringList{path});
    EXPECT_FALSE(QFile::exists(path));
    inTheWay.remove();
}

TEST(PhotosLinkWithALibrary, UploadsManyPhotosOfOneNameAndKeepsTheirSources)
{
    const test::TemporaryFolder folder;
    QDir().mkpath(files::cToolBox::hGetTempDir());
    panels::Panels panels;
    platform::services::FolderLibrary library(folder.path(u"library"_s));
    QStringList sources;
    {
        services::cPhotosLink link(panels, library);
        for (int number = 0; number < 10; ++number) {
            QDir().mkpath(folder.path(QString::number(number)));
            sources.append(test::PhotoBuilder()
                               .size(40 + number, 30)
                               .write(folder.path(QString::number(number) + u"/a.jpg"_s)));
            link.uploadToPhotos({sources.last(), u"Sea"_s, u"sea;sun"_s, {}, {}, u"0"_s});
        }
    }
    ASSERT_EQ(library.albums().size(), 1);
    EXPECT_EQ(QDir(folder.path(u"library/Unsorted"_s)).entryList(QDir::Files).size(), 1);
    EXPECT_EQ(QDir(folder.path(u"library/Sea"_s)).entryList(QDir::Files).size(), 9);
    for (const QString& source : sources)
        EXPECT_TRUE(QFile::exists(source));
    EXPECT_TRUE(QDir(files::cToolBox::hGetTempDir()).entryList(QDir::Files).isEmpty());
}
