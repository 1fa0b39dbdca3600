// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/sorting/sort_sentence.h>

#include <platform/foundation/literals.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using workspace::sortSentence;

TEST(SortSentence, TellsThatNothingIsChosen)
{
    const panels::BatchSortControls panel;

    EXPECT_EQ(sortSentence(panel), u"No criterion is ticked: no file would be touched."_s);
}

TEST(SortSentence, JoinsTheTickedCriteria)
{
    panels::BatchSortControls panel;
    panel.cbImagePropChoice.setState(1);
    panel.pubImageProp.selectIndex(1);
    panel.pubImagePropSelector.selectIndex(3);
    panel.tfImagePropVar.setStringValue(u"4000"_s);
    panel.tfBatchSortDestFolder.setStringValue(u"/best/"_s);
    EXPECT_EQ(
        sortSentence(panel), u"Copies files whose width in pixels is \u201c4000\u201d to /best/."_s
    );

    panel.cbFileNameChoice.setState(1);
    panel.pubFileNameSelector.selectIndex(2);
    panel.tfFileNameVar.setStringValue(u"%2"_s);
    panel.cbFileTagChoice.setState(1);
    panel.pubFileTagIsNot.selectIndex(1);
    panel.pubFileTag.selectIndex(6);
    panel.pubFileHandlingSelector.selectIndex(1);
    EXPECT_EQ(
        sortSentence(panel),
        u"Moves files whose width in pixels is \u201c4000\u201d and whose file name ends with "
        u"\u201c%2\u201d and whose label is not red to /best/."_s
    );
}

TEST(SortSentence, ShowsWhatIsStillToBeChosen)
{
    panels::BatchSortControls panel;
    panel.cbImagePropChoice.setState(1);
    panel.pubFileHandlingSelector.selectIndex(2);

    EXPECT_EQ(
        sortSentence(panel),
        u"Makes aliases of files whose EXIF user comment contains \u2026 in a folder that is still "
        u"to be chosen."_s
    );

    panel.pubFileHandlingSelector.selectIndex(3);
    EXPECT_EQ(
        sortSentence(panel), u"Moves files whose EXIF user comment contains \u2026 to the trash."_s
    );

    panel.pubFileHandlingSelector.selectIndex(-1);
    EXPECT_EQ(sortSentence(panel), u"Nothing is chosen to do with the files."_s);
}
