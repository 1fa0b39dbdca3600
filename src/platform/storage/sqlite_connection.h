// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace brenvaldo::platform::storage {

class Statement;

/// An open SQLite file; closed with the object. What another process has locked is waited for.
class Connection
{
public:
    /// How long a connection made from now on waits for a lock.
    static inline std::chrono::milliseconds patience{5000};

    /// Nothing when the file can't be opened. A file that does not exist is made.
    [[nodiscard]] static std::optional<Connection> open(const QString& path);

    /// Runs all statements of `text`; false at the first that fails.
    [[nodiscard]] bool execute(const QString& text) const;

    /// Compiles the first statement of `text`; nothing when that fails.
    [[nodiscard]] std::optional<Statement> prepare(const QString& text) const;

    /// True when the last failure lies in the statement, not in the file or in a lock on it.
    [[nodiscard]] bool failedByStatement() const;

    /// What the last failure was.
    [[nodiscard]] QString errorMessage() const;

private:
    struct Close
    {
        void operator()(sqlite3* handle) const;
    };

    explicit Connection(sqlite3* handle)
        : m_handle(handle)
    {
    }

    std::unique_ptr<sqlite3, Close> m_handle;
};

/// A compiled statement; columns count from 0.
class Statement
{
public:
    enum class Step { Row, Done, Failed };

    /// Goes on to the next row.
    [[nodiscard]] Step step() const;

    /// Columns of the present row.
    [[nodiscard]] int dataCount() const;
    [[nodiscard]] QString columnName(int column) const;
    /// Nothing for a value of null and for a column that does not exist.
    [[nodiscard]] std::optional<QString> text(int column) const;
    /// Empty for a column that does not exist.
    [[nodiscard]] QByteArray blob(int column) const;

    /// Parameters count from 1.
    void bind(int parameter, const QString& value) const;
    void bind(int parameter, const QByteArray& value) const;

private:
    friend class Connection;

    struct Finalize
    {
        void operator()(sqlite3_stmt* handle) const;
    };

    explicit Statement(sqlite3_stmt* handle)
        : m_handle(handle)
    {
    }

    std::unique_ptr<sqlite3_stmt, Finalize> m_handle;
};

} // namespace brenvaldo::platform::storage
