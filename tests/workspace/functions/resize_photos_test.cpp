// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/geometry_printing.h>
#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function over a photo of 80 x 40 pixels whose corners differ.
class ResizePhotos : public test::ControllerTest
{
protected:
    ResizePhotos()
    {
        restoreRun("resizePhotos");
        select("resizePhotos");
        panels.window.pubEditPhoto.selectIndex(8);
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        photos.append(entry(
            test::PhotoBuilder().size(80, 40).corners().write(folder.path(u"a.jpg"_s)), u"L"_s
        ));
    }

    QImage written()
    {
        actions.send(u"hLoadImages"_s);
        return test::storedPixels(folder.path(u"out/a.png"_s));
    }
};

} // namespace

TEST_F(ResizePhotos, PassesOnValueAndTypeOfTheMaximum)
{
    panels::ScaleMaxView& view = panels.vwResizePhotos.dvVCUiScaleMaxView;
    view.tfScaleMaxVal.setStringValue(u"20"_s);

    view.pubScaleMaxType.selectIndex(0);
    EXPECT_EQ(written().size(), QSize(20, 10));
    view.pubScaleMaxType.selectIndex(1);
    EXPECT_EQ(written().size(), QSize(40, 20));
    view.pubScaleMaxType.selectIndex(3);
    EXPECT_EQ(written().size(), QSize(16, 8));
}

TEST_F(ResizePhotos, PassesOnTheBoxAndWhetherItIsCovered)
{
    panels.vwResizePhotos.pubScaleType.selectIndex(1);
    panels::ScaleFixView& view = panels.vwResizePhotos.dvVCUiScaleFixView;
    view.tfScaleFixWidth.setStringValue(u"10"_s);
    view.tfScaleFixHeight.setStringValue(u"20"_s);

    view.cbScaleAspectRatio.setState(0);
    const QImage stretched = written();
    view.cbScaleAspectRatio.setState(1);
    const QImage covering = written();

    EXPECT_EQ(stretched.size(), QSize(10, 20));
    EXPECT_EQ(covering.size(), QSize(10, 20));
    EXPECT_NE(stretched.pixel(0, 0), covering.pixel(0, 0));
}
