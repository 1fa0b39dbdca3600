// SPDX-License-Identifier: GPL-3.0-or-later
#include "script_fixture.h"

#include <support/photo_builder.h>

#include <QDir>

using namespace brenvaldo;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Misunderstood
{
    const char* name;
    QString line;
    QString reason;
};

void PrintTo(const Misunderstood& row, std::ostream* out) { *out << row.name; }

} // namespace

class ScriptProgramTest : public test::ScriptTest
{
};

class MisunderstoodLine : public test::ScriptTest, public testing::WithParamInterface<Misunderstood>
{
};

TEST_P(MisunderstoodLine, EndsTheScriptWithStatusTwoAndItsReason)
{
    const auto outcome = run(lines({u"# a comment"_qs, GetParam().line, u"defaults after"_qs}));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 2: "_qs + GetParam().reason + u'\n');
    EXPECT_THAT(outcome.lines, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MisunderstoodLine,
    testing::Values(
        Misunderstood{"UnknownCommand", u"jump 1"_qs, u"unknown command \"jump\""_qs},
        Misunderstood{"CommandInCapitals", u"PHOTOS"_qs, u"unknown command \"PHOTOS\""_qs},
        Misunderstood{"OpenQuote", u"set tf \"a"_qs, u"a quote is not closed"_qs},
        Misunderstood{"TooFewWords", u"set tfScaleMaxVal"_qs, u"usage: set NAME VALUE"_qs},
        Misunderstood{"TooManyWords", u"set tfScaleMaxVal a b"_qs, u"usage: set NAME VALUE"_qs},
        Misunderstood{"WordsAfterPhotos", u"photos all"_qs, u"usage: photos"_qs},
        Misunderstood{"UnknownControlToSet", u"set tfNone 1"_qs, u"unknown control \"tfNone\""_qs},
        Misunderstood{"UnknownControlToShow", u"show tfNone"_qs, u"unknown control \"tfNone\""_qs},
        Misunderstood{
            "UnknownControlOfState", u"state vwNone"_qs, u"unknown control \"vwNone\""_qs},
        Misunderstood{
            "UnknownItem", u"set pubFileType doc"_qs, u"\"doc\" is no value of pubFileType"_qs},
        Misunderstood{"UnknownAction", u"press hNone"_qs, u"unknown action \"hNone\""_qs},
        Misunderstood{"WrongTag", u"press hLoadImages tag"_qs, u"\"tag\" is no tag"_qs},
        Misunderstood{"TagWithoutNumber", u"press hLoadImages tag=a"_qs, u"\"tag=a\" is no tag"_qs},
        Misunderstood{
            "AnswerOfNothing", u"answer"_qs, u"usage: answer PATH... or answer cancel"_qs},
        Misunderstood{"SelectionInAnEmptyList", u"select 0"_qs, u"no photo at index 0"_qs},
        Misunderstood{"TickInAnEmptyList", u"tick 0 1"_qs, u"no photo at index 0"_qs},
        Misunderstood{
            "UnknownTable", u"rows tfScaleMaxVal"_qs, u"unknown table \"tfScaleMaxVal\""_qs},
        Misunderstood{"RowOfUnknownTable", u"row tNone 0"_qs, u"unknown table \"tNone\""_qs}
    ),
    [](const auto& row) { return std::string(row.param.name); }
);

TEST_F(ScriptProgramTest, UnderstandsAnEmptyScript)
{
    const auto outcome = run(QString());

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.lines, IsEmpty());
    EXPECT_EQ(outcome.errors, QString());
}

TEST_F(ScriptProgramTest, CarriesOutALastLineWithoutLineFeed)
{
    EXPECT_THAT(run(u"show tfScaleMaxVal"_qs).lines, ElementsAre(u"value\ttfScaleMaxVal\t"_qs));
}

TEST_F(ScriptProgramTest, CarriesOutWhatStandsBeforeAMisunderstoodLine)
{
    const auto outcome = run(lines({u"show tfScaleMaxVal"_qs, u"jump"_qs}));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.lines, ElementsAre(u"value\ttfScaleMaxVal\t"_qs));
}

TEST_F(ScriptProgramTest, RunsItsFilesOneAfterTheOther)
{
    const QString first = files().write(u"first"_qs, "set tfScaleMaxVal 12\n");
    const QString second = files().write(u"second"_qs, "show tfScaleMaxVal\n");

    const auto outcome = runFiles({first, second});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.lines, ElementsAre(u"value\ttfScaleMaxVal\t12"_qs));
}

TEST_F(ScriptProgramTest, CountsTheLinesOfEachFileAnew)
{
    const QString first = files().write(u"first"_qs, "photos\nphotos\n");
    const QString second = files().write(u"second"_qs, "jump\n");

    const auto outcome = runFiles({first, second});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 1: unknown command \"jump\"\n"_qs);
}

TEST_F(ScriptProgramTest, NamesAFileThatCannotBeRead)
{
    const QString missing = files().path(u"missing"_qs);

    const auto outcome = runFiles({missing});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, missing + u" can't be read\n"_qs);
}

