// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/action_file.h>

#include <platform/foundation/literals.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

class ActionFile : public testing::Test
{
protected:
    [[nodiscard]] QString text(int tab)
    {
        panel.tbvFileRenaming.selectIndex(tab);
        return files::actionFile(panel).text;
    }

    panels::RenamePanel panel;
};

} // namespace

TEST_F(ActionFile, HoldsEachSettingOfStrip)
{
    panel.tfStripNumberOfChar.setStringValue(u"a"_s);
    panel.pubStripFromLeftRight.selectIndex(1);
    panel.tfStripChar.setStringValue(u"b"_s);
    panel.tfStripCharStart.setStringValue(u"c"_s);
    panel.tfStripCharStop.setStringValue(u"d"_s);
    panel.tfStripTextFrag.setStringValue(u"e"_s);
    panel.pubStripRemPosition.selectIndex(3);
    panel.pubStripCharAllowed.selectIndex(2);
    panel.btStripPreserveExtension.setState(1);

    EXPECT_EQ(text(0), u"Strip\tBrenvaldo9\ta\t1\tb\tc\td\te\t3\t2\t1"_s);

    panel.btStripPreserveExtension.setState(0);
    EXPECT_EQ(text(0), u"Strip\tBrenvaldo9\ta\t1\tb\tc\td\te\t3\t2\t0"_s);
}

TEST_F(ActionFile, HoldsEachSettingOfReplace)
{
    panel.pubReplaceCase.selectIndex(3);
    panel.tfReplaceCharStart.setStringValue(u"a"_s);
    panel.tfReplaceCharStop.setStringValue(u"b"_s);
    panel.tfReplaceCharBy.setStringValue(u"c"_s);
    panel.tfReplaceFindText.setStringValue(u"d"_s);
    panel.tfReplaceTextBy.setStringValue(u"e"_s);

    EXPECT_EQ(text(1), u"Replace\tBrenvaldo9\t3\ta\tb\tc\td\te"_s);
}

TEST_F(ActionFile, HoldsEachSettingOfPrefix)
{
    panel.tfPrefixToAdd.setStringValue(u"a"_s);
    panel.cbxPrefixMetaData.setTitles({QString(), u"FNumber"_s});
    panel.cbxPrefixMetaData.selectIndex(1);
    panel.btPrefixCreationDate.setState(1);
    EXPECT_EQ(text(2), u"Prefix\tBrenvaldo9\ta\tFNumber\t1\t0"_s);

    panel.cbxPrefixMetaData.selectIndex(-1);
    panel.btPrefixCreationDate.setState(0);
    panel.btPrefixModifDate.setState(1);
    EXPECT_EQ(text(2), u"Prefix\tBrenvaldo9\ta\t\t0\t1"_s);
}

TEST_F(ActionFile, HoldsEachSettingOfPostfix)
{
    panel.tfPostfixToAdd.setStringValue(u"a"_s);
    panel.cbxPostfixMetaData.setTitles({QString(), u"FNumber"_s});
    panel.cbxPostfixMetaData.selectIndex(1);
    panel.btPostfixCreationDate.setState(1);
    panel.btPostfixModifDate.setState(0);
    panel.btPostfixBeforeExtension.setState(0);
    EXPECT_EQ(text(3), u"Postfix\tBrenvaldo9\ta\tFNumber\t1\t0\t0"_s);

    panel.btPostfixCreationDate.setState(0);
    panel.btPostfixModifDate.setState(1);
    EXPECT_EQ(text(3), u"Postfix\tBrenvaldo9\ta\tFNumber\t0\t1\t0"_s);

    panel.btPostfixBeforeExtension.setState(1);
    EXPECT_EQ(text(3), u"Postfix\tBrenvaldo9\ta\tFNumber\t0\t1\t1"_s);
}

TEST_F(ActionFile, HoldsEachSettingOfNumberingWithItsNumbersRead)
{
    panel.tfNumberingStartFrom.setStringValue(u"7 photos"_s);
    panel.tfNumberingPrefixToAdd.setStringValue(u"a"_s);
    panel.tfNumberingPostFixToAdd.setStringValue(u"b"_s);
    panel.tfNumberingDigits.setStringValue(u"3x"_s);
    panel.mxNumberingPosition.selectRow(1);
    panel.btNumberingBeforeExtension.setState(0);
    EXPECT_EQ(text(4), u"Numbering\tBrenvaldo9\t7\ta\tb\t3\t1\t0"_s);

    panel.btNumberingBeforeExtension.setState(1);
    EXPECT_EQ(text(4), u"Numbering\tBrenvaldo9\t7\ta\tb\t3\t1\t1"_s);
}

TEST_F(ActionFile, IsProposedByTheNameOfItsTransform)
{
    QStringList names;
    for (int tab = 0; tab < 5; ++tab) {
        panel.tbvFileRenaming.selectIndex(tab);
        names.append(files::actionFile(panel).suggestedName);
    }
    EXPECT_EQ(
        names,
        (QStringList{
            u"StripFilename.c-action"_s,
            u"ReplaceFilename.c-action"_s,
            u"PrefixFilename.c-action"_s,
            u"PostfixFilename.c-action"_s,
            u"NumberingFilename.c-action"_s})
    );
}

TEST_F(ActionFile, DoesNotGuardItsFieldsAgainstTabs)
{
    panel.tfStripTextFrag.setStringValue(u"a\tb"_s);

    EXPECT_EQ(text(0), u"Strip\tBrenvaldo9\t\t0\t\t\t\ta\tb\t0\t0\t1"_s);
}
