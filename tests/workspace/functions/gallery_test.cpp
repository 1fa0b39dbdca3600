// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/geometry_printing.h>
#include <support/pixel_probe.h>

#include <QDir>
#include <QFile>

using namespace brenvaldo;

namespace {

/// A run of the real function; thumbnails of 8 x 8 pixels, large pictures of 40.
class Gallery : public test::ControllerTest
{
protected:
    Gallery()
    {
        restoreRun("htmlExport");
        select("htmlExport");
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        panel.tfHTMLfileName.setStringValue(u"trip"_s);
        panel.pubPhotoRatio.selectIndex(0);
        panel.tfSmallFramingThickness.setStringValue(u"0"_s);
        set(panel.tfSmallCropWidth, 8);
        set(panel.tfSmallCropHeight, 8);
        set(panel.tfBigCropWidth, 40);
        set(panel.tfBigCropHeight, 0);
        panel.pbImageFormat.selectIndex(1);
        panel.pbBIGImageFormat.selectIndex(1);
    }

    static void set(controls::TextField& field, int value)
    {
        field.setStringValue(QString::number(value));
    }

    void add(const test::PhotoBuilder& photo, const QString& name)
    {
        photos.append(entry(photo.write(folder.path(name)), u"L"_s));
    }

    void addPhotos(int count)
    {
        for (int number = 1; number <= count; ++number)
            add(test::PhotoBuilder().size(64, 32), u"p%1.jpg"_s.arg(number));
    }

    void run() { actions.send(u"hLoadImages"_s); }

