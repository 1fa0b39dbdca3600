// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

using namespace brenvaldo;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FunctionSelection : public test::ControllerTest
{
protected:
    void pickEdit(int index) { user.pick(panels.window.pubEditPhoto, index); }
    void pickManagement(int index) { user.pick(panels.window.pubFileManagementSelect, index); }
    void pickSortTab(int index) { user.pick(panels.vwFileManagementSorting.mySortTabView, index); }

    [[nodiscard]] QStringList holderViews() const
    {
        const panels::WindowControls& window = panels.window;
        QStringList views;
        for (const controls::Holder* holder :
             {&window.dvVCUiMainPropertyView,
              &window.dvVCUiPreviewPropertyView,
              &window.dvVCUiApplyOnPropertyView,
              &window.dvVCUiFileTypePropertyView,
              &window.dvVCUiMainDestinationPropertyView})
            views.append(holder->views().join(u','));
        return views;
    }

    [[nodiscard]] bool showsPresets() const
    {
        return !panels.window.btnPresets.isHidden() && !panels.window.btnPresetsHelp.isHidden();
    }
};

} // namespace

TEST_F(FunctionSelection, StartsWithTheTextWatermarkAndAllHoldersFilled)
{
    guiControls.hSetInitialView();

    EXPECT_EQ(function(), u"textWM"_s);
    EXPECT_EQ(panels.window.dvVCUiMainPropertySelect.views(), QStringList{u"pubEditPhoto"_s});
    EXPECT_EQ(
        holderViews(),
        (QStringList{
            u"vwWatermark"_s,
            u"vwShowPreview"_s,
            u"vwApplyOn"_s,
            u"vwFileType"_s,
            u"vwMainDestination"_s})
    );
    EXPECT_EQ(panels.window.btnEditPhoto.image(), u"SelectMainTabView1.png"_s);
    EXPECT_EQ(panels.window.btnFileManagement.image(), u"bgBlue.png"_s);
    EXPECT_EQ(panels.window.btnExportHtml.image(), u"bgBlue.png"_s);
    EXPECT_TRUE(showsPresets());
}

TEST_F(FunctionSelection, StoresTheIdOfEachEditFunction)
{
    const QStringList ids{
        u"textWM"_s,
        u"addTint"_s,
        u"framing"_s,
        u"roundings"_s,
        u"profileConversion"_s,
        u"faces"_s,
        u"rotatePhotos"_s,
        u"filters"_s,
        u"resizePhotos"_s,
        u"cropPhotos"_s};

    for (int index = 0; index < ids.size(); ++index) {
        pickEdit(index);
        EXPECT_EQ(function(), ids.at(index));
    }
}

TEST_F(FunctionSelection, FollowsTheTabOfTheWatermarkPanel)
{
    user.pick(panels.vwWatermark.tbvWatermarkType, 1);
    EXPECT_EQ(function(), u"imageWM"_s);
    pickEdit(1);

    pickEdit(0);
    EXPECT_EQ(function(), u"imageWM"_s);

    user.pick(panels.vwWatermark.tbvWatermarkType, 0);
    EXPECT_EQ(function(), u"textWM"_s);
}

TEST_F(FunctionSelection, StoresTheIdOfEachFileManagementFunction)
{
    const QStringList ids{
        u"manSort"_s, u"batchExifUC"_s, u"fileRenaming"_s, u"batchFileConvert"_s, u"batchQR"_s};

    for (int index = 0; index < ids.size(); ++index) {
        pickManagement(index);
        EXPECT_EQ(function(), ids.at(index));
    }
}

TEST_F(FunctionSelection, LeavesThePresetButtonsHiddenFromConversionToExif)
{
    pickManagement(3);
    EXPECT_FALSE(showsPresets());

    pickManagement(1);

    EXPECT_FALSE(showsPresets());
}

TEST_F(FunctionSelection, ShowsThePresetButtonsForAnyOtherFunction)
{
    for (const int index : {0, 2, 4}) {
        pickManagement(3);
        pickManagement(index);
        EXPECT_TRUE(showsPresets()) << index;
    }
    pickManagement(3);

    pickEdit(5);

    EXPECT_TRUE(showsPresets());
}

