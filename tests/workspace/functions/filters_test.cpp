// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function over a photo of one colour.
class Filters : public test::ControllerTest
{
protected:
    Filters()
    {
        restoreRun("filters");
        select("filters");
        panels.window.pubEditPhoto.selectIndex(7);
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        photos.append(entry(
            test::PhotoBuilder()
                .format(test::PhotoFormat::Png)
                .solid({200, 100, 50})
                .write(folder.path(u"a.png"_s)),
            u"L"_s
        ));
    }

    QColor written(int number)
    {
        panels.vwFilterPhotos.pubFilterSelection.selectIndex(number);
        actions.send(u"hLoadImages"_s);
        return test::storedPixels(folder.path(u"out/a.png"_s)).pixelColor(20, 20);
    }
};

} // namespace

TEST_F(Filters, RunByTheirNumber)
{
    EXPECT_NEAR(written(16).red(), 55, 2);
    EXPECT_NEAR(written(1).red(), 128, 2);
}

TEST_F(Filters, ReadTheirSettingsAtTheRun)
{
    panels.vwFilterPhotos.vwFiltersPosterizeView.tfFilterColorConvLevels.setStringValue(u"2"_s);
    EXPECT_NEAR(written(17).green(), 0, 3);
    panels.vwFilterPhotos.vwFiltersPosterizeView.tfFilterColorConvLevels.setStringValue(u"4"_s);
    EXPECT_NEAR(written(17).green(), 85, 3);
}
