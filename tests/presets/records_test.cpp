// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_bench.h"

#include <platform/archives/bookmark.h>
#include <platform/archives/color_archive.h>
#include <platform/foundation/literals.h>

#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace brenvaldo;
using test::PresetsBench;

namespace {

class TextWatermarkRecord : public testing::Test
{
protected:
    TextWatermarkRecord() { text.cbFontList.selectItemAtIndex(0); }

    PresetsBench bench;
    panels::WatermarkPanel& text = bench.panels.vwWatermark;
    controls::TextField& destination = bench.panels.vwMainDestination.tfImageDestinationFolder;
};

class ResizeRecord : public testing::Test
{
protected:
    ResizeRecord() { bench.function = u"resizePhotos"_s; }

    PresetsBench bench;
    panels::ResizePanel& resize = bench.panels.vwResizePhotos;
};

} // namespace

TEST_F(TextWatermarkRecord, ShowsTheDestinationAsTheToolTipToo)
{
    destination.setStringValue(bench.file.folder().path());
    bench.save(u"A"_s);
    destination.setToolTip(u""_s);

    bench.apply(0);

    EXPECT_EQ(destination.toolTip(), bench.file.folder().path());
}

TEST_F(TextWatermarkRecord, KeepsAColorWithoutItsAlpha)
{
    text.cwFontColor.setColor({.red = 0.2, .green = 0.2, .blue = 0.2, .alpha = 0.1});
    bench.save(u"A"_s);

    EXPECT_EQ(bench.stored(u"A"_s, 16), platform::archives::colorArchive({0.2F, 0.2F, 0.2F}));
}

TEST_F(TextWatermarkRecord, TakesNoFontThatIsNotInstalled)
{
    bench.save(u"A"_s);
    text.cbFontList.setTitles({u"Inter"_s});

    bench.apply(0);

    EXPECT_EQ(text.cbFontList.indexOfSelectedItem(), -1);
}

TEST_F(TextWatermarkRecord, KeepsADestinationThatIsARelativePathAsAnAbsoluteOne)
{
    const QString folder = QDir::currentPath();
    QDir::setCurrent(bench.file.folder().path());
    destination.setStringValue(u"DravothCom"_s);
    bench.save(u"A"_s);
    QDir::setCurrent(folder);

    bench.apply(0);

    EXPECT_EQ(destination.stringValue(), bench.file.folder().path(u"DravothCom/"_s));
}

TEST_F(TextWatermarkRecord, TakesWhatIsMissingInTheRowOfAnotherFunctionAsZero)
{
    bench.function = u"resizePhotos"_s;
    bench.save(u"A"_s);
    bench.function = u"textWM"_s;
    text.cbFontBold.setState(1);
    text.scTxtAlign.setSelectedSegment(2);
    text.tfFontSize.setStringValue(u"48"_s);

    bench.apply(0);

    EXPECT_EQ(text.cbFontBold.state(), 0);
    EXPECT_EQ(text.tfFontSize.stringValue(), u""_s);
    EXPECT_EQ(text.scTxtAlign.selectedSegment(), 0);
}

TEST_F(TextWatermarkRecord, LosesTheFormOfATextThatIsANumber)
{
    text.tvWaterMarkText.setStringValue(u"0123"_s);
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_EQ(text.tvWaterMarkText.stringValue(), u"123"_s);
}

TEST_F(TextWatermarkRecord, CannotBeSavedWithoutAFont)
{
    text.cbFontList.selectItemAtIndex(-1);

    EXPECT_EQ(bench.press("hAddPreset"), controls::ActionRegistry::Sent::Raised);
    EXPECT_TRUE(bench.listed().isEmpty());
}

TEST_F(TextWatermarkRecord, CannotBeSavedWithADestinationThatDoesNotExist)
{
    destination.setStringValue(u"/no/such/folder/"_s);

    EXPECT_EQ(bench.press("hAddPreset"), controls::ActionRegistry::Sent::Raised);
    EXPECT_TRUE(bench.listed().isEmpty());
}

TEST_F(TextWatermarkRecord, LeavesTheDestinationWhenItsFolderIsGone)
{
    const QString folder = bench.file.folder().path(u"out"_s);
    ASSERT_TRUE(QDir().mkdir(folder));
    destination.setStringValue(folder + QLatin1Char('/'));
    bench.save(u"A"_s);
    ASSERT_TRUE(QDir().rmdir(folder));
    destination.setStringValue(u"/elsewhere/"_s);

    bench.apply(0);

    EXPECT_EQ(destination.stringValue(), u"/elsewhere/"_s);
}

