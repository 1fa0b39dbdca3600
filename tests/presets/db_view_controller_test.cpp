// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_file.h"

#include <platform/foundation/exceptions.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <presets/db_view_controller.h>
#include <presets/preset_statements.h>

#include "support/case_name.h"
#include "support/faults.h"
#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace brenvaldo;
using presets::dbViewController;
using presets::PresetRow;
using presets::PresetValues;

namespace {

const char* const countPresets = "select count(*) from Presets";

PresetRow rowNamed(const QString& name, const QString& process = u"TextWM"_s)
{
    PresetRow row;
    row.fill(u""_s);
    row[0] = name;
    row[1] = process;
    row[2] = u"Watermark"_s;
    return row;
}

void insert(const PresetRow& row) { dbViewController().insertSortingPresetToDB01(row); }

void insertField(const QString& name, int position, const QString& value)
{
    PresetRow row = rowNamed(name);
    row[static_cast<std::size_t>(position)] = value;
    insert(row);
}

QString field(const QString& name, int position)
{
    return dbViewController()
        .getSelectedPreset(u"Presets"_s, name)
        .value_or(PresetValues())
        .value(presets::fieldName(position));
}

std::optional<QString> check(const QString& name, const QString& process = u"TextWM"_s)
{
    return dbViewController().checkPresetNameFromTableNamed(
        u"Presets"_s, u"NameOfPreset"_s, name, u"Process"_s, process
    );
}

std::optional<QStringList> listOf(const QString& process)
{
    return dbViewController().checkForActionType(u"Presets"_s, u"Process"_s, process);
}

QString failureOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const platform::AssertionFailure& failure) {
        return failure.reason();
    }
    return {};
}

class NewPresets : public testing::Test
{
protected:
    void SetUp() override { dbViewController().linkToPresetsDB(); }

    test::PresetFile m_file;
};

} // namespace

TEST(PresetsFile, IsMadeOnTheFirstRunWithBothTablesAndTheSeedRow)
{
    const test::PresetFile file;

    dbViewController().linkToPresetsDB();

    EXPECT_EQ(
        file.rows("select name from sqlite_master where name like '%s' order by name"),
        QStringList({u"AppBookmarks"_s, u"Presets"_s})
    );
    EXPECT_EQ(file.rows(countPresets), QStringList(u"0"_s));
    EXPECT_EQ(
        file.rows("select count(*), StrField0, StrField1 || StrField50 || StrField101 "
                  "from AppBookmarks"),
        QStringList(u"1|myAppDestBookmark|"_s)
    );
}

TEST(PresetsFile, HasAnIdAnd102TypedColumns)
{
    const test::PresetFile file;

    dbViewController().linkToPresetsDB();

    EXPECT_EQ(
        file.rows("select count(*) from pragma_table_info('Presets')"), QStringList(u"103"_s)
    );
    EXPECT_EQ(
        file.rows("select min(cid), max(cid), count(*) from pragma_table_info('AppBookmarks') "
                  "where lower(type) = 'integer' and name <> 'ID'"),
        QStringList(u"22|42|21"_s)
    );
}

TEST(PresetsFile, IsTakenAsItStandsWhenItExists)
{
    const test::PresetFile file;
    ASSERT_TRUE(QDir().mkpath(file.folder().path(u"DravothCom"_s)));
    (void)file.folder().write(u"DravothCom/Brenvaldo9.sql"_s, "");

    dbViewController().linkToPresetsDB();

    EXPECT_TRUE(file.rows("select name from sqlite_master").isEmpty());
    EXPECT_EQ(failureOf([] { insert(rowNamed(u"A"_s)); }), u"Error updating table."_s);
    EXPECT_FALSE(check(u"A"_s));
    EXPECT_FALSE(listOf(u"TextWM"_s));
    EXPECT_EQ(dbViewController().getSelectedPreset(u"Presets"_s, u"A"_s), PresetValues());
    EXPECT_EQ(
        dbViewController().removePresetFromDatabase(u"Presets"_s, u"NameOfPreset"_s, u"A"_s),
        u"preset not found"_s
    );
}