TEST_F(FunctionSelection, LeavesFileTypeAndDestinationToAProfileConversionAfterFaces)
{
    pickEdit(5);

    pickEdit(4);

    EXPECT_EQ(
        holderViews(),
        (QStringList{
            u"vwProfileConversion"_s,
            u"vwShowPreview"_s,
            u"vwApplyOn"_s,
            u"vwFileType"_s,
            u"vwMainDestination"_s})
    );
}

TEST_F(FunctionSelection, LeavesTheHoldersOfAProfileConversionEmptyAfterExif)
{
    panels.vwMainDestination.tfImageDestinationFolder.setStringValue(u"/out/"_s);
    pickManagement(1);

    pickEdit(4);

    EXPECT_EQ(holderViews().mid(3), (QStringList{QString(), QString()}));
    EXPECT_EQ(panels.vwMainDestination.tfImageDestinationFolder.stringValue(), u"/out/"_s);
}

TEST_F(FunctionSelection, ListsTheProfilesForAProfileConversionAlone)
{
    int calls = 0;
    row("profileConversion").whenShown = [&](const auto&) { ++calls; };

    for (int index = 0; index < 10; ++index)
        pickEdit(index);

    EXPECT_EQ(calls, 1);
}

TEST_F(FunctionSelection, TurnsThePreviewOff)
{
    controls::CheckBox& preview = panels.vwShowPreview.cbShowPreview;

    preview.setState(1);
    pickEdit(2);
    EXPECT_FALSE(preview.isOn());

    preview.setState(1);
    pickManagement(2);
    EXPECT_FALSE(preview.isOn());

    preview.setState(1);
    user.press(panels.window.btnEditPhoto);
    EXPECT_FALSE(preview.isOn());

    preview.setState(1);
    user.press(panels.window.btnFileManagement);
    EXPECT_FALSE(preview.isOn());
}

TEST_F(FunctionSelection, KeepsThePreviewForATabAndForTheGallery)
{
    controls::CheckBox& preview = panels.vwShowPreview.cbShowPreview;
    preview.setState(1);

    pickSortTab(1);
    EXPECT_TRUE(preview.isOn());

    user.press(panels.window.btnExportHtml);
    EXPECT_TRUE(preview.isOn());
}

TEST_F(FunctionSelection, FollowsTheTabsOfSorting)
{
    pickManagement(0);
    const controls::Holder& destination = panels.window.dvVCUiMainDestinationPropertyView;

    pickSortTab(1);
    EXPECT_EQ(function(), u"batchSort"_s);
    EXPECT_THAT(destination.views(), ElementsAre(u"vwMainDestination"_s));

    pickSortTab(2);
    EXPECT_EQ(function(), u"batchUploadPhotos"_s);
    EXPECT_THAT(destination.views(), IsEmpty());

    pickSortTab(0);
    EXPECT_EQ(function(), u"manSort"_s);
    EXPECT_THAT(destination.views(), IsEmpty());
}

TEST_F(FunctionSelection, OpensSortingInBatchModeWhenItsTabIsSelected)
{
    panels.vwFileManagementSorting.mySortTabView.selectIndex(1);

    pickManagement(0);

    EXPECT_EQ(function(), u"batchSort"_s);
    EXPECT_THAT(
        panels.window.dvVCUiMainDestinationPropertyView.views(), ElementsAre(u"vwMainDestination"_s)
    );
}

TEST_F(FunctionSelection, ShowsTheGallery)
{
    int loaded = -1;
    neighbours.hLoadTemplatePreset = [&](int index) { loaded = index; };
    panels.vwHtmlExport.pubPhotoGalleryModel.selectIndex(3);
    pickManagement(3);
    ASSERT_FALSE(showsPresets());

    user.press(panels.window.btnExportHtml);

    EXPECT_EQ(function(), u"htmlExport"_s);
    EXPECT_THAT(panels.window.dvVCUiMainPropertySelect.views(), IsEmpty());
    EXPECT_EQ(
        holderViews(),
        (QStringList{
            u"vwHtmlExport"_s, QString(), u"vwApplyOn"_s, QString(), u"vwMainDestination"_s})
    );
    EXPECT_TRUE(showsPresets());
    EXPECT_EQ(loaded, 3);
    EXPECT_EQ(panels.vwHtmlExport.tfHTMLfileName.stringValue(), u"myFourthPhotoGallery"_s);
}

