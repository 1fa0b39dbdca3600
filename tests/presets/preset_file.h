// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>
#include <platform/storage/sqlite_connection.h>

#include "support/environment.h"
#include "support/temporary_folder.h"

#include <sqlite3.h>

#include <QStringList>

#include <memory>

namespace brenvaldo::test {

/// A presets file of its own for one test, and a look at it that goes around the program's code.
class PresetFile
{
public:
    /// The folder that the program takes for the user's application support.
    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }
    [[nodiscard]] QString path() const { return m_folder.path(u"DravothCom/Brenvaldo9.sql"_s); }

    /// Runs `text` and answers its rows, the values of each joined by "|".
    [[nodiscard]] QStringList rows(const char* text) const
    {
        QStringList found;
        const auto connection = open();
        char* message = nullptr;
        sqlite3_exec(connection.get(), text, &appendRow, &found, &message);
        if (message != nullptr)
            found.append(QString::fromUtf8(message));
        sqlite3_free(message);
        return found;
    }

    struct Close
    {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };
    using Connection = std::unique_ptr<sqlite3, Close>;

    /// Keeps the file locked against every other connection, and those from waiting long, while the
    /// result lives.
    class Lock
    {
    public:
        explicit Lock(Connection connection)
            : m_connection(std::move(connection))
        {
            sqlite3_exec(m_connection.get(), "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
            platform::storage::Connection::patience = std::chrono::milliseconds(20);
        }
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;
        Lock(Lock&&) = delete;
        Lock& operator=(Lock&&) = delete;
        ~Lock() { platform::storage::Connection::patience = m_patience; }

    private:
        Connection m_connection;
        std::chrono::milliseconds m_patience = platform::storage::Connection::patience;
    };
    [[nodiscard]] Lock locked() const { return Lock(open()); }

private:
    [[nodiscard]] Connection open() const
    {
        sqlite3* handle = nullptr;
        if (sqlite3_open(path().toUtf8().constData(), &handle) != SQLITE_OK)
            qFatal("the presets file can't be opened");
        return Connection(handle);
    }

    static int appendRow(void* rows, int count, char** values, char** /*names*/)
    {
        QStringList row;
        for (int column = 0; column < count; ++column)
            row.append(QString::fromUtf8(values[column]));
        static_cast<QStringList*>(rows)->append(row.join(QLatin1Char('|')));
        return 0;
    }

    TemporaryFolder m_folder;
    Environment m_dataHome{"XDG_DATA_HOME", m_folder.path().toUtf8()};
};

} // namespace brenvaldo::test
