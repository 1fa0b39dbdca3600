// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function over a photo of 80 x 40 pixels whose corners differ.
class RotatePhotos : public test::ControllerTest
{
protected:
    RotatePhotos()
    {
        restoreRun("rotatePhotos");
        row("rotatePhotos").preview
            = workspace::Functions(workspace::functions()).withId(u"rotatePhotos"_s)->preview;
        select("rotatePhotos");
        panels.window.pubEditPhoto.selectIndex(6);
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        photos.append(entry(
            test::PhotoBuilder().size(80, 40).corners().write(folder.path(u"a.jpg"_s)), u"L"_s
        ));
        photos.select(0);
    }

    QImage written()
    {
        actions.send(u"hLoadImages"_s);
        return test::storedPixels(folder.path(u"out/a.png"_s));
    }

    panels::RotatePanel& rotate = panels.vwRotatePhotos;
};

} // namespace

TEST_F(RotatePhotos, PassesOnTheAngle)
{
    rotate.tfRotationAngle.setStringValue(u"-90"_s);

    EXPECT_EQ(written().size(), QSize(40, 80));
    EXPECT_EQ(test::cornerColors(written()), "BRWG");
}

TEST_F(RotatePhotos, PassesOnTheCanvas)
{
    rotate.cbRotationBackgroundColor.setState(1);
    rotate.cwRotationBackgroundColor.setColor({.blue = 1});
    rotate.tfRotationEnlargeCanvas.setStringValue(u"5"_s);

    const QImage framed = written();

    ASSERT_EQ(framed.size(), QSize(90, 50));
    EXPECT_EQ(framed.pixelColor(4, 4), QColor(0, 0, 255));
}

TEST_F(RotatePhotos, ShowsTheTurnedPictureInPlaceOfThePhoto)
{
    rotate.tfRotationAngle.setStringValue(u"90"_s);
    panels.vwShowPreview.cbShowPreview.setState(1);

    collectionView.callForPreview();

    EXPECT_FALSE(showsPhoto());
    ASSERT_TRUE(showsOverlay());
    const QImage shown = panels.window.myTemplateOverlayPreview.image()->toQImage();
    EXPECT_EQ(shown.size(), QSize(40, 80));
    EXPECT_EQ(test::cornerColors(shown), "GWRB");
}
