// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include <platform/foundation/literals.h>

#include "support/text_printing.h"

#include <QDir>

/// \file
/// The records of the functions that manage files, position by position.

using namespace brenvaldo;
using test::Position;
using test::Positions;
using test::RecordBench;
using test::Round;

namespace {

const QString action = u"FileManagement"_s;

/// A position with one of the folders `first` and `second`, which it makes.
Position
folderPosition(const RecordBench& bench, int place, const QString& control, const QString& name)
{
    const QDir home(bench.file.folder().path());
    const QString first = name + u"a"_s;
    const QString second = name + u"b"_s;
    home.mkdir(first);
    home.mkdir(second);
    return {place, control, home.filePath(first) + u'/', home.filePath(second) + u'/'};
}

} // namespace

TEST(FileRecordPositions, HoldTheFoldersOfSortingByHand)
{
    RecordBench bench(u"manSort"_s, u"manSort"_s, action);
    bench.expectKept({
        folderPosition(bench, 3, u"tfSortDestination01"_s, u"1"_s),
        folderPosition(bench, 4, u"tfSortDestination02"_s, u"2"_s),
        folderPosition(bench, 5, u"tfSortDestination03"_s, u"3"_s),
        folderPosition(bench, 6, u"tfSortDestination04"_s, u"4"_s),
        folderPosition(bench, 7, u"tfSortDestination05"_s, u"5"_s),
        folderPosition(bench, 8, u"tfSortDestination06"_s, u"6"_s),
    });
}

TEST(FileRecordPositions, HoldTheCriteriaOfSorting)
{
    RecordBench bench(u"batchSort"_s, u"batchSort"_s, action);
    bench.expectKept(
        {
            folderPosition(bench, 3, u"tfBatchSortDestFolder"_s, u"s"_s),
            {4, u"cbImagePropChoice"_s, u"1"_s, u"0"_s},
            {5, u"pubImageProp"_s, u"3"_s, u"1"_s},
            {6, u"pubImagePropSelector"_s, u"2"_s, u"1"_s},
            {7, u"tfImagePropVar"_s, u"a7"_s, u"b7"_s},
            {8, u"cbFileNameChoice"_s, u"0"_s, u"1"_s},
            {9, u"pubFileName"_s, u"1"_s, u"0"_s},
            {10, u"pubFileNameSelector"_s, u"3"_s, u"2"_s},
            {11, u"tfFileNameVar"_s, u"a11"_s, u"b11"_s},
            {12, u"cbFileTagChoice"_s, u"1"_s, u"0"_s},
            {13, u"pubFileTagIsNot"_s, u"0"_s, u"1"_s},
            {14, u"pubFileTag"_s, u"6"_s, u"4"_s},
            {15, u"pubFileHandlingSelector"_s, u"3"_s, u"1"_s},
        },
        {{u"pubImageProp"_s, true, false},
         {u"pubImagePropSelector"_s, true, false},
         {u"tfImagePropVar"_s, true, false},
         {u"pubFileName"_s, false, true},
         {u"pubFileNameSelector"_s, false, true},
         {u"pubFileTagIsNot"_s, true, false},
         {u"pubFileTag"_s, true, false}}
    );
}

TEST(FileRecordPositions, LeaveTheFieldOfTheNameAlone)
{
    RecordBench bench(u"batchSort"_s, u"batchSort"_s, action);
    controls::TextField& field = bench.panels.vwFileManagementSorting.tfFileNameVar;
    field.setEnabled(false);
    bench.give(u"cbFileNameChoice"_s, u"1"_s);
    bench.save(u"A"_s);

    bench.apply(0);

    EXPECT_FALSE(field.isEnabled());
}

