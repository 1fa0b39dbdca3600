// SPDX-License-Identifier: GPL-3.0-or-later
#include "../silent_tool_box.h"

#include <platform/foundation/literals.h>
#include <workspace/functions/functions.h>
#include <workspace/functions/preset_records.h>
#include <workspace/preview/photo_preview.h>

#include <gallery/responsive_design.h>
#include <imaging/dv_image_handling.h>
#include <metadata/mmeta.h>
#include <panels/panels.h>
#include <platform/foundation/paths.h>
#include <platform/services/folder_library.h>
#include <services/photos_link.h>
#include <watermark/dv_watermark.h>

#include <support/text_printing.h>

#include <gmock/gmock.h>

#include <map>

using namespace brenvaldo;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

const workspace::Functions& rows()
{
    static const workspace::Functions functions(workspace::functions());
    return functions;
}

template <class Condition>
QStringList idsOf(const Condition& condition)
{
    QStringList ids;
    for (const workspace::Function& row : rows()) {
        if (condition(row))
            ids.append(row.id);
    }
    return ids;
}

QString processOf(const presets::PresetRecord* record)
{
    return record ? record->process + u' ' + record->action : u"none"_s;
}

} // namespace

TEST(Functions, StandInTheOrderOfTheCatalogue)
{
    EXPECT_THAT(
        idsOf([](const auto&) { return true; }),
        ElementsAre(
            u"textWM"_s,
            u"imageWM"_s,
            u"addTint"_s,
            u"framing"_s,
            u"roundings"_s,
            u"profileConversion"_s,
            u"faces"_s,
            u"rotatePhotos"_s,
            u"filters"_s,
            u"resizePhotos"_s,
            u"cropPhotos"_s,
            u"manSort"_s,
            u"batchSort"_s,
            u"batchUploadPhotos"_s,
            u"batchExifUC"_s,
            u"fileRenaming"_s,
            u"batchFileConvert"_s,
            u"batchQR"_s,
            u"htmlExport"_s
        )
    );
}

TEST(Functions, HaveATitleAndAPanelOfTheirOwnOrOneTabOfIt)
{
    const panels::Panels panels;
    std::map<QString, int> titles;
    for (const workspace::Function& row : rows()) {
        ++titles[QString::fromLatin1(row.title)];
        EXPECT_NE(panels.view(row.holders.mainView), nullptr) << row.id.data();
    }
    EXPECT_EQ(titles.size(), 19U);
}

TEST(Functions, ArePutIntoOnePlaceOfTheirSectionUnlessTabsTellThemApart)
{
    std::map<std::pair<workspace::Section, int>, int> withoutTab;
    for (const workspace::Function& row : rows()) {
        if (!row.choice.isTabSelected)
            ++withoutTab[{row.choice.section, row.choice.index}];
    }
    for (const auto& [place, count] : withoutTab)
        EXPECT_EQ(count, 1) << place.second;
    EXPECT_EQ(withoutTab.size(), 14U);
}

TEST(Functions, StandAtEveryIndexOfThePopUps)
{
    const panels::Panels panels;
    using workspace::Section;
    for (int index = 0; index < panels.window.pubEditPhoto.count(); ++index)
        EXPECT_NE(rows().at(Section::EditPhoto, index), nullptr) << index;
    for (int index = 0; index < panels.window.pubFileManagementSelect.count(); ++index)
        EXPECT_NE(rows().at(Section::FileManagement, index), nullptr) << index;
}

TEST(Functions, ShareNoFieldTag)
{
    for (const int tag : {0, 51, 71, 81, 101, 151, 200, 300, 400}) {
        const auto owners = idsOf([tag](const auto& row) { return row.fieldTags.contain(tag); });
        EXPECT_EQ(owners.size(), tag == 0 ? 0 : 1) << tag;
    }
    for (int tag = 0; tag < 1000; ++tag)
        EXPECT_LE(idsOf([tag](const auto& row) { return row.fieldTags.contain(tag); }).size(), 1);
}

TEST(Functions, OfThisVersionAreThese)
{
    EXPECT_THAT(
        idsOf([](const auto& row) { return workspace::hasOperation(row.run); }),
        UnorderedElementsAre(
            u"textWM"_s,
            u"imageWM"_s,
            u"addTint"_s,
            u"framing"_s,
            u"roundings"_s,
            u"profileConversion"_s,
            u"faces"_s,
            u"rotatePhotos"_s,
            u"filters"_s,
            u"resizePhotos"_s,
            u"cropPhotos"_s,
            u"batchUploadPhotos"_s,
            u"batchExifUC"_s,
            u"fileRenaming"_s,
            u"batchFileConvert"_s,
            u"htmlExport"_s
        )
    );
    EXPECT_THAT(
        idsOf([](const auto& row) { return static_cast<bool>(row.preview); }),
        UnorderedElementsAre(
            u"textWM"_s,
            u"imageWM"_s,
            u"addTint"_s,
            u"framing"_s,
            u"roundings"_s,
            u"profileConversion"_s,
            u"rotatePhotos"_s,
            u"filters"_s,
            u"cropPhotos"_s
        )
    );
}

TEST(Functions, ThatTakeThePlainPhotoAwayAreThese)
{
    EXPECT_THAT(
        idsOf([](const auto& row) { return row.photoBelow == workspace::PhotoBelow::Goes; }),
        UnorderedElementsAre(u"framing"_s, u"roundings"_s, u"rotatePhotos"_s, u"filters"_s)
    );
}