TEST_F(TextWatermarkRecord, LeavesTheDestinationWhenNoneIsStored)
{
    bench.save(u"A"_s);
    destination.setStringValue(u"/elsewhere/"_s);

    bench.apply(0);

    EXPECT_EQ(bench.stored(u"A"_s, 3), u""_s);
    EXPECT_EQ(destination.stringValue(), u"/elsewhere/"_s);
}

TEST_F(TextWatermarkRecord, KeepsAFolderAsABookmarkWithoutTheSlash)
{
    destination.setStringValue(bench.file.folder().path());
    bench.save(u"A"_s);

    const QByteArray record = QByteArray::fromBase64(bench.stored(u"A"_s, 3).toLatin1());

    EXPECT_EQ(
        platform::archives::pathOfBookmark(record).value_or(QString()) + QLatin1Char('/'),
        bench.file.folder().path()
    );
}

TEST_F(TextWatermarkRecord, EnablesTheShadowFieldsWithTheStoredState)
{
    text.cbShadowCheck.setState(1);
    bench.save(u"on"_s);
    text.cbShadowCheck.setState(0);
    bench.save(u"off"_s);

    bench.apply(0);
    EXPECT_TRUE(text.tfTextShadowRadius.isEnabled());
    EXPECT_TRUE(text.cwShadowColor.isEnabled());

    bench.apply(1);
    EXPECT_FALSE(text.tfTextShadowRadius.isEnabled());
    EXPECT_FALSE(text.cwShadowColor.isEnabled());
}

TEST_F(TextWatermarkRecord, ShowsTheReliefColorOnlyForItsEffect)
{
    text.pubWatermarkTextEffect.selectItemAtIndex(6);
    bench.save(u"relief"_s);
    text.pubWatermarkTextEffect.selectItemAtIndex(2);
    bench.save(u"other"_s);

    bench.apply(0);
    EXPECT_FALSE(text.cwEmbossColor.isHidden());

    bench.apply(1);
    EXPECT_TRUE(text.cwEmbossColor.isHidden());
}

TEST_F(TextWatermarkRecord, LeavesTheChainWhenNoneWasSaved)
{
    bench.save(u"A"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 24), u""_s);
    text.cActionsTWMArrayController.addObject({u"Number\t \tNumbering\tBrenvaldo9"_s});

    bench.apply(0);

    EXPECT_EQ(text.cActionsTWMArrayController.arrangedObjects().size(), 1);
}

TEST_F(TextWatermarkRecord, AddsTheSavedChainToTheOneThatIsThere)
{
    auto& chain = text.cActionsTWMArrayController;
    const QString padding(65, QLatin1Char(' '));
    chain.addObject({u"One\t"_s + padding + u"\tPrefix\tBrenvaldo9\tx_"_s});
    chain.addObject({u"Two\t"_s + padding + u"\tPrefix\tBrenvaldo9\ty_"_s});
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_EQ(
        bench.stored(u"A"_s, 24), u"One\t\tPrefix\tBrenvaldo9\tx_\rTwo\t\tPrefix\tBrenvaldo9\ty_"_s
    );
    ASSERT_EQ(chain.arrangedObjects().size(), 4);
    const QString loaded
        = u"One\t"_s + QString(46, QLatin1Char(' ')) + u"\tPrefix\tBrenvaldo9\tx_"_s;
    EXPECT_EQ(chain.value(2, u"cActions"_s), loaded);
}

TEST_F(TextWatermarkRecord, LeavesAColorThatIsDamaged)
{
    bench.save(u"A"_s);
    (void)bench.file.rows("update Presets set StrField16 = 'BAtzdHJlYW10eXBlZIHoA4QB'");
    text.cwFontColor.setColor({.red = 0.5, .green = 0.5, .blue = 0.5});

    bench.apply(0);

    EXPECT_EQ(
        text.cwFontColor.color(), (platform::graphics::Color{.red = 0.5, .green = 0.5, .blue = 0.5})
    );
}

TEST_F(TextWatermarkRecord, ReadsTheColorsOfEitherArchive)
{
    bench.save(u"A"_s);
    const QString archive = platform::archives::galleryColorArchive({0.0F, 1.0F, 0.0F});
    (void)bench.file.rows(
        (u"update Presets set StrField16 = '"_s + archive + u"'"_s).toUtf8().constData()
    );

    bench.apply(0);

    EXPECT_EQ(text.cwFontColor.color(), (platform::graphics::Color{.green = 1}));
}

TEST_F(TextWatermarkRecord, KeepsLongAndOddTexts)
{
    const QString odd = u"a|b\tc \"quoted\" \U0001F4F7 it''s "_s + QString(1'000'000, u'x');
    text.tvWaterMarkText.setStringValue(odd);
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_EQ(text.tvWaterMarkText.stringValue(), QString(odd).replace(u"''"_s, u"'"_s));
}

