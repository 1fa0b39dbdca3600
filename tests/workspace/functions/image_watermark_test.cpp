// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// A run of the real function over two photos.
class ImageWatermarkFunction : public test::ControllerTest
{
protected:
    ImageWatermarkFunction()
    {
        restoreRun("imageWM");
        restorePreview("imageWM");
        select("imageWM");
        panels.window.pubEditPhoto.selectIndex(0);
        panels.vwWatermark.tbvWatermarkType.selectIndex(1);
        panels.vwWatermark.scImageWaterMarkPos.setSelectedSegment(0);
        panels.vwWatermark.tfWaterMarkImageFilePath.setStringValue(
            test::PhotoBuilder()
                .size(20, 10)
                .solid({200, 40, 20})
                .format(test::PhotoFormat::Png)
                .write(folder.path(u"logo.png"_s))
        );
        panels.vwFileType.pubFileType.selectIndex(1);
        QDir().mkpath(folder.path(u"out"_s));
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(folder.path(u"out/"_s));
        for (const QString& name : {u"a.jpg"_s, u"b.jpg"_s})
            photos.append(entry(
                test::PhotoBuilder().size(80, 40).solid({9, 9, 9}).write(folder.path(name)), u"L"_s
            ));
    }
};

} // namespace

TEST_F(ImageWatermarkFunction, MarksEveryTickedPhoto)
{
    actions.send(u"hLoadImages"_s);

    for (const QString& name : {u"out/a.png"_s, u"out/b.png"_s})
        EXPECT_EQ(test::storedPixels(folder.path(name)).pixel(5, 5), qRgb(200, 40, 20));
    ASSERT_EQ(journal.records().size(), 2);
    EXPECT_EQ(journal.records().last().target, folder.path(u"out/b.png"_s));
}

TEST_F(ImageWatermarkFunction, ShowsThePhotoWithItsMark)
{
    const auto shown = row("imageWM").preview(subsystems, folder.path(u"a.jpg"_s));

    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->toQImage().pixel(5, 5), qRgb(200, 40, 20));
}
