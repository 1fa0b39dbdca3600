// SPDX-License-Identifier: GPL-3.0-or-later
#include "script_fixture.h"

#include <platform/foundation/literals.h>

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
    const auto outcome = run(lines({u"# a comment"_s, GetParam().line, u"defaults after"_s}));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 2: "_s + GetParam().reason + u'\n');
    EXPECT_THAT(outcome.lines, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    MisunderstoodLine,
    testing::Values(
        Misunderstood{"UnknownCommand", u"jump 1"_s, u"unknown command \"jump\""_s},
        Misunderstood{"CommandInCapitals", u"PHOTOS"_s, u"unknown command \"PHOTOS\""_s},
        Misunderstood{"OpenQuote", u"set tf \"a"_s, u"a quote is not closed"_s},
        Misunderstood{"TooFewWords", u"set tfScaleMaxVal"_s, u"usage: set NAME VALUE"_s},
        Misunderstood{"TooManyWords", u"set tfScaleMaxVal a b"_s, u"usage: set NAME VALUE"_s},
        Misunderstood{"WordsAfterPhotos", u"photos all"_s, u"usage: photos"_s},
        Misunderstood{"UnknownControlToSet", u"set tfNone 1"_s, u"unknown control \"tfNone\""_s},
        Misunderstood{"UnknownControlToShow", u"show tfNone"_s, u"unknown control \"tfNone\""_s},
        Misunderstood{"UnknownControlOfState", u"state vwNone"_s, u"unknown control \"vwNone\""_s},
        Misunderstood{
            "UnknownItem", u"set pubFileType doc"_s, u"\"doc\" is no value of pubFileType"_s},
        Misunderstood{"UnknownAction", u"press hNone"_s, u"unknown action \"hNone\""_s},
        Misunderstood{"WrongTag", u"press hLoadImages tag"_s, u"\"tag\" is no tag"_s},
        Misunderstood{"TagWithoutNumber", u"press hLoadImages tag=a"_s, u"\"tag=a\" is no tag"_s},
        Misunderstood{"AnswerOfNothing", u"answer"_s, u"usage: answer PATH... or answer cancel"_s},
        Misunderstood{"SelectionInAnEmptyList", u"select 0"_s, u"no photo at index 0"_s},
        Misunderstood{"TickInAnEmptyList", u"tick 0 1"_s, u"no photo at index 0"_s},
        Misunderstood{
            "UnknownTable", u"rows tfScaleMaxVal"_s, u"unknown table \"tfScaleMaxVal\""_s},
        Misunderstood{"RowOfUnknownTable", u"row tNone 0"_s, u"unknown table \"tNone\""_s}
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
    EXPECT_THAT(run(u"show tfScaleMaxVal"_s).lines, ElementsAre(u"value\ttfScaleMaxVal\t"_s));
}

TEST_F(ScriptProgramTest, CarriesOutWhatStandsBeforeAMisunderstoodLine)
{
    const auto outcome = run(lines({u"show tfScaleMaxVal"_s, u"jump"_s}));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.lines, ElementsAre(u"value\ttfScaleMaxVal\t"_s));
}

TEST_F(ScriptProgramTest, RunsItsFilesOneAfterTheOther)
{
    const QString first = files().write(u"first"_s, "set tfScaleMaxVal 12\n");
    const QString second = files().write(u"second"_s, "show tfScaleMaxVal\n");

    const auto outcome = runFiles({first, second});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.lines, ElementsAre(u"value\ttfScaleMaxVal\t12"_s));
}

TEST_F(ScriptProgramTest, CountsTheLinesOfEachFileAnew)
{
    const QString first = files().write(u"first"_s, "photos\nphotos\n");
    const QString second = files().write(u"second"_s, "jump\n");

    const auto outcome = runFiles({first, second});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, u"line 1: unknown command \"jump\"\n"_s);
}

TEST_F(ScriptProgramTest, NamesAFileThatCannotBeRead)
{
    const QString missing = files().path(u"missing"_s);

    const auto outcome = runFiles({missing});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, missing + u" can't be read\n"_s);
}

TEST_F(ScriptProgramTest, NamesAFolderGivenAsAScript)
{
    const auto outcome = runFiles({folder()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, folder() + u" can't be read\n"_s);
}

TEST_F(ScriptProgramTest, SetsAndShowsControls)
{
    const auto outcome = run(lines(
        {u"set tfScaleMaxVal \"1000 px\""_s,
         u"set pubFileType jpeg"_s,
         u"show tfScaleMaxVal pubFileType"_s}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(u"value\ttfScaleMaxVal\t1000 px"_s, u"value\tpubFileType\t5\tjpeg"_s)
    );
}

TEST_F(ScriptProgramTest, TellsControlsAndPanelViewsByState)
{
    const auto outcome = run(u"state tfScaleMaxVal vwResizePhotos"_s);

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"state\ttfScaleMaxVal\tenabled\tshown"_s, u"state\tvwResizePhotos\tenabled\thidden"_s
        )
    );
}