TEST_F(ScriptProgramTest, NamesAFolderGivenAsAScript)
{
    const auto outcome = runFiles({folder()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, folder() + u" can't be read\n"_qs);
}

TEST_F(ScriptProgramTest, SetsAndShowsControls)
{
    const auto outcome = run(lines(
        {u"set tfScaleMaxVal \"1000 px\""_qs,
         u"set pubFileType jpeg"_qs,
         u"show tfScaleMaxVal pubFileType"_qs}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(u"value\ttfScaleMaxVal\t1000 px"_qs, u"value\tpubFileType\t5\tjpeg"_qs)
    );
}

TEST_F(ScriptProgramTest, TellsControlsAndPanelViewsByState)
{
    const auto outcome = run(u"state tfScaleMaxVal vwResizePhotos"_qs);

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"state\ttfScaleMaxVal\tenabled\tshown"_qs, u"state\tvwResizePhotos\tenabled\thidden"_qs
        )
    );
}

TEST_F(ScriptProgramTest, TellsASheetAsShownWhileItIsOpen)
{
    const auto outcome = run(lines(
        {u"state wwPreferencesWindow"_qs,
         u"press hCallPreferencesWw"_qs,
         u"state wwPreferencesWindow"_qs}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"state\twwPreferencesWindow\tenabled\thidden"_qs,
            u"sheet\twwPreferencesWindow\topened"_qs,
            u"state\twwPreferencesWindow\tenabled\tshown"_qs
        )
    );
}

TEST_F(ScriptProgramTest, KeepsUserDefaultsFromRunToRun)
{
    const auto before = run(u"defaults PatternsDestination"_qs);
    const auto setting = run(u"defaults PatternsDestination \"/a b\""_qs);
    const auto after = run(u"defaults PatternsDestination"_qs);

    EXPECT_THAT(before.lines, ElementsAre(u"default\tPatternsDestination\t"_qs));
    EXPECT_THAT(setting.lines, IsEmpty());
    EXPECT_THAT(after.lines, ElementsAre(u"default\tPatternsDestination\t/a b"_qs));
}

TEST_F(ScriptProgramTest, TellsThatThePreviewIsEmptyAndWritesNoFile)
{
    const QString path = files().path(u"preview.png"_qs);

    const auto outcome = run(u"preview "_qs + path);

    EXPECT_THAT(outcome.lines, ElementsAre(u"preview\tempty"_qs));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ScriptProgramTest, LetsAPanelChooseNoFileThatItsFilterHides)
{
    const QString photo = files().write(u"a.JPG"_qs, "no matter what");
    const QString other = files().write(u"b.xyz"_qs, "no matter what");
    const QString panel = u"panel\topen\t*** Choose your photos ***\t"_qs;

    const auto outcome = run(lines(
        {u"answer "_qs + other + u' ' + photo,
         u"press hChoosePhotos"_qs,
         u"answer "_qs + other,
         u"press hChoosePhotos"_qs,
         u"answer "_qs + folder(),
         u"press hChoosePhotos"_qs,
         u"photos"_qs}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            panel + photo,
            panel + u"cancel"_qs,
            panel + u"cancel"_qs,
            u"photo\t0\t1\t0\tS\txpx | 14.00bytes\ta.JPG\t\t"_qs + photo
        )
    );
}

TEST_F(ScriptProgramTest, LetsAPanelForAnyKindOfFileChooseAll)
{
    const QString other = files().write(u"b.xyz"_qs, "no matter what");

    const auto outcome = run(lines(
        {u"press hFileManagementClicked"_qs,
         u"set pubFileManagementSelect 2"_qs,
         u"answer "_qs + other,
         u"press hChoosePhotos"_qs}
    ));

    EXPECT_THAT(
        outcome.lines, ElementsAre(u"panel\topen\t*** Choose files to rename ***\t"_qs + other)
    );
}

TEST_F(ScriptProgramTest, LetsAPanelForFoldersChooseAFolder)
{
    const auto outcome = run(lines(
        {u"answer "_qs + folder(),
         u"press hChooseScalingDestinationFolder"_qs,
         u"show tfImageDestinationFolder"_qs}
    ));

    EXPECT_THAT(
        outcome.lines, testing::Contains(u"value\ttfImageDestinationFolder\t"_qs + folder())
    );
}

TEST_F(ScriptProgramTest, TellsTurnedAndFlippedFilesAsResults)
{
    const QString path = test::PhotoBuilder().write(files().path(u"a.jpg"_qs));

    const auto outcome
        = run(lines({u"open "_qs + path, u"press hRotateRight"_qs, u"press hFlipVertical"_qs}));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(u"result\t"_qs + path + u"\tOK"_qs, u"result\t"_qs + path + u"\tOK"_qs)
    );
}

TEST_F(ScriptProgramTest, TellsAPresetThatCouldNotBeSavedAsAnExceptionAlone)
{
    const auto outcome
        = run(lines({u"set tfImageDestinationFolder /no/such/folder/"_qs, u"press hAddPreset"_qs}));

    ASSERT_EQ(outcome.lines.size(), 1);
    EXPECT_TRUE(outcome.lines.first().startsWith(u"exception\t"_qs));
}
