// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets_bench.h"

#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <presets/image_records.h>

#include "support/log_lines.h"
#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

using namespace brenvaldo;
using controls::ActionRegistry;
using test::PresetsBench;

namespace {

/// A picture for the second view.
platform::graphics::Image picture()
{
    QImage pixels(3, 2, QImage::Format_RGB32);
    pixels.fill(Qt::white);
    return platform::graphics::Image::fromQImage(pixels);
}

} // namespace

TEST(PresetManager, ListsWhatWasSaved)
{
    PresetsBench bench;

    bench.save(u"A"_s);
    bench.save(u"B"_s);

    EXPECT_EQ(bench.listed(), QStringList({u"A"_s, u"B"_s}));
    EXPECT_EQ(bench.listed(u"nmProces"_s), QStringList({u"TextWM"_s, u"TextWM"_s}));
    EXPECT_TRUE(bench.listed(u"nmbrAction"_s).first().startsWith(u"|Watermark|"_s));
}

TEST(PresetManager, LogsTheFunctionWhoseSettingsItSaves)
{
    PresetsBench bench;
    const test::LogLines log;

    bench.save(u"A"_s);
    bench.function = u"batchFileConvert"_s;
    bench.save(u"B"_s);

    EXPECT_EQ(log.lines(), QStringList({u"myFunc: textWM"_s, u"myFunc: batchFileConvert"_s}));
}

TEST(PresetManager, LogsThatItOpensOnThePostfix)
{
    PresetsBench bench;
    const test::LogLines log;

    for (const QString& function : {u"Prefix"_s, u"Postfix"_s, u"Numbering"_s}) {
        bench.function = function;
        bench.press("hLoadPreset");
    }

    EXPECT_EQ(log.lines(), QStringList{u"Post"_s});
}

TEST(PresetManager, AnswersTheNameAsTyped)
{
    PresetsBench bench;
    bench.save(u"A"_s);

    EXPECT_EQ(bench.manager.addValuesToDB(presets::resizeRecord(bench.panels)), u"A"_s);
    EXPECT_EQ(bench.manager.addValuesToDB(presets::resizeRecord(bench.panels)), u"A"_s);
    EXPECT_EQ(bench.listed(), QStringList({u"A"_s, u"A_[x]"_s}));
}

TEST(PresetManager, MarksATakenNameOnceOnly)
{
    PresetsBench bench;

    bench.save(u"A"_s);
    bench.save(u"A"_s);
    bench.save(u"A"_s);

    EXPECT_EQ(bench.listed(), QStringList({u"A"_s, u"A_[x]"_s, u"A_[x]"_s}));
    EXPECT_EQ(bench.panels.wwPresetsWindow.tfInputPDM.stringValue(), u"A"_s);
}

TEST(PresetManager, TakesTheSameNameForAnotherFunctionAsItIs)
{
    PresetsBench bench;
    bench.save(u"A"_s);

    bench.function = u"resizePhotos"_s;
    bench.save(u"A"_s);

    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));
    EXPECT_EQ(bench.listed(u"nmProces"_s), QStringList(u"resizePhotos"_s));
}

TEST(PresetManager, SavesAnEmptyName)
{
    PresetsBench bench;

    bench.save(QString());

    EXPECT_EQ(bench.listed(), QStringList(u""_s));
    EXPECT_EQ(bench.file.rows("select Process from Presets"), QStringList(u"TextWM"_s));
}

TEST(PresetManager, BuildsTheListTwiceForOneAdd)
{
    PresetsBench bench;
    bench.save(u"A"_s);
    QList<qsizetype> sizes;
    const auto& list = bench.panels.wwPresetsWindow.thePresetsData;
    const auto watch = list.changed.connect([&] { sizes.append(list.arrangedObjects().size()); });

    bench.save(u"B"_s);

    EXPECT_EQ(sizes, QList<qsizetype>({0, 0, 1, 2, 0, 1, 2}));
}

TEST(PresetManager, OpensTheSheetAndListsThePresets)
{
    PresetsBench bench;
    bench.save(u"A"_s);
    bench.panels.wwPresetsWindow.thePresetsData.removeAllObjects();

    bench.press("hLoadPreset");
    EXPECT_TRUE(bench.panels.wwPresetsWindow.sheet.isOpen());
    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));

    bench.press("closePresetsSheetObjC");
    EXPECT_FALSE(bench.panels.wwPresetsWindow.sheet.isOpen());
}