TEST(FileRecordPositions, HoldStrip)
{
    RecordBench bench(u"Strip"_s, u"Strip"_s, action);
    bench.expectKept({
        bench.destination(),
        {4, u"tfStripNumberOfChar"_s, u"a4"_s, u"b4"_s},
        {5, u"pubStripFromLeftRight"_s, u"1"_s, u"0"_s},
        {6, u"tfStripChar"_s, u"a6"_s, u"b6"_s},
        {7, u"tfStripCharStart"_s, u"a7"_s, u"b7"_s},
        {8, u"tfStripCharStop"_s, u"a8"_s, u"b8"_s},
        {9, u"tfStripTextFrag"_s, u"a9"_s, u"b9"_s},
        {10, u"pubStripRemPosition"_s, u"3"_s, u"2"_s},
        {11, u"pubStripCharAllowed"_s, u"1"_s, u"2"_s},
        {12, u"btStripPreserveExtension"_s, u"0"_s, u"1"_s},
    });
}

TEST(FileRecordPositions, HoldReplace)
{
    RecordBench bench(u"Replace"_s, u"Replace"_s, action);
    bench.expectKept({
        bench.destination(),
        {4, u"pubReplaceCase"_s, u"3"_s, u"2"_s},
        {5, u"tfReplaceCharStart"_s, u"a5"_s, u"b5"_s},
        {6, u"tfReplaceCharStop"_s, u"a6"_s, u"b6"_s},
        {7, u"tfReplaceCharBy"_s, u"a7"_s, u"b7"_s},
        {8, u"tfReplaceFindText"_s, u"a8"_s, u"b8"_s},
        {9, u"tfReplaceTextBy"_s, u"a9"_s, u"b9"_s},
    });
}

TEST(FileRecordPositions, HoldPrefix)
{
    RecordBench bench(u"Prefix"_s, u"Prefix"_s, action);
    bench.panels.vwFileManagementRename.cbxPrefixMetaData.setTitles({u""_s, u"FNumber"_s, u"Kind"_s}
    );
    bench.expectKept({
        bench.destination(),
        {4, u"tfPrefixToAdd"_s, u"a4"_s, u"b4"_s},
        {5, u"cbxPrefixMetaData"_s, u"FNumber"_s, u"Kind"_s},
        {6, u"btPrefixCreationDate"_s, u"1"_s, u"0"_s},
        {7, u"btPrefixModifDate"_s, u"0"_s, u"1"_s},
    });
}

TEST(FileRecordPositions, HoldPostfix)
{
    RecordBench bench(u"Postfix"_s, u"Postfix"_s, action);
    bench.panels.vwFileManagementRename.cbxPostfixMetaData.setTitles(
        {u""_s, u"FNumber"_s, u"Kind"_s}
    );
    bench.expectKept({
        bench.destination(),
        {4, u"tfPostfixToAdd"_s, u"a4"_s, u"b4"_s},
        {5, u"cbxPostfixMetaData"_s, u"FNumber"_s, u"Kind"_s},
        {6, u"btPostfixCreationDate"_s, u"1"_s, u"0"_s},
        {7, u"btPostfixModifDate"_s, u"0"_s, u"1"_s},
        {8, u"btPostfixBeforeExtension"_s, u"1"_s, u"0"_s},
    });
}

TEST(FileRecordPositions, HoldNumberingAndLeaveItsMatricesAlone)
{
    RecordBench bench(u"Numbering"_s, u"Numbering"_s, action);
    const Positions restored{
        bench.destination(),
        {4, u"tfNumberingStartFrom"_s, u"a4"_s, u"b4"_s},
        {5, u"tfNumberingPrefixToAdd"_s, u"a5"_s, u"b5"_s},
        {6, u"tfNumberingPostFixToAdd"_s, u"a6"_s, u"b6"_s},
        {7, u"tfNumberingDigits"_s, u"a7"_s, u"b7"_s},
        {10, u"btNumberingBeforeExtension"_s, u"1"_s, u"0"_s},
    };
    const Positions matrices{
        {8, u"mxNumberingPosition"_s, u"1"_s, u"0"_s},
        {9, u"mxNumberingSorting"_s, u"0"_s, u"1"_s},
    };
    const Positions written = test::joined(restored, matrices);
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(written, round);
        bench.saveRound(round);
        bench.expectRow(round, written);
    }
    for (const Round round : {Round::First, Round::Second}) {
        bench.giveOther(written, round);
        bench.load(round);
        bench.expectValues(round, restored);
        bench.expectOther(round, matrices);
    }
}

