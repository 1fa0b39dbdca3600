// SPDX-License-Identifier: GPL-3.0-or-later
#include "sqlite_connection.h"

#include <sqlite3.h>

namespace brenvaldo::platform::storage {

void Connection::Close::operator()(sqlite3* handle) const { sqlite3_close(handle); }

void Statement::Finalize::operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }

std::optional<Connection> Connection::open(const QString& path)
{
    sqlite3* handle = nullptr;
    const int status = sqlite3_open(path.toUtf8().constData(), &handle);
    Connection connection(handle);
    if (status != SQLITE_OK)
        return std::nullopt;
    sqlite3_busy_timeout(handle, static_cast<int>(patience.count()));
    return connection;
}

bool Connection::execute(const QString& text) const
{
    return sqlite3_exec(m_handle.get(), text.toUtf8().constData(), nullptr, nullptr, nullptr)
        == SQLITE_OK;
}

std::optional<Statement> Connection::prepare(const QString& text) const
{
    sqlite3_stmt* handle = nullptr;
    const int status
        = sqlite3_prepare_v2(m_handle.get(), text.toUtf8().constData(), -1, &handle, nullptr);
    Statement statement(handle);
    if (status != SQLITE_OK)
        return std::nullopt;
    return statement;
}

bool Connection::failedByStatement() const
{
    return sqlite3_errcode(m_handle.get()) == SQLITE_ERROR;
}

QString Connection::errorMessage() const
{
    return QString::fromUtf8(sqlite3_errmsg(m_handle.get()));
}

Statement::Step Statement::step() const
{
    switch (sqlite3_step(m_handle.get())) {
    case SQLITE_ROW:
        return Step::Row;
    case SQLITE_DONE:
        return Step::Done;
    default:
        return Step::Failed;
    }
}

int Statement::dataCount() const { return sqlite3_data_count(m_handle.get()); }

QString Statement::columnName(int column) const
{
    return QString::fromUtf8(sqlite3_column_name(m_handle.get(), column));
}

std::optional<QString> Statement::text(int column) const
{
    const unsigned char* text = sqlite3_column_text(m_handle.get(), column);
    if (text == nullptr)
        return std::nullopt;
    return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

QByteArray Statement::blob(int column) const
{
    const void* data = sqlite3_column_blob(m_handle.get(), column);
    return {static_cast<const char*>(data), sqlite3_column_bytes(m_handle.get(), column)};
}

void Statement::bind(int parameter, const QString& value) const
{
    const QByteArray utf8 = value.toUtf8();
    sqlite3_bind_text64(
        m_handle.get(),
        parameter,
        utf8.constData(),
        static_cast<sqlite3_uint64>(utf8.size()),
        SQLITE_TRANSIENT,
        SQLITE_UTF8
    );
}

void Statement::bind(int parameter, const QByteArray& value) const
{
    sqlite3_bind_blob64(
        m_handle.get(),
        parameter,
        value.constData(),
        static_cast<sqlite3_uint64>(value.size()),
        SQLITE_TRANSIENT
    );
}

} // namespace brenvaldo::platform::storage