TEST_F(FunctionSelection, PutsTheFunctionsOfASectionIntoTheWindow)
{
    user.press(panels.window.btnFileManagement);
    EXPECT_THAT(
        panels.window.dvVCUiMainPropertySelect.views(), ElementsAre(u"pubFileManagementSelect"_s)
    );
    EXPECT_EQ(panels.window.btnFileManagement.image(), u"SelectMainTabView1.png"_s);
    EXPECT_EQ(panels.window.btnEditPhoto.image(), u"bgBlue.png"_s);

    user.press(panels.window.btnEditPhoto);
    EXPECT_THAT(panels.window.dvVCUiMainPropertySelect.views(), ElementsAre(u"pubEditPhoto"_s));
    EXPECT_EQ(panels.window.btnEditPhoto.image(), u"SelectMainTabView1.png"_s);
}

TEST_F(FunctionSelection, SwapsTheFieldsOfResizing)
{
    panels::ResizePanel& resize = panels.vwResizePhotos;

    user.pick(resize.pubScaleType, 1);
    EXPECT_THAT(resize.dvVCUiResizeMainView.views(), ElementsAre(u"dvVCUiScaleFixView"_s));

    user.pick(resize.pubScaleType, 0);
    EXPECT_THAT(resize.dvVCUiResizeMainView.views(), ElementsAre(u"dvVCUiScaleMaxView"_s));
}

TEST_F(FunctionSelection, StartsResizingWithTheMaximumFieldsWhateverTheType)
{
    panels::ResizePanel& resize = panels.vwResizePhotos;
    user.pick(resize.pubScaleType, 1);

    pickEdit(8);

    EXPECT_THAT(resize.dvVCUiResizeMainView.views(), ElementsAre(u"dvVCUiScaleMaxView"_s));
}

TEST_F(FunctionSelection, SwapsTheFieldsOfCropping)
{
    panels::CropPanel& crop = panels.vwCropPhotos;

    user.pick(crop.pubCropType, 1);
    EXPECT_THAT(crop.dvVCUiCropTypeView.views(), ElementsAre(u"dvVCUiCropMinusView"_s));

    user.pick(crop.pubCropType, 0);
    EXPECT_THAT(crop.dvVCUiCropTypeView.views(), ElementsAre(u"dvVCUiCropWxHView"_s));

    user.pick(crop.pubCropType, 2);
    pickEdit(9);
    EXPECT_THAT(crop.dvVCUiCropTypeView.views(), ElementsAre(u"dvVCUiCropWxHView"_s));
}

TEST_F(FunctionSelection, PutsThePlaceOfACropBesideTheFieldsOfResizing)
{
    panels::CropPanel& crop = panels.vwCropPhotos;
    pickEdit(8);

    user.pick(crop.pubCropType, 1);

    EXPECT_THAT(
        panels.vwResizePhotos.dvVCUiResizeMainView.views(),
        ElementsAre(u"dvVCUiScaleMaxView"_s, u"dvVCUiCropPositionView"_s)
    );
    EXPECT_TRUE(panels.isShown(crop.dvVCUiCropPositionView));
}

TEST_F(FunctionSelection, DrawsThePreviewOfAnotherCropTypeWhileItIsOn)
{
    int crops = 0;
    row("cropPhotos").preview = countingPreview(crops);
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    pickEdit(9);

    user.pick(panels.vwCropPhotos.pubCropType, 1);
    EXPECT_EQ(crops, 0);

    panels.vwShowPreview.cbShowPreview.setState(1);
    user.pick(panels.vwCropPhotos.pubCropType, 2);
    EXPECT_EQ(crops, 1);
}

TEST_F(FunctionSelection, DrawsNoPreviewOfAnotherCropTypeWhileItIsOff)
{
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    pickEdit(9);
    panels.window.myTemplatePreview.clear();

    user.pick(panels.vwCropPhotos.pubCropType, 1);

    EXPECT_FALSE(showsPhoto());
}