TEST(PresetsFile, GetsItsFolderBackAtEveryCall)
{
    const test::PresetFile file;

    EXPECT_EQ(dbViewController::dbFilePath(), file.path());
    ASSERT_TRUE(QDir(file.folder().path(u"DravothCom"_s)).removeRecursively());
    (void)dbViewController::dbFilePath();

    EXPECT_TRUE(QDir(file.folder().path(u"DravothCom"_s)).exists());
}

TEST_F(NewPresets, StoreARowOf103Columns)
{
    insert(rowNamed(u"A"_s));

    const QStringList rows = m_file.rows("select * from Presets");
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.first().split(QLatin1Char('|')).size(), 103);
    EXPECT_TRUE(rows.first().startsWith(u"1|A|TextWM|Watermark|"_s));
}

TEST_F(NewPresets, AddARowForEveryInsert)
{
    insert(rowNamed(u"A"_s));
    insert(rowNamed(u"A"_s));
    dbViewController().insertSortingPresetToDB02(rowNamed(u"A"_s));
    dbViewController().insertHTMLPresetToDB01(rowNamed(u"A"_s));

    EXPECT_EQ(m_file.rows(countPresets), QStringList(u"4"_s));
}

TEST_F(NewPresets, RefuseARowWithAMissingValue)
{
    PresetRow row = rowNamed(u"A"_s);
    row[27].reset();

    EXPECT_THROW(insert(row), platform::InvalidArgument);
    EXPECT_EQ(m_file.rows(countPresets), QStringList(u"0"_s));
}

TEST_F(NewPresets, FindANameOnlyWithItsProcessAndCase)
{
    insert(rowNamed(u"A"_s));

    EXPECT_EQ(check(u"A"_s), u"A"_s);
    EXPECT_FALSE(check(u"a"_s));
    EXPECT_FALSE(check(u"A"_s, u"filters"_s));
}

TEST_F(NewPresets, ListTheRowsOfOneProcessInOrder)
{
    insert(rowNamed(u"A"_s));
    insert(rowNamed(u"B"_s, u"filters"_s));
    insert(rowNamed(u"C"_s));

    const auto rows = listOf(u"TextWM"_s);

    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 2);
    EXPECT_EQ(rows->first(), u"A|TextWM|Watermark"_s + QString(99, QLatin1Char('|')));
    EXPECT_TRUE(rows->last().startsWith(u"C|"_s));
}

TEST_F(NewPresets, GiveNothingForAProcessWithoutRows) { EXPECT_FALSE(listOf(u"TextWM"_s)); }

TEST_F(NewPresets, GiveAnEmptyDictionaryForAnUnknownName)
{
    EXPECT_EQ(dbViewController().getSelectedPreset(u"Presets"_s, u"A"_s), PresetValues());
}

TEST_F(NewPresets, MixTheRowsOfOneNameWithTheLastOnTop)
{
    insertField(u"A"_s, 4, u"first"_s);
    PresetRow other = rowNamed(u"A"_s, u"filters"_s);
    other[4] = u"last"_s;
    insert(other);

    const auto values
        = dbViewController().getSelectedPreset(u"Presets"_s, u"A"_s).value_or(PresetValues());

    EXPECT_EQ(values.value(u"Process"_s), u"filters"_s);
    EXPECT_EQ(values.value(u"StrField4"_s), u"last"_s);
    EXPECT_EQ(values.size(), 102);
    EXPECT_FALSE(values.contains(u"StrField0"_s));
    EXPECT_FALSE(values.contains(u"ID"_s));
    EXPECT_EQ(listOf(u"TextWM"_s)->size(), 1);
    EXPECT_EQ(listOf(u"filters"_s)->size(), 1);
}

TEST_F(NewPresets, RemoveEveryRowOfANameOfWhateverFunction)
{
    insert(rowNamed(u"A"_s));
    insert(rowNamed(u"A"_s, u"filters"_s));
    insert(rowNamed(u"B"_s));

    const auto result
        = dbViewController().removePresetFromDatabase(u"Presets"_s, u"NameOfPreset"_s, u"A"_s);

    EXPECT_FALSE(result);
    EXPECT_EQ(m_file.rows("select NameOfPreset from Presets"), QStringList(u"B"_s));
}