TEST(Functions, KeepTheirSettingsInTheirOwnRecord)
{
    panels::Panels panels;
    imaging::DVImageHandling imageHandling;
    watermark::DVWatermark mark{
        {.panel = panels.vwWatermark,
         .bar = panels.window.myProgressBar,
         .outputName = platform::lastPathComponent,
         .previewPhoto = [](const QString&) { return std::nullopt; }}};
    workspace::PreviewPhotos previewPhotos;
    test::SilentToolBox tools;
    metadata::mMeta meta{panels};
    gallery::cResponsiveDesign responsiveDesign{
        {.panel = panels.vwHtmlExport,
         .bar = panels.window.myProgressBar,
         .imageHandling = imageHandling,
         .meta = meta,
         .desktop = tools.desktop,
         .tickedPhotos = {},
         .hAlertWindow = {},
         .closeAlert = {},
         .showPicture = {}}};
    platform::services::FolderLibrary photoLibrary(tools.folder.path(u"library"_s));
    services::cPhotosLink photosLink(panels, photoLibrary);
    const workspace::Subsystems subsystems{
        .panels = panels,
        .imageHandling = imageHandling,
        .watermark = mark,
        .gallery = responsiveDesign,
        .previewPhotos = previewPhotos,
        .toolBox = tools.box,
        .meta = meta,
        .photosLink = photosLink};
    const workspace::PresetRecords records(rows(), subsystems);

    const std::map<QString, QString> expected{
        {u"textWM"_s, u"TextWM Watermark"_s},
        {u"imageWM"_s, u"ImageWM Watermark"_s},
        {u"addTint"_s, u"addTint Edit"_s},
        {u"framing"_s, u"framing Edit"_s},
        {u"roundings"_s, u"roundings Edit"_s},
        {u"profileConversion"_s, u"profileConversion Edit"_s},
        {u"rotatePhotos"_s, u"rotatePhotos Edit"_s},
        {u"resizePhotos"_s, u"resizePhotos Edit"_s},
        {u"cropPhotos"_s, u"cropPhotos Edit"_s},
        {u"filters"_s, u"filters Edit"_s},
        {u"manSort"_s, u"manSort FileManagement"_s},
        {u"batchSort"_s, u"batchSort FileManagement"_s},
        {u"batchUploadPhotos"_s, u"batchUploadPhotos FileManagement"_s},
        {u"batchExifUC"_s, u"addExif FileManagement"_s},
        {u"batchArchive"_s, u"batchArchive FileManagement"_s},
        {u"htmlExport"_s, u"htmlExport photoGallery"_s},
        {u"faces"_s, u"none"_s},
        {u"batchFileConvert"_s, u"none"_s},
        {u"unknown"_s, u"none"_s},
    };
    for (const auto& [function, process] : expected)
        EXPECT_EQ(processOf(records.recordOf(function)), process) << function.toStdString();

    const QStringList renamings{
        u"Strip"_s, u"Replace"_s, u"Prefix"_s, u"Postfix"_s, u"Numbering"_s};
    for (int tab = 0; tab < renamings.size(); ++tab) {
        panels.vwFileManagementRename.tbvFileRenaming.selectIndex(tab);
        EXPECT_EQ(
            processOf(records.recordOf(u"fileRenaming"_s)), renamings.at(tab) + u" FileManagement"_s
        );
    }
}

TEST(PresetRecords, FollowTheTabOfAFunctionWithSeveral)
{
    static int loads = 0;
    const auto make = [](panels::Panels& panels) {
        return presets::PresetRecord{
            .process = panels.window.pubEditPhoto.name(),
            .action = u"Test"_s,
            .before = presets::PresetRecord::Before::Nothing,
            .fields = {}};
    };
    const auto isFirstTab = [](const panels::Panels& panels) {
        return panels.window.pubEditPhoto.indexOfSelectedItem() == 0;
    };
    const auto isSecondTab = [](const panels::Panels& panels) {
        return panels.window.pubEditPhoto.indexOfSelectedItem() == 1;
    };
    panels::Panels panels;
    imaging::DVImageHandling imageHandling;
    watermark::DVWatermark mark{
        {.panel = panels.vwWatermark,
         .bar = panels.window.myProgressBar,
         .outputName = platform::lastPathComponent,
         .previewPhoto = [](const QString&) { return std::nullopt; }}};
    workspace::PreviewPhotos previewPhotos;
    test::SilentToolBox tools;
    metadata::mMeta meta{panels};
    gallery::cResponsiveDesign responsiveDesign{
        {.panel = panels.vwHtmlExport,
         .bar = panels.window.myProgressBar,
         .imageHandling = imageHandling,
         .meta = meta,
         .desktop = tools.desktop,
         .tickedPhotos = {},
         .hAlertWindow = {},
         .closeAlert = {},
         .showPicture = {}}};
    platform::services::FolderLibrary photoLibrary(tools.folder.path(u"library"_s));
    services::cPhotosLink photosLink(panels, photoLibrary);
    const workspace::Subsystems subsystems{
        .panels = panels,
        .imageHandling = imageHandling,
        .watermark = mark,
        .gallery = responsiveDesign,
        .previewPhotos = previewPhotos,
        .toolBox = tools.box,
        .meta = meta,
        .photosLink = photosLink};
    workspace::Functions functions({*rows().withId(u"fileRenaming"_s)});
    functions.begin()->presets
        = {{.make = make, .applies = isFirstTab},
           {.make = make, .applies = isSecondTab, .afterLoad = [](const auto&) { ++loads; }}};
    const workspace::PresetRecords records(functions, subsystems);

    const auto* first = records.recordOf(u"fileRenaming"_s);
    panels.window.pubEditPhoto.selectIndex(1);
    const auto* second = records.recordOf(u"fileRenaming"_s);
    panels.window.pubEditPhoto.selectIndex(2);

    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
    EXPECT_FALSE(first->afterLoad);
    second->afterLoad();
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(records.recordOf(u"fileRenaming"_s), nullptr);
}
