// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace brenvaldo::presets {

class Statement;

/// An open SQLite file; closed with the object.
class Connection
{
public:
    /// Nothing when the file can't be opened. A file that does not exist is made.
    [[nodiscard]] static std::optional<Connection> open(const QString& path);

    /// Runs all statements of `text`; false at the first that fails.
    [[nodiscard]] bool execute(const QString& text) const;

    /// Compiles the first statement of `text`; nothing when that fails.
    [[nodiscard]] std::optional<Statement> prepare(const QString& text) const;

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
    /// True when a row is there to be read.
    [[nodiscard]] bool step() const;

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

} // namespace brenvaldo::presets