    [[nodiscard]] QString text(const QString& name) const
    {
        QFile file(folder.path(u"out/"_s + name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : u"none"_s;
    }

    [[nodiscard]] QStringList files(const QString& name) const
    {
        return QDir(folder.path(u"out/"_s + name)).entryList(QDir::Files, QDir::Name);
    }

    [[nodiscard]] QSize sizeOf(const QString& name) const
    {
        return test::storedPixels(folder.path(u"out/"_s + name)).size();
    }

    panels::GalleryPanel& panel = panels.vwHtmlExport;
};

} // namespace

TEST_F(Gallery, MakesItsFoldersPagesAndPictures)
{
    addPhotos(2);
    run();

    EXPECT_EQ(files({}), (QStringList{u"index.html"_s, u"trip.html"_s}));
    EXPECT_EQ(files(u"DVimages_s"_s), (QStringList{u"p1.png"_s, u"p2.png"_s}));
    EXPECT_EQ(files(u"DVimages_b"_s), (QStringList{u"p1.png"_s, u"p2.png"_s}));
    EXPECT_EQ(files(u"DVcss"_s), QStringList{u"dvGScss.css"_s});
    EXPECT_EQ(
        files(u"DVpglightbox"_s),
        (QStringList{
            u"BrenvaldoS.png"_s,
            u"close.gif"_s,
            u"close.png"_s,
            u"jquery.lightbox.js"_s,
            u"jquery02.lightbox.js"_s,
            u"loading.gif"_s,
            u"next.png"_s,
            u"overlay.png"_s,
            u"previous.png"_s})
    );
    EXPECT_EQ(sizeOf(u"DVimages_s/p1.png"_s), QSize(8, 8));
    EXPECT_EQ(sizeOf(u"DVimages_b/p2.png"_s), QSize(40, 20));
    EXPECT_TRUE(text(u"trip.html"_s).contains(u"<img src=\"DVimages_s/p2.png\""_s));
    EXPECT_TRUE(text(u"index.html"_s).contains(u"window.location.href = \"trip.html\""_s));
    EXPECT_EQ(desktop.opened, QStringList{u"file://"_s + folder.path(u"out/trip.html"_s)});
}

TEST_F(Gallery, RemovesWhatAKilledProgramLeftInItsFolders)
{
    addPhotos(1);
    QStringList abandoned;
    for (const QString& name : {u"DVimages_b"_s, u"DVimages_s"_s, u"DVcss"_s, u"DVpglightbox"_s}) {
        QDir().mkpath(folder.path(u"out/"_s + name));
        abandoned += folder.write(u"out/"_s + name + u"/.brenvaldo-0123abcd"_s, "half a picture");
    }

    run();

    for (const QString& path : abandoned)
        EXPECT_FALSE(QFileInfo::exists(path)) << path.toStdString();
}

TEST_F(Gallery, NamesPagesWithoutANameMyIndex)
{
    addPhotos(1);
    for (const QString& name : {u""_s, u" "_s}) {
        panel.tfHTMLfileName.setStringValue(name);
        run();
        EXPECT_EQ(files({}), (QStringList{u"index.html"_s, u"myIndex.html"_s}));
    }
}

TEST_F(Gallery, HasOnlyTheRedirectWhenThePhotosFillTheirPages)
{
    set(panel.tfNumberOfRows, 1);
    set(panel.tfNumberOfColumns, 2);
    addPhotos(2);
    run();
    EXPECT_EQ(files({}), QStringList{u"index.html"_s});

    addPhotos(3);
    run();
    EXPECT_EQ(
        files({}), (QStringList{u"index.html"_s, u"trip.html"_s, u"trip2.html"_s, u"trip3.html"_s})
    );
    EXPECT_TRUE(text(u"trip2.html"_s).contains(u"<a href=\"trip3.html\">3 </a>"_s));
}

TEST_F(Gallery, TakesPhotosThatAreTickedWhateverTheFilterSays)
{
    addPhotos(3);
    workspace::cCollectionViewItem upright = photos.entries().first();
    upright.myPhotoOrientation = u"P"_s;
    photos.replaceAt(0, upright);
    photos.setTick(1, 0);
    panels.vwApplyOn.pubPhotoOrientation.selectIndex(1);
    run();
    EXPECT_EQ(files(u"DVimages_b"_s), (QStringList{u"p1.png"_s, u"p3.png"_s}));
}

TEST_F(Gallery, WarnsOfLargePicturesThatAreNotLarger)
{
    addPhotos(1);
    set(panel.tfBigCropWidth, 8);
    run();
    EXPECT_EQ(
        alerts,
        QList<QStringList>(
            {{u"Sorry, some wrong properties"_s,
              u"- Lightbox images are smaller than your thumbnails. (Thumbnail size: 8)"_s}}
        )
    );
    EXPECT_EQ(files(u"DVimages_b"_s), QStringList{u"p1.png"_s});
}

TEST_F(Gallery, FitsThumbnailsIntoTheHeightByTheOtherAction)
{
    addPhotos(1);
    panel.pubThumbAction.selectIndex(1);
    set(panel.tfSmallCropWidth, 16);
    set(panel.tfSmallCropHeight, 10);
    run();
    EXPECT_EQ(sizeOf(u"DVimages_s/p1.png"_s), QSize(20, 10));
}

TEST_F(Gallery, LeavesPicturesWholeWithoutBothSides)
{
    addPhotos(1);
    set(panel.tfSmallCropWidth, 16);
    set(panel.tfSmallCropHeight, 0);
    run();
    EXPECT_EQ(sizeOf(u"DVimages_s/p1.png"_s), QSize(32, 16));
}

TEST_F(Gallery, DrawsFramesInTheColourOfTheirWells)
{
    add(test::PhotoBuilder().size(64, 32).solid({0, 255, 0}), u"p1.jpg"_s);
    set(panel.tfSmallFramingThickness, 4);
    panel.cwNSColorWellObjBsImage.setColor({.red = 1});
    set(panel.tfBigFramingThickness, 6);
    panel.cwNSColorWellObjBbImage.setColor({.blue = 1});
    run();
    const QImage thumbnail = test::storedPixels(folder.path(u"out/DVimages_s/p1.png"_s));
    EXPECT_EQ(thumbnail.pixelColor(1, 4), QColor(Qt::red));
    EXPECT_GT(thumbnail.pixelColor(2, 4).green(), 200);
    const QImage large = test::storedPixels(folder.path(u"out/DVimages_b/p1.png"_s));
    EXPECT_EQ(large.pixelColor(2, 10), QColor(Qt::blue));
    EXPECT_GT(large.pixelColor(3, 10).green(), 200);
}

TEST_F(Gallery, RefersToAPhotoshopFileWithoutPictures)
{
    addPhotos(1);
    QFile::copy(folder.path(u"p1.jpg"_s), folder.path(u"drawing.psd"_s));
    photos.append(entry(folder.path(u"drawing.psd"_s), u"L"_s));
    run();
    EXPECT_EQ(files(u"DVimages_b"_s), QStringList{u"p1.png"_s});
    EXPECT_EQ(files(u"DVimages_s"_s), QStringList{u"p1.png"_s});
    EXPECT_TRUE(text(u"trip.html"_s).contains(u"DVimages_b/drawing.png"_s));
}

TEST_F(Gallery, KeepsTheLightboxOfTheRunBefore)
{
    addPhotos(1);
    run();
    const QString script = folder.path(u"out/DVpglightbox/jquery.lightbox.js"_s);
    QFile file(script);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    run();
    EXPECT_EQ(text(u"DVpglightbox/jquery.lightbox.js"_s), u"mine"_s);
}

TEST_F(Gallery, CalculatesTheHeightOfThumbnailsFirst)
{
    addPhotos(1);
    panel.pubPhotoRatio.selectIndex(2);
    set(panel.tfSmallCropWidth, 12);
    run();
    EXPECT_EQ(panel.tfSmallCropHeight.stringValue(), u"8"_s);
    EXPECT_EQ(sizeOf(u"DVimages_s/p1.png"_s), QSize(12, 8));
}

TEST_F(Gallery, AddsSourcesToTheCaptions)
{
    panel.tfPgMetaDataToShow.setStringValue({});
    responsiveDesign.hPgAddMetaDataValue();
    EXPECT_EQ(panel.tfPgMetaDataToShow.stringValue(), u"EXIF User Comment"_s);
    panel.pubPgMetaData.selectIndex(1);
    responsiveDesign.hPgAddMetaDataValue();
    EXPECT_EQ(panel.tfPgMetaDataToShow.stringValue(), u"EXIF User Comment;EXIF Creation Date"_s);
    responsiveDesign.hPgClearMetaDataValue();
    EXPECT_EQ(panel.tfPgMetaDataToShow.stringValue(), QString());
}

TEST_F(Gallery, CountsZeroRowsAndColumnsAsOne)
{
    set(panel.tfNumberOfRows, 0);
    set(panel.tfNumberOfColumns, 0);
    addPhotos(1);
    run();
    EXPECT_EQ(files({}), QStringList{u"index.html"_s});
}