TEST_F(FunctionSelection, ShowsThePlainPhotoAgainWhenAnotherFunctionIsChosen)
{
    int twins = 0;
    row("framing").preview = countingPreview(twins);
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    const auto showFrame = [this] {
        pickEdit(2);
        user.tick(panels.vwShowPreview.cbShowPreview, 1);
        return showsOverlay() && !showsPhoto();
    };

    ASSERT_TRUE(showFrame());
    pickEdit(1);
    EXPECT_TRUE(showsPhoto());
    EXPECT_FALSE(showsOverlay());

    ASSERT_TRUE(showFrame());
    pickManagement(2);
    EXPECT_TRUE(showsPhoto());
    EXPECT_FALSE(showsOverlay());
}

TEST_F(
    FunctionSelection, ShowsThePresetButtonsAndChangesNothingElseAtAnIndexOutsideOfTheEditFunctions
)
{
    pickManagement(3);
    const QStringList before = holderViews();
    panels.window.pubEditPhoto.selectItemAtIndex(-1);

    guiControls.hGetMainEditFunction();

    EXPECT_EQ(function(), u"batchFileConvert"_s);
    EXPECT_EQ(holderViews(), before);
    EXPECT_TRUE(showsPresets());
}

TEST_F(FunctionSelection, ChangesNothingAtAnIndexOutsideOfTheFileManagement)
{
    pickManagement(3);
    const QStringList before = holderViews();
    panels.window.pubFileManagementSelect.selectItemAtIndex(-1);
    panels.vwShowPreview.cbShowPreview.setState(1);

    guiControls.hGetMainFileManagementFunction();

    EXPECT_EQ(function(), u"batchFileConvert"_s);
    EXPECT_EQ(holderViews(), before);
    EXPECT_FALSE(showsPresets());
    EXPECT_TRUE(panels.vwShowPreview.cbShowPreview.isOn());
}

TEST_F(FunctionSelection, SelectsCroppingByATextEditInOneOfItsFields)
{
    photos.append(entry(u"/gone/a.jpg"_s, u"L"_s));
    select("framing");

    user.type(panels.vwCropPhotos.dvVCUiCropPositionView.tfYcropOffset, u"12"_s);

    EXPECT_EQ(panels.vwCropPhotos.dvVCUiCropPositionView.tfYcropOffset.tag(), 75);
    EXPECT_EQ(function(), u"cropPhotos"_s);
}

TEST_F(FunctionSelection, DrawsThePreviewOfTheFunctionThatATextEditSelects)
{
    int crops = 0;
    row("cropPhotos").preview = countingPreview(crops);
    collectionView.hDroppedPhotos({photo(u"a.jpg"_s)});
    select("framing");
    panels.vwShowPreview.cbShowPreview.setState(1);

    user.type(panels.vwCropPhotos.dvVCUiCropPositionView.tfYcropOffset, u"12"_s);

    EXPECT_EQ(crops, 1);
    EXPECT_TRUE(showsOverlay());
}

TEST_F(FunctionSelection, IgnoresTextEditsWithoutPhotos)
{
    select("framing");

    user.type(panels.vwCropPhotos.dvVCUiCropPositionView.tfYcropOffset, u"12"_s);

    EXPECT_EQ(function(), u"framing"_s);
}

TEST_F(FunctionSelection, IgnoresTextEditsWhileAFileThatIsNoPhotoIsSelected)
{
    photos.append(nonPhoto(u"/gone/a.txt"_s));
    photos.select(0);
    select("framing");

    user.type(panels.vwAddTint.tfAddTintOpacity, u"12"_s);

    EXPECT_EQ(function(), u"framing"_s);
}

TEST_F(FunctionSelection, IgnoresTextEditsInHexFields)
{
    photos.append(entry(u"/gone/a.jpg"_s, u"L"_s));
    select("framing");

    collectionView.controlTextDidEndEditing(panels.vwAddTint.tfAddTintHexValue.tag());

    EXPECT_EQ(function(), u"framing"_s);
}
