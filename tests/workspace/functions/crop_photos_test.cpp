// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function over a photo of 80 x 40 pixels whose corners differ.
class CropPhotos : public test::ControllerTest
{
protected:
    CropPhotos()
    {
        restoreRun("cropPhotos");
        row("cropPhotos").preview
            = workspace::Functions(workspace::functions()).withId(u"cropPhotos"_s)->preview;
        select("cropPhotos");
        panels.window.pubEditPhoto.selectIndex(9);
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

    QImage shown()
    {
        panels.vwShowPreview.cbShowPreview.setState(1);
        collectionView.callForPreview();
        const auto overlay = panels.window.myTemplateOverlayPreview.image();
        return overlay ? overlay->toQImage() : QImage();
    }

    panels::CropPanel& crop = panels.vwCropPhotos;
};

} // namespace

TEST_F(CropPhotos, PassesOnSizePlaceAndOffset)
{
    crop.dvVCUiCropWxHView.tfCropWidth.setStringValue(u"18"_s);
    crop.dvVCUiCropWxHView.tfCropHeight.setStringValue(u"8"_s);
    crop.dvVCUiCropPositionView.scCropPosition.setSelectedSegment(2);
    EXPECT_EQ(written().size(), QSize(18, 8));
    EXPECT_EQ(test::cornerColors(written()), "GGGG");

    crop.dvVCUiCropPositionView.tfXcropOffset.setStringValue(u"10"_s);
    crop.dvVCUiCropPositionView.tfYcropOffset.setStringValue(u"-5"_s);
    EXPECT_EQ(written().size(), QSize(8, 3));
}

TEST_F(CropPhotos, CopiesThePhotoWithoutASize)
{
    crop.dvVCUiCropWxHView.tfCropHeight.setStringValue(u"8"_s);

    EXPECT_EQ(written().size(), QSize(80, 40));
}

TEST_F(CropPhotos, PassesOnTypeAndCutOff)
{
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"10"_s);

    crop.pubCropType.selectIndex(1);
    EXPECT_EQ(written().size(), QSize(72, 36));
    crop.pubCropType.selectIndex(2);
    EXPECT_EQ(written().size(), QSize(70, 30));
}

TEST_F(CropPhotos, PutsAPercentageRightThatLeavesNothing)
{
    crop.pubCropType.selectIndex(1);
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"150"_s);

    EXPECT_EQ(written().size(), QSize(80, 40));
    EXPECT_EQ(crop.dvVCUiCropMinusView.tfCropCutOff.stringValue(), u"0"_s);

    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"101"_s);
    EXPECT_EQ(shown().size(), QSize(80, 40));
    EXPECT_EQ(crop.dvVCUiCropMinusView.tfCropCutOff.stringValue(), u"0"_s);
}

TEST_F(CropPhotos, LeavesPixelsToCutOffAsTheyAre)
{
    crop.pubCropType.selectIndex(2);
    crop.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"150"_s);

    (void)written();

    EXPECT_EQ(crop.dvVCUiCropMinusView.tfCropCutOff.stringValue(), u"150"_s);
}

TEST_F(CropPhotos, OutlinesTheRectangleInThePreview)
{
    crop.dvVCUiCropWxHView.tfCropWidth.setStringValue(u"20"_s);
    crop.dvVCUiCropWxHView.tfCropHeight.setStringValue(u"10"_s);
    crop.dvVCUiCropPositionView.scCropPosition.setSelectedSegment(4);

    const QImage outline = shown();

    ASSERT_EQ(outline.size(), QSize(80, 40));
    EXPECT_TRUE(showsPhoto());
    EXPECT_EQ(outline.pixelColor(35, 15), QColor(255, 0, 0));
    EXPECT_EQ(outline.pixelColor(40, 20).alpha(), 0);
}

TEST_F(CropPhotos, HaveAPreviewSwitchOfTheirOwnName)
{
    EXPECT_EQ(panels.control(u"cbCropPreview"_s), &panels.vwShowPreview.cbShowPreview);
}
