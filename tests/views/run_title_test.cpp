// SPDX-License-Identifier: GPL-3.0-or-later
#include <support/text_printing.h>
#include <views/run_title.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

workspace::cCollectionViewItem entry(const QString& orientation, int ticked = 1, int isNoPhoto = 0)
{
    workspace::cCollectionViewItem item;
    item.myPhotoOrientation = orientation;
    item.myPhotoSelect = ticked;
    item.myRenameSelect = isNoPhoto;
    return item;
}

class RunTitle : public testing::Test
{
protected:
    RunTitle()
    {
        photos.append(entry(u"L"_qs));
        photos.append(entry(u"P"_qs));
        photos.append(entry(u"P"_qs, 0));
        photos.append(entry(u"S"_qs, 1, 1));
    }

    panels::Panels panels;
    workspace::PhotoList photos;
};

} // namespace

TEST_F(RunTitle, CountsTickedPhotos) { EXPECT_EQ(views::photosOfRun(panels, photos), 2); }

TEST_F(RunTitle, CountsByTheApplyOnFilterWhileThatIsShown)
{
    panels.vwApplyOn.pubPhotoOrientation.selectItemAtIndex(2);
    EXPECT_EQ(views::photosOfRun(panels, photos), 2);

    panels.window.dvVCUiApplyOnPropertyView.addView(panels.vwApplyOn.name());

    EXPECT_EQ(views::photosOfRun(panels, photos), 1);
}

TEST_F(RunTitle, CountsFilesOfAnyKindForRenaming)
{
    panels.window.dvVCUiMainPropertyView.replaceViews(panels.vwFileManagementRename.name());

    EXPECT_EQ(views::photosOfRun(panels, photos), 3);
}

TEST(RunTitleText, NamesTheCount)
{
    EXPECT_EQ(views::runTitle(0), u"Process"_qs);
    EXPECT_EQ(views::runTitle(1), u"Process 1 photo"_qs);
    EXPECT_EQ(views::runTitle(16), u"Process 16 photos"_qs);
}