TEST_F(NewPresets, FailOnALoneApostropheAfterACheckThatFindsNothing)
{
    EXPECT_FALSE(check(u"it's"_s));
    EXPECT_EQ(failureOf([] { insert(rowNamed(u"it's"_s)); }), u"Error updating table."_s);
    EXPECT_EQ(m_file.rows(countPresets), QStringList(u"0"_s));
}

TEST_F(NewPresets, StoreADoubledApostropheAsOne)
{
    insert(rowNamed(u"it''s"_s));

    EXPECT_EQ(m_file.rows("select NameOfPreset from Presets"), QStringList(u"it's"_s));
    EXPECT_EQ(
        dbViewController().getSelectedPreset(u"Presets"_s, u"it''s"_s)->value(u"Process"_s),
        u"TextWM"_s
    );
}

TEST_F(NewPresets, RunFurtherStatementsInsideAValue)
{
    insert(rowNamed(u"A"_s));
    insertField(u"B"_s, 101, u"'); delete from Presets where NameOfPreset = 'A'; --"_s);

    EXPECT_EQ(m_file.rows("select NameOfPreset from Presets"), QStringList(u"B"_s));
}

struct KeptText
{
    std::string name;
    int position;
    QString written;
    QString read;

    friend void PrintTo(const KeptText& kept, std::ostream* out) { *out << kept.name; }
};

class KeptTexts : public NewPresets, public testing::WithParamInterface<KeptText>
{
};