TEST_F(ScriptProgramTest, TellsASheetAsShownWhileItIsOpen)
{
    const auto outcome = run(lines(
        {u"state wwPreferencesWindow"_s,
         u"press hCallPreferencesWw"_s,
         u"state wwPreferencesWindow"_s}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            u"state\twwPreferencesWindow\tenabled\thidden"_s,
            u"sheet\twwPreferencesWindow\topened"_s,
            u"state\twwPreferencesWindow\tenabled\tshown"_s
        )
    );
}

TEST_F(ScriptProgramTest, KeepsUserDefaultsFromRunToRun)
{
    const auto before = run(u"defaults PatternsDestination"_s);
    const auto setting = run(u"defaults PatternsDestination \"/a b\""_s);
    const auto after = run(u"defaults PatternsDestination"_s);

    EXPECT_THAT(before.lines, ElementsAre(u"default\tPatternsDestination\t"_s));
    EXPECT_THAT(setting.lines, IsEmpty());
    EXPECT_THAT(after.lines, ElementsAre(u"default\tPatternsDestination\t/a b"_s));
}

TEST_F(ScriptProgramTest, TellsThatThePreviewIsEmptyAndWritesNoFile)
{
    const QString path = files().path(u"preview.png"_s);

    const auto outcome = run(u"preview "_s + path);

    EXPECT_THAT(outcome.lines, ElementsAre(u"preview\tempty"_s));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ScriptProgramTest, LetsAPanelChooseNoFileThatItsFilterHides)
{
    const QString photo = files().write(u"a.JPG"_s, "no matter what");
    const QString other = files().write(u"b.xyz"_s, "no matter what");
    const QString panel = u"panel\topen\t*** Choose your photos ***\t"_s;

    const auto outcome = run(lines(
        {u"answer "_s + other + u' ' + photo,
         u"press hChoosePhotos"_s,
         u"answer "_s + other,
         u"press hChoosePhotos"_s,
         u"answer "_s + folder(),
         u"press hChoosePhotos"_s,
         u"photos"_s}
    ));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(
            panel + photo,
            panel + u"cancel"_s,
            panel + u"cancel"_s,
            u"photo\t0\t1\t0\tS\txpx | 14.00bytes\ta.JPG\t\t"_s + photo
        )
    );
}

TEST_F(ScriptProgramTest, LetsAPanelForAnyKindOfFileChooseAll)
{
    const QString other = files().write(u"b.xyz"_s, "no matter what");

    const auto outcome = run(lines(
        {u"press hFileManagementClicked"_s,
         u"set pubFileManagementSelect 2"_s,
         u"answer "_s + other,
         u"press hChoosePhotos"_s}
    ));

    EXPECT_THAT(
        outcome.lines, ElementsAre(u"panel\topen\t*** Choose files to rename ***\t"_s + other)
    );
}

TEST_F(ScriptProgramTest, LetsAPanelForFoldersChooseAFolder)
{
    const auto outcome = run(lines(
        {u"answer "_s + folder(),
         u"press hChooseScalingDestinationFolder"_s,
         u"show tfImageDestinationFolder"_s}
    ));

    EXPECT_THAT(
        outcome.lines, testing::Contains(u"value\ttfImageDestinationFolder\t"_s + folder())
    );
}

TEST_F(ScriptProgramTest, TellsTurnedAndFlippedFilesAsResults)
{
    const QString path = test::PhotoBuilder().write(files().path(u"a.jpg"_s));

    const auto outcome
        = run(lines({u"open "_s + path, u"press hRotateRight"_s, u"press hFlipVertical"_s}));

    EXPECT_THAT(
        outcome.lines,
        ElementsAre(u"result\t"_s + path + u"\tOK"_s, u"result\t"_s + path + u"\tOK"_s)
    );
}

TEST_F(ScriptProgramTest, TellsAPresetThatCouldNotBeSavedAsAnExceptionAlone)
{
    const auto outcome
        = run(lines({u"set tfImageDestinationFolder /no/such/folder/"_s, u"press hAddPreset"_s}));

    ASSERT_EQ(outcome.lines.size(), 1);
    EXPECT_TRUE(outcome.lines.first().startsWith(u"exception\t"_s));
}
