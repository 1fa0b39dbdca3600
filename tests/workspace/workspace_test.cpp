// SPDX-License-Identifier: GPL-3.0-or-later
#include "controller_fixture.h"

#include <platform/foundation/literals.h>
#include <workspace/preview/preview_notifications.h>
#include <workspace/run/run_offer.h>
#include <workspace/start/app_delegate.h>
#include <workspace/start/metadata_keys.h>
#include <workspace/workspace.h>

#include <support/environment.h>

#include <QDir>

using namespace brenvaldo;

namespace {

/// What the interface says when a control of the watermark panel changes.
const QStringList& notificationNames()
{
    static const QStringList names{
        u"cbTextShadowCheckBoxEntred"_s,
        u"cbTextOutlineCheckBoxEntred"_s,
        u"cbTextItalicCheckBoxEntred"_s,
        u"cbTextBoldCheckBoxEntred"_s,
        u"cbTextOutlineThicknessEntred"_s,
        u"cbTextWatermarkPositionEntred"_s,
        u"cbTextFontFamilyEntred"_s,
        u"cbTextEntred"_s,
        u"cbTextShadowColorEntred"_s,
        u"cbTextColorEntred"_s,
        u"cbTxtPatternCheckBoxEntred"_s,
        u"cbImageWatermarkPositionEntred"_s,
        u"pubOpacityRenderMethodEntred"_s,
        u"cbCheckFadeOutBoxEntred"_s,
        u"srSliderFadeOutImageEntred"_s,
        u"cbImageShadowCheckBoxEntred"_s,
        u"cwImageShadowColorEntred"_s,
        u"mxImageWatermarkSizeEntred"_s,
        u"pubWatermarkFilterTypeEntred"_s,
        u"pubScreenSizeEntred"_s,
        u"tfScreenSizeEntred"_s,
        u"pubScreenSharpnessEntred"_s,
        u"btnChooseWatermarkImageEntred"_s,
        u"cbTextWatermarkMetaDataEntred"_s,
        u"cbUnderlineComboBoxEntred"_s,
        u"cbTextWatermarkAlignment"_s,
        u"cbImagePatternCheckBoxEntred"_s,
        u"pubWatermarkTextEffectEntred"_s,
        u"pubWatermarkTextEffectIntensityEntred"_s,
        u"cbCircularFadeOutEntred"_s,
        u"cwEmbossColorEntred"_s};
    return names;
}

/// The attributes of a file that its new name may take up; the first stands for none.
const QStringList& metadataNames()
{
    static const QStringList names{
        u""_s,
        u"AcquisitionMake"_s,
        u"AcquisitionModel"_s,
        u"BitsPerSample"_s,
        u"ColorSpace"_s,
        u"ContentCreationDate"_s,
        u"ContentModificationDate"_s,
        u"ContentType"_s,
        u"Creator"_s,
        u"Description"_s,
        u"DisplayName"_s,
        u"EXIFVersion"_s,
        u"ExposureMode"_s,
        u"ExposureTimeSeconds"_s,
        u"FlashOnOff"_s,
        u"FNumber"_s,
        u"FocalLength"_s,
        u"FSContentChangeDate"_s,
        u"FSCreationDate"_s,
        u"FSCreatorCode"_s,
        u"FSFinderFlags"_s,
        u"FSHasCustomIcon"_s,
        u"FSInvisible"_s,
        u"FSIsExtensionHidden"_s,
        u"FSIsStationery"_s,
        u"FSLabel"_s,
        u"FSName"_s,
        u"FSNodeCount"_s,
        u"FSOwnerGroupID"_s,
        u"FSOwnerUserID"_s,
        u"FSSize"_s,
        u"FSTypeCode"_s,
        u"HasAlphaChannel"_s,
        u"ISOSpeed"_s,
        u"Kind"_s,
        u"LastUsedDate"_s,
        u"Orientation"_s,
        u"PixelCount"_s,
        u"PixelHeight"_s,
        u"PixelWidth"_s,
        u"ProfileName"_s,
        u"RedEyeOnOff"_s,
        u"ResolutionHeightDPI"_s,
        u"ResolutionWidthDPI"_s,
        u"WhiteBalance"_s};
    return names;
}

class WorkspaceTest : public testing::Test
{
protected:
    [[nodiscard]] QString temp() const { return folder.path(u"data/Brenvaldo/Temp"_s); }

    void leaveInTemp(const QString& name) const
    {
        QDir().mkpath(temp());
        (void)folder.write(u"data/Brenvaldo/Temp/"_s + name, "left over");
    }

