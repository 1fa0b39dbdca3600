// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>
#include <QFile>

using namespace brenvaldo;

namespace {

const QColor red(255, 0, 0);
const QColor white(255, 255, 255);

/// A run of the real function over two white photos of 40 x 30 pixels.
class Framing : public test::ControllerTest
{
protected:
    Framing()
    {
        row("framing") = *workspace::Functions(workspace::functions()).withId(u"framing"_s);
        select("framing");
        panels.window.pubEditPhoto.selectIndex(2);
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        for (const QString& name : {u"a.jpg"_s, u"b.jpg"_s})
            photos.append(entry(white40By30(name), u"L"_s));
        panels.vwFraming.tfFramingThickness.setStringValue(u"5"_s);
        panels.vwFraming.myNSColorWellObjFraming.setColor({.red = 1});
    }

    [[nodiscard]] QString white40By30(const QString& name) const
    {
        return test::PhotoBuilder().size(40, 30).solid({255, 255, 255}).write(folder.path(name));
    }

    QImage written(const QString& name = u"a"_s)
    {
        actions.send(u"hLoadImages"_s);
        return test::storedPixels(folder.path(u"out/"_s + name + u".png"_s));
    }
};

} // namespace

TEST_F(Framing, DrawsTheFrameOfThePanelOnEveryPhoto)
{
    panels.vwFraming.tfFramingInset.setStringValue(u"3"_s);
    const QImage inside = written();
    EXPECT_EQ(inside.size(), QSize(40, 30));
    EXPECT_EQ(inside.pixelColor(2, 15), white);
    EXPECT_EQ(inside.pixelColor(3, 15), red);
    EXPECT_EQ(inside.pixelColor(8, 15), white);

    panels.vwFraming.pubFramingType.selectIndex(1);
    EXPECT_EQ(written(u"b"_s).size(), QSize(50, 40));
}

TEST_F(Framing, IsFaintInTheFileAndStrongInThePreviewWithoutAnOpacity)
{
    panels.vwFraming.tfFramingOpacity.setStringValue({});
    EXPECT_EQ(written().pixelColor(1, 1), QColor(255, 252, 252));
    const auto shown = row("framing").preview(subsystems, folder.path(u"a.jpg"_s));
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->toQImage().pixelColor(1, 1), red);
}

TEST_F(Framing, HasTheOpacityOfThePhotoBeforeAroundAPhoto)
{
    panels.vwFraming.pubFramingType.selectIndex(1);
    panels.vwFraming.tfFramingOpacity.setStringValue(u"150"_s);
    EXPECT_EQ(written().pixelColor(1, 1), white); // no photo was before
    for (const QString& opacity : {u"20"_s, u"150"_s, u"0"_s, u"-1"_s}) {
        panels.vwFraming.tfFramingOpacity.setStringValue(opacity);
        EXPECT_EQ(written().pixelColor(1, 1), QColor(255, 204, 204)) << opacity.toStdString();
    }
}

TEST_F(Framing, ShowsNothingForAnUnreadablePhoto)
{
    EXPECT_EQ(row("framing").preview(subsystems, folder.path(u"missing.jpg"_s)), std::nullopt);
}
