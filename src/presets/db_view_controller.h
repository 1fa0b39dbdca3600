// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/storage/sqlite_connection.h>

#include <QHash>
#include <QStringList>

#include <array>

namespace brenvaldo::presets {

/// The 102 values of one preset in column order. A missing value is one that its control could not
/// give; no row can be made from it.
using PresetRow = std::array<std::optional<QString>, 102>;

/// A preset by column name, such as "StrField24"; `ID` is not in it.
using PresetValues = QHash<QString, QString>;

/// The gateway to the presets file. An instance serves one operation or two and is dropped.
///
/// Each operation opens the file, runs one statement and closes; there are no transactions. A
/// failure to write raises `AssertionFailure`, a failure to read gives the empty result.
class dbViewController
{
public:
    dbViewController() = default;
    dbViewController(const dbViewController&) = delete;
    dbViewController& operator=(const dbViewController&) = delete;
    dbViewController(dbViewController&&) = delete;
    dbViewController& operator=(dbViewController&&) = delete;
    ~dbViewController();

    /// Path of the file; its folder is made at each call.
    [[nodiscard]] static QString dbFilePath();

    /// Makes the file with its two tables and the seed row, unless it exists. The first of the
    /// connections it opens stays open until the process ends.
    void linkToPresetsDB();

    void openmyPresetsDb();
    void createTableNamed(const QString& table, const QStringList& columns);

    /// Leaves the connection open when it succeeds; the caller closes.
    void insertRecordIntoTableNamed(
        const QString& table, const QStringList& columns, const QStringList& values
    );
    void close();

    /// Adds a row to `Presets`; raises `InvalidArgument` when a value is missing.
    void insertSortingPresetToDB01(const PresetRow& row);
    void insertSortingPresetToDB02(const PresetRow& row);
    void insertHTMLPresetToDB01(const PresetRow& row);

    /// The name, when a preset of that name and process exists.
    [[nodiscard]] std::optional<QString> checkPresetNameFromTableNamed(
        const QString& table,
        const QString& nameColumn,
        const QString& name,
        const QString& processColumn,
        const QString& process
    );

    /// Every matching row as one text, its 102 values joined by "|"; nothing when no row matches.
    [[nodiscard]] std::optional<QStringList>
    checkForActionType(const QString& table, const QString& column, const QString& value);

    /// The values of all rows of that name, the last row's over the earlier ones; empty when there
    /// is none, the file can't be opened or the statement is no valid one. Nothing when the file is
    /// damaged or stays locked.
    [[nodiscard]] std::optional<PresetValues>
    getSelectedPreset(const QString& table, const QString& name);

    /// "preset not found" when the statement is no valid one, nothing otherwise.
    std::optional<QString>
    removePresetFromDatabase(const QString& table, const QString& column, const QString& value);

    void getAllRowsFromTableNamed(const QString& table);

    /// Both use the connection that is open, if any is.
    void SaveImagesToSql(const QByteArray& image, const QString& url);
    [[nodiscard]] QByteArray LoadImagesFromSql(const QString& url);

    void creatTableIfNotExist() const;

    /// Leaves the connection open.
    void hSaveSecurityScopedBookmarks(const QByteArray& bookmark);

    /// The second selected column of the last row in which both columns have their value.
    [[nodiscard]] QByteArray hGetBookMarkedFolders(
        const QString& table,
        const QString& firstColumn,
        const QString& firstValue,
        const QString& secondColumn,
        const QString& secondValue,
        const QString& selected
    );

private:
    [[nodiscard]] bool open();
    void openOrRaise();

    std::optional<platform::storage::Connection> m_myDb;
    std::optional<QString> m_myPresetExist;
    std::optional<QStringList> m_myPresetsArrayToPass;
    QByteArray m_mySearchValue4;
};

} // namespace brenvaldo::presets