    test::TemporaryFolder folder;
    test::Environment data{"XDG_DATA_HOME", folder.path(u"data"_s).toUtf8()};
    test::Environment configuration{"XDG_CONFIG_HOME", folder.path(u"config"_s).toUtf8()};
    platform::UserDefaults defaults;
    test::QueuedChooser chooser;
    test::RecordingDesktop desktop;
    workspace::Workspace program{{.chooser = chooser, .desktop = desktop, .defaults = defaults}};
};

} // namespace

TEST_F(WorkspaceTest, StartsInItsFirstState)
{
    panels::Panels& panels = program.panels();
    auto& resize = panels.vwResizePhotos;
    resize.pubResizeType.setTitles({u"a"_s, u"b"_s});
    resize.pubResizeType.selectItemAtIndex(1);
    resize.pubScaleType.selectItemAtIndex(1);
    resize.pubScaleType.setHidden(true);
    panels.window.myTemplatePreview.setImage(
        platform::graphics::Image::fromQImage(QImage(3, 2, QImage::Format_RGB32))
    );
    ASSERT_EQ(resize.pubScaleType.selectedIndex(), 1);

    program.start();

    EXPECT_EQ(workspace::cSelectedFunction::sharedModel().myString, u"textWM"_s);
    EXPECT_EQ(panels.vwWatermark.cbFontList.selectedIndex(), 1);
    EXPECT_EQ(resize.pubScaleType.selectedIndex(), 0);
    EXPECT_FALSE(resize.pubScaleType.isHidden());
    EXPECT_EQ(resize.pubResizeType.selectedIndex(), 0);
    EXPECT_FALSE(panels.window.myTemplatePreview.image());
    EXPECT_TRUE(QFileInfo::exists(folder.path(u"data/DravothCom/Brenvaldo9.sql"_s)));
    EXPECT_TRUE(QFileInfo(temp()).isDir());
}

TEST_F(WorkspaceTest, OffersTheAttributesOfAFileForItsNewName)
{
    program.start();

    const panels::RenamePanel& panel = program.panels().vwFileManagementRename;
    EXPECT_EQ(metadataNames().size(), 45);
    EXPECT_EQ(panel.cbxPrefixMetaData.titles(), metadataNames());
    EXPECT_EQ(panel.cbxPrefixMetaData.selectedIndex(), 0);
    EXPECT_EQ(panel.cbxPostfixMetaData.titles(), metadataNames());
    EXPECT_EQ(panel.cbxPostfixMetaData.selectedIndex(), 0);
}

TEST_F(WorkspaceTest, EmptiesTempAtTheStart)
{
    leaveInTemp(u"old.jpg"_s);
    leaveInTemp(u".hidden"_s);
    QDir().mkpath(temp() + u"/folder/inner"_s);
    QFile::link(u"nowhere"_s, temp() + u"/broken link"_s);

    program.start();

    EXPECT_EQ(
        QDir(temp()).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot
        ),
        QStringList{u".hidden"_s}
    );
}

