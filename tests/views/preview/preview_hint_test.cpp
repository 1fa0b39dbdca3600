// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <support/text_printing.h>
#include <views/preview/preview_hint.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

class PreviewHint : public testing::Test
{
protected:
    PreviewHint()
    {
        panels.window.dvVCUiMainPropertySelect.replaceViews(panels.window.pubEditPhoto.name());
    }

    [[nodiscard]] QString hint() const { return views::previewHint(panels, photos); }

    void addEntry(int isNoPhoto)
    {
        workspace::cCollectionViewItem item;
        item.myRenameSelect = isNoPhoto;
        photos.append(item);
    }

    panels::Panels panels;
    workspace::PhotoList photos;
};

} // namespace

TEST_F(PreviewHint, SaysWhatToDo)
{
    EXPECT_EQ(hint(), u"Your photo shows here"_s);
    addEntry(0);
    EXPECT_EQ(hint(), u"Select a photo to see it here"_s);
}

TEST_F(PreviewHint, SaysWhatIsWrongWithTheSelectedFile)
{
    addEntry(0);
    addEntry(1);
    photos.select(0);
    EXPECT_EQ(hint(), u"This photo can't be read"_s);
    photos.select(1);
    EXPECT_EQ(hint(), u"This file is not a photo"_s);
}

TEST_F(PreviewHint, SaysThatAFunctionShowsNoPhoto)
{
    addEntry(0);
    photos.select(0);
    panels.window.dvVCUiMainPropertySelect.removeAllViews();
    EXPECT_TRUE(hint().startsWith(u"Choose a template"_s));

    panels.window.dvVCUiMainPropertySelect.replaceViews(panels.window.pubFileManagementSelect.name()
    );
    panels.window.pubFileManagementSelect.selectItemAtIndex(3);
    EXPECT_TRUE(hint().startsWith(u"Conversion"_s));
}