TEST_P(KeptTexts, ComeBackAsTheFileKeepsThem)
{
    insertField(u"A"_s, GetParam().position, GetParam().written);

    EXPECT_EQ(field(u"A"_s, GetParam().position), GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(
    ,
    KeptTexts,
    testing::Values(
        KeptText{"LeadingZerosGo", 25, u"007"_s, u"7"_s},
        KeptText{"ZerosBecomeOne", 25, u"000000"_s, u"0"_s},
        KeptText{"FractionsLoseZeros", 25, u"12.50"_s, u"12.5"_s},
        KeptText{"ExponentsAreWorkedOut", 25, u"1e3"_s, u"1000"_s},
        KeptText{"AHexColorCanBecomeInfinite", 25, u"12E345"_s, u"Inf"_s},
        KeptText{"OtherHexColorsStay", 25, u"FFAA00"_s, u"FFAA00"_s},
        KeptText{"EmptyStays", 25, u""_s, u""_s},
        KeptText{"WordsStay", 25, u"007 is back"_s, u"007 is back"_s},
        KeptText{"FirstIntegerColumn", 21, u"007"_s, u"7"_s},
        KeptText{"LastIntegerColumn", 41, u"007"_s, u"7"_s},
        KeptText{"TextBeforeTheIntegers", 20, u"007"_s, u"007"_s},
        KeptText{"TextBehindTheIntegers", 42, u"007"_s, u"007"_s},
        KeptText{"BarsTabsAndLines", 6, u"a|b\tc\nd\re"_s, u"a|b\tc\nd\re"_s},
        KeptText{"Emoji", 6, u"\U0001F4F7 \u00fc\u4e2d"_s, u"\U0001F4F7 \u00fc\u4e2d"_s},
        KeptText{
            "AMegabyte",
            50,
            QString(1024 * 1024, QLatin1Char('x')),
            QString(1024 * 1024, QLatin1Char('x'))}
    ),
    test::CaseName()
);

TEST_F(NewPresets, CannotBeWrittenWhileAnotherProgramHoldsTheFile)
{
    insert(rowNamed(u"A"_s));
    {
        const auto lock = m_file.locked();

        EXPECT_EQ(failureOf([] { insert(rowNamed(u"B"_s)); }), u"Error updating table."_s);
        EXPECT_FALSE(check(u"A"_s));
        EXPECT_FALSE(listOf(u"TextWM"_s));
        EXPECT_FALSE(dbViewController().getSelectedPreset(u"Presets"_s, u"A"_s));
    }
    insert(rowNamed(u"B"_s));

    EXPECT_EQ(m_file.rows(countPresets), QStringList(u"2"_s));
}

TEST_F(NewPresets, CanBeReadButNotWrittenInAReadOnlyFile)
{
    insert(rowNamed(u"A"_s));
    const QString folder = m_file.folder().path();
    test::setMode(folder, 0755);
    test::setMode(folder + u"DravothCom"_s, 0555);
    test::setMode(m_file.path(), 0444);
    {
        const test::WithoutPrivileges user;

        EXPECT_EQ(failureOf([] { insert(rowNamed(u"B"_s)); }), u"Error updating table."_s);
        EXPECT_EQ(check(u"A"_s), u"A"_s);
    }
    test::setMode(folder + u"DravothCom"_s, 0755);
}

TEST(PresetsFile, OfAnotherProgramOrTruncatedGivesNothing)
{
    const test::PresetFile file;
    dbViewController().linkToPresetsDB();
    insert(rowNamed(u"A"_s));
    const QByteArray whole = test::TemporaryFolder::read(file.path());

    for (const QByteArray& contents :
         {QByteArray("not a database, but long enough to be looked at as one").repeated(40),
          whole.first(whole.size() / 2),
          whole.first(60)}) {
        (void)file.folder().write(u"DravothCom/Brenvaldo9.sql"_s, contents);
        EXPECT_EQ(failureOf([] { insert(rowNamed(u"B"_s)); }), u"Error updating table."_s);
        EXPECT_FALSE(listOf(u"TextWM"_s));
    }
}

TEST(PresetsFile, ThatCannotBeOpenedIsToldAtOnce)
{
    const test::PresetFile file;
    (void)file.folder().write(u"DravothCom"_s, "a file where the folder should be");

    EXPECT_EQ(
        failureOf([] { dbViewController().openmyPresetsDb(); }), u"Presets Db failed to open."_s
    );
    EXPECT_EQ(failureOf([] { insert(rowNamed(u"A"_s)); }), u"Presets Db failed to open."_s);
    EXPECT_FALSE(check(u"A"_s));
    EXPECT_FALSE(listOf(u"TextWM"_s));
    EXPECT_EQ(dbViewController().getSelectedPreset(u"Presets"_s, u"A"_s), PresetValues());
}

TEST_F(NewPresets, CannotTakeATableWhoseStatementIsBroken)
{
    dbViewController database;
    database.openmyPresetsDb();

    EXPECT_EQ(
        failureOf([&] { database.createTableNamed(u"it's"_s, presets::presetColumns()); }),
        u"Presets Table failed to create."_s
    );
}

TEST_F(NewPresets, LogThatImagesHaveNoTable)
{
    QStringList lines;
    platform::setLogSink([&](const QString& line) { lines.append(line); });
    dbViewController database;
    database.SaveImagesToSql("image", u"file:///a.jpg"_s);
    database.openmyPresetsDb();
    database.SaveImagesToSql("image", u"file:///a.jpg"_s);
    platform::setLogSink({});

    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines.first().startsWith(u"SaveBody: Failed from sqlite3_prepare_v2. Error is:  "_s)
    );
    EXPECT_TRUE(lines.last().endsWith(u"no such table: IMAGES"_s));
    EXPECT_TRUE(database.LoadImagesFromSql(u"file:///a.jpg"_s).isEmpty());
}

TEST_F(NewPresets, StayAsTheyAreUnderIdleOperations)
{
    dbViewController database;
    database.creatTableIfNotExist();
    database.getAllRowsFromTableNamed(u"Presets"_s);
    database.hSaveSecurityScopedBookmarks("bookmark");

    EXPECT_EQ(m_file.rows(countPresets), QStringList(u"0"_s));
}

TEST_F(NewPresets, GiveTheSecondSelectedColumnAsABookmark)
{
    insertField(u"A"_s, 4, u"folder"_s);
    const auto bookmarkOf = [](const QString& selected) {
        return dbViewController().hGetBookMarkedFolders(
            u"Presets"_s, u"NameOfPreset"_s, u"A"_s, u"Process"_s, u"TextWM"_s, selected
        );
    };

    EXPECT_EQ(bookmarkOf(u"Process, StrField4"_s), "folder");
    EXPECT_TRUE(bookmarkOf(u"StrField4"_s).isEmpty());
}