TEST_F(WorkspaceTest, EmptiesTempWithTheLastWindow)
{
    program.start();
    leaveInTemp(u"work.jpg"_s);

    program.lastWindowClosed();

    EXPECT_TRUE(QDir(temp()).isEmpty());
    EXPECT_TRUE(program.delegate().applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(WorkspaceTest, EndsARunAfterThePhotoInHandAndEmptiesTempThen)
{
    defaults.set(u"PhotosAtATime"_s, u"1"_s);
    program.start();
    QDir().mkpath(folder.path(u"out"_s));
    program.openFiles({
        test::PhotoBuilder().write(folder.path(u"a.jpg"_s)),
        test::PhotoBuilder().write(folder.path(u"b.jpg"_s)),
    });
    panels::Panels& panels = program.panels();
    const controls::UserInput user(program.actions());
    user.pick(panels.window.pubFileManagementSelect, 3);
    user.type(panels.vwMainDestination.tfImageDestinationFolder, folder.path(u"out/"_s));
    leaveInTemp(u"work.jpg"_s);
    const auto closing = program.journal().recorded.connect([&](const workspace::RunRecord&) {
        program.lastWindowClosed();
        EXPECT_FALSE(QDir(temp()).isEmpty()) << "the run may still need it";
    });

    user.press(panels.window.btnProcess);

    EXPECT_EQ(program.journal().records().size(), 1);
    EXPECT_TRUE(QDir(temp()).isEmpty());
}

TEST_F(WorkspaceTest, DrawsThePreviewOnceWhenAPresetIsLoaded)
{
    program.start();
    panels::Panels& panels = program.panels();
    const controls::UserInput user(program.actions());
    user.pick(panels.window.pubEditPhoto, 8);
    panels.wwPresetsWindow.tfInputPDM.setStringValue(u"small"_s);
    program.actions().send(u"hAddPreset"_s);
    panels.wwPresetsWindow.myPresetsTableView.selectRow(0);
    int drawn = 0;
    const auto subscription
        = panels.window.myTemplateOverlayPreview.changed.connect([&] { ++drawn; });

    program.actions().send(u"hApplySelectedPreset"_s);

    EXPECT_EQ(drawn, 1);
}

TEST_F(WorkspaceTest, NotesAPresetThatCouldNotBeSavedInTheRunJournal)
{
    program.start();
    program.panels().vwWatermark.cbFontList.selectItemAtIndex(-1);
    program.panels().wwPresetsWindow.tfInputPDM.setStringValue(u"Gold tiles"_s);

    EXPECT_EQ(program.actions().send(u"hAddPreset"_s), controls::ActionRegistry::Sent::Raised);

    ASSERT_EQ(program.journal().records().size(), 1);
    const workspace::RunRecord& record = program.journal().records().first();
    EXPECT_EQ(record.function, u"textWM"_s);
    EXPECT_EQ(record.source, QString());
    EXPECT_EQ(record.target, u"Gold tiles"_s);
    EXPECT_EQ(record.word, imaging::ResultWord::Failed);
    EXPECT_TRUE(record.time.isValid());
}

TEST_F(WorkspaceTest, DescribesNoPhotoThatIsGone)
{
    program.start();
    const panels::Panels& panels = program.panels();
    const QString path = test::PhotoBuilder().write(folder.path(u"a.jpg"_s));
    program.openFiles({path});
    ASSERT_EQ(panels.vwPhotoInfo.tfActiveFilePath.stringValue(), path);
    ASSERT_FALSE(panels.vwPhotoInfo.mTree.arrangedObjects().isEmpty());
    ASSERT_NE(panels.vwFileManagementEXIF.tfExifUserComment.stringValue(), QString());

    program.actions().send(u"hRemoveAllPhoto"_s);

    EXPECT_EQ(panels.vwPhotoInfo.tfActiveFilePath.stringValue(), QString());
    EXPECT_TRUE(panels.vwPhotoInfo.mTree.arrangedObjects().isEmpty());
    EXPECT_EQ(panels.vwFileManagementEXIF.tfExifUserComment.stringValue(), QString());
}

TEST_F(WorkspaceTest, WritesTheCommentIntoTheSelectedPhotoAndRecordsIt)
{
    program.start();
    panels::ExifPanel& panel = program.panels().vwFileManagementEXIF;
    const QString path = test::PhotoBuilder().write(folder.path(u"a.jpg"_s));
    program.openFiles({path, test::PhotoBuilder().write(folder.path(u"b.jpg"_s))});
    panel.tfExifUserComment.setStringValue(u"At sea"_s);

    EXPECT_EQ(
        program.actions().send(u"mMeta.btApplyExifUserComment"_s),
        controls::ActionRegistry::Sent::Done
    );

    EXPECT_EQ(panel.tfExifUserComment.stringValue(), u"At sea"_s);
    EXPECT_EQ(panel.mymMetaLogTableViewController.value(0, u"LogStatus"_s), u"OK"_s);
    EXPECT_EQ(panel.mymMetaLogTableViewController.value(0, u"LogIpath"_s), path);
    ASSERT_EQ(program.journal().records().size(), 1);
    const workspace::RunRecord& record = program.journal().records().first();
    EXPECT_EQ(record.function, u"btApplyExifUserComment"_s);
    EXPECT_EQ(record.source, path);
    EXPECT_EQ(record.target, path);
    EXPECT_EQ(record.word, imaging::ResultWord::Ok);
    EXPECT_TRUE(record.time.isValid());
}

TEST_F(WorkspaceTest, RecordsACommentThatCouldNotBeWritten)
{
    program.start();
    program.openFiles({folder.write(u"a.jpg"_s, "no image")});

    program.actions().send(u"btApplyExifUserComment"_s);

    ASSERT_EQ(program.journal().records().size(), 1);
    EXPECT_EQ(program.journal().records().first().word, imaging::ResultWord::Failed);
}

TEST_F(WorkspaceTest, WritesNoCommentWithoutASelectedPhoto)
{
    program.start();

    program.actions().send(u"btApplyExifUserComment"_s);

    EXPECT_TRUE(program.journal().records().isEmpty());
}

TEST_F(WorkspaceTest, AddsFilesThatAreOpenedBeforeTheWindowShows)
{
    const QString path
        = test::PhotoBuilder().size(40, 30).orientation(6).write(folder.path(u"turned.jpg"_s));

    program.openFiles({path});
    EXPECT_TRUE(program.photos().isEmpty());
    program.start();

    ASSERT_EQ(program.photos().count(), 1);
    EXPECT_EQ(program.photos().entries().first().myPhotoOrientation, u"L"_s);
    EXPECT_EQ(program.composedPreview()->width(), 30);
}

TEST_F(WorkspaceTest, DrawsThePreviewAtEachNotification)
{
    program.start();
    int drawn = 0;
    const auto subscription
        = program.panels().window.myTemplateOverlayPreview.changed.connect([&] { ++drawn; });

    for (const QString& name : notificationNames()) {
        drawn = 0;
        program.notifications().post(name);
        EXPECT_EQ(drawn, 1) << name.toStdString();
    }
    program.notifications().post(u"cbTextEntered"_s);
    EXPECT_EQ(drawn, 1);
}

TEST_F(WorkspaceTest, MovesTheFocusWithTheTabKeyOfTheWatermarkText)
{
    program.start();
    QStringList focused;
    const auto subscription
        = program.delegate().focusRequested.connect([&](const controls::Control& control) {
              focused.append(control.name());
          });

    EXPECT_FALSE(program.delegate().textViewdoCommandBySelector(u"insertNewline:"_s));
    EXPECT_FALSE(program.delegate().textViewdoCommandBySelector(u"insertTab:"_s));
    program.panels().vwShowPreview.cbShowPreview.setState(1);
    EXPECT_TRUE(program.delegate().textViewdoCommandBySelector(u"insertTab:"_s));

    EXPECT_EQ(focused, (QStringList{u"tfFontSize"_s, u"tfFontSize"_s}));
}

TEST_F(WorkspaceTest, DrawsThePreviewWithTheTabKeyOnTheTextTabOnly)
{
    program.start();
    int drawn = 0;
    const auto subscription
        = program.panels().window.myTemplateOverlayPreview.changed.connect([&] { ++drawn; });
    auto& tabs = program.panels().vwWatermark.tbvWatermarkType;

    program.delegate().textViewdoCommandBySelector(u"insertTab:"_s);
    EXPECT_EQ(drawn, 0) << "the preview is off";

    program.panels().vwShowPreview.cbShowPreview.setState(1);
    tabs.selectIndex(1);
    EXPECT_TRUE(program.delegate().textViewdoCommandBySelector(u"insertTab:"_s));
    EXPECT_EQ(drawn, 0) << "the tab of the image";

    tabs.selectIndex(0);
    EXPECT_TRUE(program.delegate().textViewdoCommandBySelector(u"insertTab:"_s));
    EXPECT_EQ(drawn, 1);
}

TEST_F(WorkspaceTest, TellsItsAlerts)
{
    program.start();
    QStringList titles;
    const auto subscription = program.alertShown.connect([&](const QString& title, const QString&) {
        titles.append(title);
    });

    program.actions().send(u"hLoadImages"_s);

    EXPECT_EQ(titles, QStringList{u"Missing destination."_s});
}

TEST_F(WorkspaceTest, ResizesFromButtonToFile)
{
    program.start();
    program.openFiles({test::PhotoBuilder().size(80, 60).write(folder.path(u"a.jpg"_s))});
    QDir().mkpath(folder.path(u"out"_s));
    panels::Panels& panels = program.panels();
    const controls::UserInput user(program.actions());

    user.pick(panels.window.pubEditPhoto, 8);
    user.type(panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal, u"40"_s);
    user.type(panels.vwMainDestination.tfImageDestinationFolder, folder.path(u"out/"_s));
    user.press(panels.window.btnProcess);

    ASSERT_EQ(program.journal().records().size(), 1);
    EXPECT_EQ(text(program.journal().records().first().word), u"OK"_s);
    EXPECT_TRUE(QFileInfo::exists(program.journal().records().first().target));
}

TEST_F(WorkspaceTest, FollowsAHexFieldWithItsColorWell)
{
    program.start();
    const controls::UserInput user(program.actions());

    user.type(program.panels().vwFraming.tfFramingHEXvalue, u"00FF00"_s);

    EXPECT_EQ(
        program.panels().vwFraming.myNSColorWellObjFraming.color(),
        (platform::graphics::Color{.red = 0, .green = 1, .blue = 0, .alpha = 1})
    );
}

TEST_F(WorkspaceTest, FindsRowsByTheNameOfTheTableAndOfItsRows)
{
    panels::Panels& panels = program.panels();

    EXPECT_EQ(
        program.rowsOf(u"myPhotosTableView"_s), &panels.vwFileManagementSorting.theApplePhotosData
    );
    EXPECT_EQ(
        program.rowsOf(u"cActionsIWMArrayController"_s),
        &panels.vwWatermark.cActionsTWMArrayController
    );
    EXPECT_EQ(program.rowsOf(u"tfScaleMaxVal"_s), nullptr);
}

TEST_F(WorkspaceTest, StartsWithoutPresetsWhereTheirFolderCannotBeMade)
{
    (void)folder.write(u"data"_s, "a file where the folder is to be");
    QStringList raised;
    const auto subscription
        = program.actions().exceptionRaised.connect([&](const platform::Exception& exception) {
              raised.append(exception.reason());
          });

    program.start();

    EXPECT_EQ(raised, QStringList{u"Presets Db failed to open."_s});
    EXPECT_EQ(program.panels().vwWatermark.cbFontList.selectedIndex(), 1);
}

TEST_F(WorkspaceTest, KnowsEveryActionThatAControlSends)
{
    for (const controls::Control* control : program.panels().controls()) {
        for (const QString& action : control->actions())
            EXPECT_TRUE(program.actions().knows(action))
                << control->name().toStdString() << " sends " << action.toStdString();
    }
}

TEST_F(WorkspaceTest, TakesEveryActionOnAnEmptyList)
{
    program.start();

    for (const QString& action : program.actions().names())
        EXPECT_NE(program.actions().send(action), controls::ActionRegistry::Sent::Unknown)
            << action.toStdString();

    EXPECT_TRUE(program.photos().isEmpty());
}

TEST_F(WorkspaceTest, RaisesNothingWhenControlsAreTouchedOnAnEmptyList)
{
    program.start();
    QStringList raised;
    const auto subscription
        = program.actions().exceptionRaised.connect([&](const platform::Exception& exception) {
              raised.append(exception.reason());
          });

    for (const controls::Control* control : program.panels().controls()) {
        for (const QString& action : control->actions())
            program.actions().send(action, {.tag = control->tag(), .control = control});
    }

    EXPECT_EQ(raised, QStringList());
}

TEST_F(WorkspaceTest, OffersNothingForAnUploadTabThatWasLeft)
{
    std::vector<workspace::Function> functions = workspace::functions();
    for (workspace::Function& function : functions) {
        if (auto* run = std::get_if<workspace::InPlaceRun>(&function.run))
            run->read = [](const auto&, const QString&) {
                return [] { return imaging::ResultWord::Ok; };
            };
    }
    workspace::Workspace own{
        {.chooser = chooser, .desktop = desktop, .defaults = defaults},
        workspace::Functions(functions)};
    own.start();
    own.openFiles(
        {test::PhotoBuilder().size(40, 30).write(folder.path(u"wide.jpg"_s)),
         test::PhotoBuilder().size(30, 40).write(folder.path(u"tall.jpg"_s))}
    );
    own.panels().vwApplyOn.pubPhotoOrientation.selectIndex(1);
    controls::UserInput user(own.actions());
    auto& functionsOfFiles = own.panels().window.pubFileManagementSelect;
    int told = 0;
    const auto subscription = own.functionSelected().connect([&told] { ++told; });

    user.press(own.panels().window.btnFileManagement);
    user.pick(own.panels().vwFileManagementSorting.mySortTabView, 2);
    EXPECT_EQ(own.runOffer(), workspace::RunOffer::Run);
    EXPECT_EQ(own.photosOfRun(), QStringList{folder.path(u"wide.jpg"_s)});
    EXPECT_EQ(told, 2);

    user.pick(functionsOfFiles, 1);
    EXPECT_EQ(own.photosOfRun(), QStringList{folder.path(u"wide.jpg"_s)});

    user.pick(functionsOfFiles, 0);
    EXPECT_EQ(own.runOffer(), workspace::RunOffer::Nothing);
    EXPECT_EQ(own.photosOfRun(), QStringList());
}
