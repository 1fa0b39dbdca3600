// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <QDir>

using namespace brenvaldo;
using testing::ElementsAre;

namespace {

/// A run of the real function into a library of the test's own.
class Upload : public test::ControllerTest
{
protected:
    Upload()
    {
        restoreRun("batchUploadPhotos");
        select("batchUploadPhotos");
        QDir().mkpath(files::cToolBox::hGetTempDir());
        for (const QString& name : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s})
            photos.append(entry(photo(name), u"L"_s));
    }

    void run()
    {
        actions.send(u"hLoadImages"_s);
        photosLink.waitForAll();
    }

    [[nodiscard]] QStringList filesOf(const QString& album) const
    {
        return QDir(folder.path(u"library/"_s + album)).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace

TEST_F(Upload, PutsThePhotosIntoTheSelectedAlbum)
{
    photosLink.createAlbumWithName(u"Sea"_s);
    photosLink.getAllAlbums();
    panels.vwFileManagementSorting.myPhotosTableView.selectRow(0);
    run();
    EXPECT_THAT(filesOf(u"Sea"_s), ElementsAre(u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s));
    EXPECT_TRUE(filesOf(u"Unsorted"_s).isEmpty());
    EXPECT_TRUE(QFile::exists(folder.path(u"a.jpg"_s)));
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(Upload, MakesOneAlbumWithoutATitleThatTheFirstPhotoMisses)
{
    run();
    EXPECT_EQ(photoLibrary.albums().size(), 1);
    EXPECT_THAT(filesOf(u"Unsorted"_s), ElementsAre(u"a.jpg"_s));
    EXPECT_THAT(filesOf(u"Untitled"_s), ElementsAre(u"b.jpg"_s, u"c.jpg"_s));
}