TEST(PresetManager, ShowsTheRowsOfThePreviousFunctionWhenThereAreNone)
{
    PresetsBench bench;
    bench.save(u"A"_s);

    bench.function = u"resizePhotos"_s;
    bench.press("hLoadPreset");

    EXPECT_EQ(bench.listed(u"nmProces"_s), QStringList(u"TextWM"_s));
}

TEST(PresetManager, AppliesAStaleRowWithTheRecordOfTheSelectedFunction)
{
    PresetsBench bench;
    bench.panels.vwWatermark.tfKerning.setStringValue(u"3"_s); // position 7: the mode of resizing
    bench.save(u"A"_s);

    bench.function = u"resizePhotos"_s;
    bench.apply(0);

    const auto& resize = bench.panels.vwResizePhotos;
    EXPECT_EQ(resize.dvVCUiResizeMainView.views(), QStringList(resize.dvVCUiScaleFixView.name()));
    EXPECT_EQ(resize.dvVCUiScaleFixView.tfScaleFixHeight.stringValue(), u"8"_s);
}

TEST(PresetManager, DoesNothingForAFunctionWithoutARecord)
{
    PresetsBench bench;
    bench.save(u"A"_s);

    bench.function = u"faces"_s;
    bench.press("hLoadPreset");
    bench.save(u"B"_s);
    bench.apply(0);

    EXPECT_FALSE(bench.panels.wwPresetsWindow.sheet.isOpen());
    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));
}

TEST(PresetManager, RemovesTheNameFromEveryFunction)
{
    PresetsBench bench;
    bench.save(u"A"_s);
    bench.function = u"resizePhotos"_s;
    bench.save(u"A"_s);
    bench.save(u"B"_s);

    bench.panels.wwPresetsWindow.myPresetsTableView.selectRow(0);
    bench.press("hRemovePreset");

    EXPECT_EQ(bench.listed(), QStringList(u"B"_s));
    EXPECT_EQ(bench.file.rows("select NameOfPreset from Presets"), QStringList(u"B"_s));
}

TEST(PresetManager, EmptiesTheListWithTheLastPreset)
{
    PresetsBench bench;
    bench.save(u"A"_s);

    bench.panels.wwPresetsWindow.myPresetsTableView.selectRow(0);
    bench.press("hRemovePreset");
    bench.press("hRemovePreset");

    EXPECT_TRUE(bench.listed().isEmpty());
    EXPECT_EQ(bench.panels.wwPresetsWindow.myPresetsTableView.selectedRow(), -1);
}

TEST(PresetManager, DoesNothingWithoutASelectedRow)
{
    PresetsBench bench;
    bench.panels.vwWatermark.tfFontSize.setStringValue(u"30"_s);
    bench.save(u"A"_s);
    bench.panels.vwWatermark.tfFontSize.setStringValue(u"99"_s);

    bench.apply(-1);
    bench.press("hRemovePreset");

    EXPECT_EQ(bench.panels.vwWatermark.tfFontSize.stringValue(), u"99"_s);
    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));
}

TEST(PresetManager, AppliesTheLaterOfTwoRowsOfOneName)
{
    PresetsBench bench;
    auto& size = bench.panels.vwWatermark.tfFontSize;
    bench.save(u"A"_s);
    size.setStringValue(u"10"_s);
    bench.save(u"A"_s);
    size.setStringValue(u"20"_s);
    bench.save(u"A"_s);
    size.setStringValue(u"99"_s);

    bench.apply(1);
    EXPECT_EQ(size.stringValue(), u"20"_s);

    bench.press("hRemovePreset");
    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));
}

TEST(PresetManager, ListsANameWithABarAsAWrongRowAndAppliesNothing)
{
    PresetsBench bench;
    bench.save(u"A|B"_s);
    ASSERT_EQ(bench.listed(), QStringList(u"A"_s));
    EXPECT_EQ(bench.listed(u"nmProces"_s), QStringList(u"B"_s));
    EXPECT_TRUE(bench.listed(u"nmbrAction"_s).first().startsWith(u"|TextWM|Watermark|"_s));

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwWatermark.tfFontSize.stringValue(), u""_s);
    EXPECT_EQ(bench.panels.vwWatermark.scWaterMarkPos.selectedSegment(), 0);
}

TEST(PresetManager, StopsTheRemainderWhereNameAndProcessRecur)
{
    PresetsBench bench;
    bench.panels.vwWatermark.tvWaterMarkText.setStringValue(u"see A|TextWM here"_s);

    bench.save(u"A"_s);

    EXPECT_TRUE(bench.listed(u"nmbrAction"_s).first().endsWith(u"|see "_s));
}