TEST(FileRecordPositions, HoldTheCommentAndIptc)
{
    RecordBench bench(u"batchExifUC"_s, u"addExif"_s, action);
    const Positions kept{
        {4, u"tfExifUserComment"_s, u"a4"_s, u"b4"_s},
        {5, u"cbClearCurrentEUC"_s, u"1"_s, u"0"_s},
        {6, u"tfIPTCTitle"_s, u"a6"_s, u"b6"_s},
        {7, u"tfIPTCKeyWords"_s, u"a7"_s, u"b7"_s},
        {8, u"tfIPTCCaption"_s, u"a8"_s, u"b8"_s},
        {9, u"tfIPTCHeadline"_s, u"a9"_s, u"b9"_s},
        {10, u"tfIPTCCopyRight"_s, u"a10"_s, u"b10"_s},
        {11, u"tfIPTCCopyRightTerms"_s, u"a11"_s, u"b11"_s},
        {12, u"tfIPTCCreator"_s, u"a12"_s, u"b12"_s},
        {13, u"tfIPTCCreatorTitle"_s, u"a13"_s, u"b13"_s},
        {14, u"tfIPTCSourceOwner"_s, u"a14"_s, u"b14"_s},
    };
    const QStringList contacts{
        u"tfIPTCImageContactInfo"_s, u"tfIPTCEditorContactInfo"_s, u"tfIPTCCreatorContactInfo"_s};
    for (const QString& contact : contacts)
        bench.give(contact, u"stays"_s);

    bench.expectKept(kept);

    for (const QString& contact : contacts)
        EXPECT_EQ(bench.read(contact), u"stays"_s);
}

TEST(FileRecordPositions, OfTheCommentCanNotHoldAnApostrophe)
{
    RecordBench bench(u"batchExifUC"_s, u"addExif"_s, action);
    bench.give(u"tfIPTCKeyWords"_s, u"Jane's boat"_s);

    bench.save(u"A"_s);

    EXPECT_TRUE(bench.panels.wwPresetsWindow.thePresetsData.arrangedObjects().isEmpty());
}

TEST(FileRecordPositions, OfTheCommentClearTheSecondViewAndTheSimulation)
{
    RecordBench bench(u"batchExifUC"_s, u"addExif"_s, action);
    bench.save(u"A"_s);
    bench.give(u"cbWMSimulationMode"_s, u"1"_s);
    bench.panels.wwPresetsWindow.my2ndView.setImage(
        platform::graphics::Image::fromQImage(QImage(2, 2, QImage::Format_RGB32))
    );

    bench.apply(0);

    EXPECT_EQ(bench.read(u"cbWMSimulationMode"_s), u"0"_s);
    EXPECT_FALSE(bench.panels.wwPresetsWindow.my2ndView.image());
}

TEST(FileRecordPositions, LeaveTheSecondViewAndTheSimulationAlone)
{
    for (const char* function :
         {"manSort", "batchSort", "Strip", "Replace", "Prefix", "Postfix", "Numbering"}) {
        RecordBench bench(QString::fromLatin1(function), QString::fromLatin1(function), action);
        auto& rename = bench.panels.vwFileManagementRename;
        rename.cbxPrefixMetaData.setTitles({u"Kind"_s});
        rename.cbxPostfixMetaData.setTitles({u"Kind"_s});
        bench.save(u"A"_s);
        bench.give(u"cbWMSimulationMode"_s, u"1"_s);

        bench.apply(0);

        EXPECT_EQ(bench.read(u"cbWMSimulationMode"_s), u"1"_s) << function;
    }
}
