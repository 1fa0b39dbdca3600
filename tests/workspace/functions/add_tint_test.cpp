// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// The real function over a photo of 80 x 40 white pixels that is stored lying and shows upright.
class AddTint : public test::ControllerTest
{
protected:
    AddTint()
    {
        restoreRun("addTint");
        restorePreview("addTint");
        select("addTint");
        panels.window.pubEditPhoto.selectIndex(1);
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        panel.tfAddTintOpacity.setStringValue(u"100"_s);
        panel.cwAddTint.setColor({.red = 1, .green = 0, .blue = 0});
        photos.append(entry(white().write(source), u"P"_s));
        photos.select(0);
    }

    static test::PhotoBuilder white()
    {
        return test::PhotoBuilder().size(80, 40).solid({255, 255, 255}).orientation(6);
    }

    QImage written()
    {
        actions.send(u"hLoadImages"_s);
        return test::storedPixels(folder.path(u"out/a.png"_s));
    }

    panels::TintPanel& panel = panels.vwAddTint;
    QString source = folder.path(u"a.jpg"_s);
};

} // namespace

TEST_F(AddTint, LaysTheTintOfThePanelOverStoredPixels)
{
    panel.cbAddTintOrigSize.setState(0);
    panel.tfAddTintWidth.setStringValue(u"30"_s);
    panel.tfAddTintHeight.setStringValue(u"10"_s);

    const QImage pixels = written();

    ASSERT_EQ(pixels.size(), QSize(80, 40));
    EXPECT_EQ(pixels.pixelColor(40, 20), QColor(Qt::red));
    EXPECT_EQ(pixels.pixelColor(20, 20), QColor(Qt::white));
}

TEST_F(AddTint, ShowsWhatItWillWrite)
{
    panel.cbAddTintGradient.setState(1);
    panels.vwShowPreview.cbShowPreview.setState(1);

    collectionView.callForPreview();

    const auto shown = panels.window.myTemplateOverlayPreview.image();
    ASSERT_TRUE(shown.has_value());
    EXPECT_TRUE(showsPhoto());
    EXPECT_EQ(test::largestDifference(shown->toQImage(), written()), 0);
}

TEST_F(AddTint, ShowsThePlainPhotoWithoutAPreview)
{
    collectionView.callForPreview();

    EXPECT_TRUE(showsPhoto());
    EXPECT_FALSE(showsOverlay());
}

TEST_F(AddTint, KeepsThePixelsOfItsPreview)
{
    const auto first = previewPhotos.storedPhoto(source);
    const auto second = previewPhotos.storedPhoto(source);

    ASSERT_TRUE(first && second);
    EXPECT_EQ(first->node(), second->node());
    EXPECT_EQ(first->pixelSize().width, 80);
    EXPECT_EQ(previewPhotos.photo(source)->pixelSize().width, 40);
    const QString upright = white().orientation(1).write(folder.path(u"upright.jpg"_s));
    EXPECT_EQ(previewPhotos.storedPhoto(upright)->node(), previewPhotos.photo(upright)->node());
}
