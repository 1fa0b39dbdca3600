// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/functions/function_id.h>
#include <workspace/functions/functions.h>
#include <workspace/functions/shown_function.h>
#include <workspace/run/run_offer.h>

#include <controls/action_registry.h>
#include <panels/panels.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace brenvaldo;
using workspace::RunOffer;
namespace functionId = workspace::functionId;

namespace {

class RunOfferTest : public testing::Test
{
protected:
    [[nodiscard]] RunOffer offerOf(const QString& function) const
    {
        return workspace::runOffer(functions.withId(function), actions);
    }

    void pickFile(int index)
    {
        panels.window.dvVCUiMainPropertySelect.replaceViews(u"pubFileManagementSelect"_s);
        panels.window.pubFileManagementSelect.selectItemAtIndex(index);
    }

    void pickEdit(int index)
    {
        panels.window.dvVCUiMainPropertySelect.replaceViews(u"pubEditPhoto"_s);
        panels.window.pubEditPhoto.selectItemAtIndex(index);
    }

    panels::Panels panels;
    workspace::Functions functions{workspace::functions()};
    controls::ActionRegistry actions;
};

} // namespace

TEST_F(RunOfferTest, RunsFunctionsWhoseOperationIsThere)
{
    const auto faces = std::find_if(functions.begin(), functions.end(), [](const auto& function) {
        return function.id == QLatin1String("faces");
    });
    faces->run = workspace::PhotoRun{};
    EXPECT_EQ(offerOf(u"faces"_s), RunOffer::ComesLater);

    faces->run = workspace::PhotoRun{
        .start = [](const auto&) { return [](const auto&) { return imaging::ResultWord::Ok; }; }};
    EXPECT_EQ(offerOf(u"faces"_s), RunOffer::Run);
    EXPECT_EQ(offerOf(functionId::htmlExport), RunOffer::Run);
}

TEST_F(RunOfferTest, LeavesFunctionsWithButtonsOfTheirOwnToTheirButtons)
{
    EXPECT_EQ(offerOf(functionId::manSort), RunOffer::ComesLater);
    EXPECT_EQ(offerOf(functionId::batchSort), RunOffer::ComesLater);
    EXPECT_EQ(offerOf(functionId::batchQR), RunOffer::ComesLater);

    actions.add(u"cGUIcontrols"_s, u"hCopyFileToFolder"_s, [](const auto&) {});
    actions.add(u"DVFileSorterRoutine"_s, u"hSortFiles"_s, [](const auto&) {});
    actions.add(u"cQRcode"_s, u"hGenerateCode"_s, [](const auto&) {});

    EXPECT_EQ(offerOf(functionId::manSort), RunOffer::Nothing);
    EXPECT_EQ(offerOf(functionId::batchSort), RunOffer::Message);
    EXPECT_EQ(offerOf(functionId::batchQR), RunOffer::Message);
}

TEST_F(RunOfferTest, KnowsTheFunctionOfThePanelThatIsShown)
{
    pickEdit(0);
    EXPECT_EQ(workspace::shownFunction(panels), functionId::textWM);
    panels.vwWatermark.tbvWatermarkType.selectIndex(1);
    EXPECT_EQ(workspace::shownFunction(panels), functionId::imageWM);
    pickEdit(8);
    EXPECT_EQ(workspace::shownFunction(panels), u"resizePhotos"_s);

    const QList<QLatin1String> sorting{
        functionId::manSort, functionId::batchSort, functionId::batchUploadPhotos};
    for (int tab = 0; tab < sorting.size(); ++tab) {
        pickFile(0);
        panels.vwFileManagementSorting.mySortTabView.selectIndex(tab);
        EXPECT_EQ(workspace::shownFunction(panels), sorting.at(tab));
    }
    pickFile(3);
    EXPECT_EQ(workspace::shownFunction(panels), functionId::batchFileConvert);

    panels.window.dvVCUiMainPropertySelect.removeAllViews();
    EXPECT_EQ(workspace::shownFunction(panels), functionId::htmlExport);
}