TEST_F(TextWatermarkRecord, ChangesNothingForIndexesThatDoNotExist)
{
    text.scWaterMarkPos.setSelectedSegment(4);
    bench.save(u"A"_s);
    (void)bench.file.rows("update Presets set StrField5 = '44', StrField28 = '99'");
    text.pubWatermarkTextEffect.selectItemAtIndex(3);

    bench.apply(0);

    EXPECT_EQ(text.scWaterMarkPos.selectedSegment(), 4);
    EXPECT_EQ(text.pubWatermarkTextEffect.indexOfSelectedItem(), 3);
}

TEST_F(ResizeRecord, KeepsTheFieldsOfTheMaximumModeOnly)
{
    resize.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"640"_s);
    resize.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"1200"_s);
    resize.dvVCUiScaleMaxView.pubScaleMaxType.selectItemAtIndex(1);
    bench.save(u"A"_s);

    EXPECT_EQ(bench.stored(u"A"_s, 4), u""_s);
    EXPECT_EQ(bench.stored(u"A"_s, 6), u""_s);
    EXPECT_EQ(bench.stored(u"A"_s, 7), u"0"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 8), u"1"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 9), u"1200"_s);
}

TEST_F(ResizeRecord, KeepsTheFieldsOfTheFixedModeOnly)
{
    resize.pubScaleType.selectItemAtIndex(1);
    resize.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"640"_s);
    resize.dvVCUiScaleFixView.tfScaleFixHeight.setStringValue(u"480"_s);
    resize.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"1200"_s);
    bench.save(u"A"_s);

    EXPECT_EQ(bench.stored(u"A"_s, 4), u"640"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 5), u"480"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 6), u"1"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 7), u"1"_s);
    EXPECT_EQ(bench.stored(u"A"_s, 8), u""_s);
    EXPECT_EQ(bench.stored(u"A"_s, 9), u""_s);
}

TEST_F(ResizeRecord, ShowsTheFieldsOfTheStoredModeAndLeavesTheOthers)
{
    resize.pubScaleType.selectItemAtIndex(1);
    resize.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"640"_s);
    bench.save(u"fixed"_s);
    resize.pubScaleType.selectItemAtIndex(0);
    resize.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"1200"_s);
    bench.save(u"maximum"_s);
    resize.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(u"1"_s);

    bench.apply(0);
    EXPECT_EQ(resize.pubScaleType.indexOfSelectedItem(), 1);
    EXPECT_EQ(resize.dvVCUiResizeMainView.views(), QStringList(u"dvVCUiScaleFixView"_s));
    EXPECT_EQ(resize.dvVCUiScaleFixView.tfScaleFixWidth.stringValue(), u"640"_s);
    EXPECT_EQ(resize.dvVCUiScaleMaxView.tfScaleMaxVal.stringValue(), u"1200"_s);

    resize.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"1"_s);
    bench.apply(1);
    EXPECT_EQ(resize.dvVCUiResizeMainView.views(), QStringList(u"dvVCUiScaleMaxView"_s));
    EXPECT_EQ(resize.dvVCUiScaleMaxView.tfScaleMaxVal.stringValue(), u"1200"_s);
    EXPECT_EQ(resize.dvVCUiScaleFixView.tfScaleFixWidth.stringValue(), u"640"_s);
}

TEST_F(ResizeRecord, PassesIndexesThroughTheIntegerColumns)
{
    bench.panels.vwApplyOn.pubPhotoOrientation.selectItemAtIndex(2);
    bench.panels.vwFileType.pubFileType.selectItemAtIndex(5);
    bench.panels.vwFileType.pubJPEGCompressionLevel.selectItemAtIndex(7);
    bench.save(u"A"_s);
    bench.panels.vwApplyOn.pubPhotoOrientation.selectItemAtIndex(0);
    bench.panels.vwFileType.pubFileType.selectItemAtIndex(0);
    bench.panels.vwFileType.pubJPEGCompressionLevel.selectItemAtIndex(0);

    bench.apply(0);

    EXPECT_EQ(bench.stored(u"A"_s, 22), u""_s);
    EXPECT_EQ(bench.panels.vwApplyOn.pubPhotoOrientation.indexOfSelectedItem(), 2);
    EXPECT_EQ(bench.panels.vwFileType.pubFileType.indexOfSelectedItem(), 5);
    EXPECT_EQ(bench.panels.vwFileType.pubJPEGCompressionLevel.indexOfSelectedItem(), 7);
}
