// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function over a photo of 40 x 30 pixels.
class RoundedCorners : public test::ControllerTest
{
protected:
    RoundedCorners()
    {
        row("roundings") = *workspace::Functions(workspace::functions()).withId(u"roundings"_s);
        select("roundings");
        panels.window.pubEditPhoto.selectIndex(3);
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        photos.append(entry(photo(u"a.jpg"_s, 40, 30), u"L"_s));
    }

    QImage written()
    {
        actions.send(u"hLoadImages"_s);
        return test::storedPixels(folder.path(u"out/a.png"_s));
    }
};

} // namespace

TEST_F(RoundedCorners, AreThoseOfThePanel)
{
    panels.vwRoundings.tfRCDiameter.setStringValue(u"10"_s);
    EXPECT_EQ(written().size(), QSize(40, 30));
    EXPECT_EQ(written().pixelColor(0, 0).alpha(), 0);
    panels.vwRoundings.pubRCType.selectIndex(1);
    EXPECT_EQ(written().size(), QSize(30, 30));
}

TEST_F(RoundedCorners, LookTheSameInThePreview)
{
    panels.vwRoundings.pubRCType.selectIndex(2);
    panels.vwRoundings.cbRCBackgroundColor.setState(1);
    panels.vwRoundings.tfRCEnlargeCanvas.setStringValue(u"4"_s);
    const auto shown = row("roundings").preview(subsystems, folder.path(u"a.jpg"_s));
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->toQImage(), written());
}
