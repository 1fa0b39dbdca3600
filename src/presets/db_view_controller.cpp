// SPDX-License-Identifier: GPL-3.0-or-later
#include "db_view_controller.h"

#include "preset_statements.h"

#include <platform/foundation/exceptions.h>
#include <platform/foundation/folders.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>

#include <QDir>
#include <QFileInfo>

#include <vector>

namespace brenvaldo::presets {

using platform::storage::Connection;
using platform::storage::Statement;

namespace {

/// Keeps a connection open until the process ends. It holds no lock.
void keepOpen(std::optional<Connection> connection)
{
    static std::vector<Connection> open;
    if (connection)
        open.push_back(std::move(*connection));
}

using Step = Statement::Step;

QString presetsTable() { return u"Presets"_s; }

/// The values of the present row behind `ID`, joined by "|".
QString rowText(const Statement& statement)
{
    QStringList values;
    for (int column = 1; column <= columnCount; ++column)
        values.append(statement.text(column).value_or(QString()));
    return values.join(QLatin1Char('|'));
}

/// The values by column, the last row's over the earlier ones; nothing when not all can be read.
std::optional<PresetValues> valuesOfAllRows(const Statement& statement)
{
    PresetValues values;
    Step step = statement.step();
    for (; step == Step::Row; step = statement.step()) {
        for (int column = 1; column < statement.dataCount(); ++column)
            values.insert(statement.columnName(column), statement.text(column).value_or(QString()));
    }
    return step == Step::Done ? std::optional(values) : std::nullopt;
}

QStringList completeValues(const PresetRow& row)
{
    const QStringList columns = presetColumns();
    QStringList values;
    for (const std::optional<QString>& value : row) {
        if (!value)
            throw platform::InvalidArgument(
                u"The preset has no value for %1."_s.arg(columns[values.size()])
            );
        values.append(*value);
    }
    return values;
}

} // namespace

dbViewController::~dbViewController() { keepOpen(std::move(m_myDb)); }

QString dbViewController::dbFilePath()
{
    const QString folder
        = platform::appendingPathComponent(platform::applicationSupportFolder(), u"DravothCom/"_s);
    QDir().mkpath(folder);
    return platform::appendingPathComponent(folder, u"Brenvaldo9.sql"_s);
}

bool dbViewController::open()
{
    keepOpen(std::exchange(m_myDb, std::nullopt));
    m_myDb = Connection::open(dbFilePath());
    return m_myDb.has_value();
}

void dbViewController::openOrRaise()
{
    if (!open())
        throw platform::AssertionFailure(u"Presets Db failed to open."_s);
}

void dbViewController::close() { m_myDb.reset(); }

void dbViewController::openmyPresetsDb() { openOrRaise(); }

void dbViewController::linkToPresetsDB()
{
    if (QFileInfo::exists(dbFilePath()))
        return;
    openmyPresetsDb();
    createTableNamed(presetsTable(), presetColumns());
    createTableNamed(u"AppBookmarks"_s, bookmarkColumns());

    QStringList seed(columnCount, u""_s);
    seed.first() = u"myAppDestBookmark"_s;
    insertRecordIntoTableNamed(u"AppBookMarks"_s, bookmarkColumns(), seed);
    close();
}

void dbViewController::createTableNamed(const QString& table, const QStringList& columns)
{
    if (m_myDb && m_myDb->execute(createTableStatement(table, columns)))
        return;
    close();
    throw platform::AssertionFailure(u"Presets Table failed to create."_s);
}

void dbViewController::insertRecordIntoTableNamed(
    const QString& table, const QStringList& columns, const QStringList& values
)
{
    openOrRaise();
    if (m_myDb->execute(insertStatement(table, columns, values)))
        return;
    close();
    throw platform::AssertionFailure(u"Error updating table."_s);
}

void dbViewController::insertSortingPresetToDB01(const PresetRow& row)
{
    insertRecordIntoTableNamed(presetsTable(), presetColumns(), completeValues(row));
    close();
}

void dbViewController::insertSortingPresetToDB02(const PresetRow& row)
{
    insertSortingPresetToDB01(row);
}

void dbViewController::insertHTMLPresetToDB01(const PresetRow& row)
{
    insertSortingPresetToDB01(row);
}

std::optional<QString> dbViewController::checkPresetNameFromTableNamed(
    const QString& table,
    const QString& nameColumn,
    const QString& name,
    const QString& processColumn,
    const QString& process
)
{
    if (!open())
        return m_myPresetExist;
    const QString text
        = selectStatement(u"*"_s, table, {{nameColumn, name}, {processColumn, process}});
    if (const auto statement = m_myDb->prepare(text)) {
        while (statement->step() == Step::Row)
            m_myPresetExist = statement->text(1);
    }
    close();
    return m_myPresetExist;
}

std::optional<QStringList> dbViewController::checkForActionType(
    const QString& table, const QString& column, const QString& value
)
{
    if (!open())
        return m_myPresetsArrayToPass;
    if (const auto statement = m_myDb->prepare(selectStatement(u"*"_s, table, {{column, value}}))) {
        QStringList rows;
        while (statement->step() == Step::Row)
            rows.append(rowText(*statement));
        if (!rows.isEmpty())
            m_myPresetsArrayToPass = rows;
    }
    close();
    return m_myPresetsArrayToPass;
}

std::optional<PresetValues>
dbViewController::getSelectedPreset(const QString& table, const QString& name)
{
    if (!open())
        return PresetValues();
    std::optional<PresetValues> values;
    const QString text = selectStatement(u"*"_s, table, {{u"NameOfPreset"_s, name}});
    if (const auto statement = m_myDb->prepare(text))
        values = valuesOfAllRows(*statement);
    else if (m_myDb->failedByStatement())
        values = PresetValues();
    close();
    return values;
}

std::optional<QString> dbViewController::removePresetFromDatabase(
    const QString& table, const QString& column, const QString& value
)
{
    if (!open())
        return m_myPresetExist;
    {
        const auto statement = m_myDb->prepare(deleteStatement(table, {column, value}));
        if (!statement)
            m_myPresetExist = u"preset not found"_s;
        else if (statement->step() == Step::Row)
            m_myPresetExist = u"preset removed"_s;
    }
    close();
    return m_myPresetExist;
}

void dbViewController::getAllRowsFromTableNamed(const QString& table)
{
    if (!open())
        return;
    if (const auto statement = m_myDb->prepare(selectStatement(u"*"_s, table))) {
        while (statement->step() == Step::Row) { }
    }
    close();
}

void dbViewController::SaveImagesToSql(const QByteArray& image, const QString& url)
{
    const QString text = u"INSERT INTO IMAGES (URL, IMAGE) VALUES (?, ?)"_s;
    const auto statement = m_myDb ? m_myDb->prepare(text) : std::nullopt;
    if (!statement) {
        platform::log(u"SaveBody: Failed from sqlite3_prepare_v2. Error is:  %1"_s.arg(
            m_myDb ? m_myDb->errorMessage() : u"no connection"_s
        ));
        return;
    }
    statement->bind(1, url);
    statement->bind(2, image);
    (void)statement->step();
}

QByteArray dbViewController::LoadImagesFromSql(const QString& url)
{
    const QString text = selectStatement(u"IMAGE"_s, u"IMAGES"_s, {{u"URL"_s, url}});
    const auto statement = m_myDb ? m_myDb->prepare(text) : std::nullopt;
    return statement && statement->step() == Step::Row ? statement->blob(0) : QByteArray();
}

void dbViewController::creatTableIfNotExist() const { }

void dbViewController::hSaveSecurityScopedBookmarks(const QByteArray& bookmark)
{
    const QString text = u"insert into Image(Image)values(?)"_s;
    if (!open())
        return;
    const auto statement = m_myDb->prepare(text);
    if (!statement)
        return;
    statement->bind(1, bookmark);
    (void)statement->step();
    (void)m_myDb->execute(text);
}

QByteArray dbViewController::hGetBookMarkedFolders(
    const QString& table,
    const QString& firstColumn,
    const QString& firstValue,
    const QString& secondColumn,
    const QString& secondValue,
    const QString& selected
)
{
    if (!open())
        return m_mySearchValue4;
    const QString text = selectStatement(
        selected, table, {{firstColumn, firstValue}, {secondColumn, secondValue}}
    );
    if (const auto statement = m_myDb->prepare(text)) {
        while (statement->step() == Step::Row)
            m_mySearchValue4 = statement->blob(1);
    }
    close();
    return m_mySearchValue4;
}

} // namespace brenvaldo::presets