TEST(PresetManager, LeavesTheListWhenASaveFails)
{
    PresetsBench bench;
    bench.save(u"A"_s);
    QString reason;
    const auto watch
        = bench.actions.exceptionRaised.connect([&](const platform::Exception& exception) {
              reason = exception.reason();
          });

    bench.save(u"it's"_s);
    EXPECT_EQ(reason, u"Error updating table."_s);
    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));

    bench.panels.vwWatermark.tvWaterMarkText.setStringValue(u"it's"_s);
    bench.save(u"B"_s);
    EXPECT_EQ(bench.listed(), QStringList(u"A"_s));
    EXPECT_EQ(bench.file.rows("select NameOfPreset from Presets"), QStringList(u"A"_s));
}

TEST(PresetManager, SwitchesTheSecondViewAndTheSimulationOffBeforeALoad)
{
    PresetsBench bench;
    bench.save(u"A"_s);
    bench.panels.wwPresetsWindow.my2ndView.setImage(picture());
    bench.panels.vwWatermark.cbWMSimulationMode.setState(1);

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwWatermark.cbWMSimulationMode.state(), 0);
    EXPECT_FALSE(bench.panels.wwPresetsWindow.my2ndView.image());
}

TEST(PresetManager, LeavesTheSecondViewWhenItLoadsAFilter)
{
    PresetsBench bench;
    bench.function = u"filters"_s;
    bench.save(u"A"_s);
    bench.panels.wwPresetsWindow.my2ndView.setImage(picture());
    bench.panels.vwWatermark.cbWMSimulationMode.setState(1);

    bench.apply(0);

    EXPECT_EQ(bench.panels.vwWatermark.cbWMSimulationMode.state(), 0);
    EXPECT_TRUE(bench.panels.wwPresetsWindow.my2ndView.image());
}

TEST(PresetManager, ChangesNothingWhileTheFileIsLocked)
{
    PresetsBench bench;
    bench.function = u"resizePhotos"_s;
    bench.save(u"A"_s);
    auto& size = bench.panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal;
    size.setStringValue(u"1234"_s);
    bench.panels.vwWatermark.cbWMSimulationMode.setState(1);
    const auto lock = bench.file.locked();

    bench.apply(0);

    EXPECT_EQ(size.stringValue(), u"1234"_s);
    EXPECT_EQ(bench.panels.vwWatermark.cbWMSimulationMode.state(), 1);
}

TEST(PresetManager, ChangesNothingWhenTheFileIsDamaged)
{
    PresetsBench bench;
    bench.function = u"resizePhotos"_s;
    bench.save(u"A"_s);
    auto& size = bench.panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal;
    size.setStringValue(u"1234"_s);
    (void)bench.file.folder().write(u"DravothCom/Brenvaldo9.sql"_s, QByteArray(16384, 'x'));

    bench.apply(0);

    EXPECT_EQ(size.stringValue(), u"1234"_s);
}

TEST(PresetManager, EmptiesTheControlsForANameThatNoStatementCanHold)
{
    PresetsBench bench;
    bench.function = u"resizePhotos"_s;
    bench.save(u"it''s"_s);
    auto& size = bench.panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal;
    size.setStringValue(u"1234"_s);

    bench.apply(0);

    EXPECT_EQ(bench.listed(), QStringList(u"it's"_s));
    EXPECT_EQ(size.stringValue(), u""_s);
}

TEST(PresetManager, LosesNoPresetThatAnotherProgramAddsToo)
{
    constexpr int each = 20;
    const PresetsBench bench;
    std::vector<pid_t> programs;
    for (int program = 0; program < 3; ++program) {
        programs.push_back(fork());
        if (programs.back() != 0)
            continue;
        // A process of its own: locks are not seen within one.
        for (int preset = 0; preset < each; ++preset) {
            presets::PresetRow row;
            row.fill(u"%1-%2"_s.arg(program).arg(preset));
            presets::dbViewController().insertSortingPresetToDB01(row);
        }
        _exit(0);
    }

    for (const pid_t program : programs) {
        int status = -1;
        waitpid(program, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(
        bench.file.rows("select count(distinct NameOfPreset) from Presets"), QStringList(u"60"_s)
    );
}

TEST(PresetManager, KnowsItsFiveActions)
{
    const PresetsBench bench;

    EXPECT_EQ(bench.actions.names().size(), 5);
    EXPECT_TRUE(bench.actions.knows(bench.panels.window.btnPresets.actions().first()));
}
