// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>

namespace brenvaldo::platform {

/// A fault of the platform that ends the action in which it is raised; the program goes on.
///
/// `ActionRegistry::send` catches it, logs it with its reason and tells its observers.
class Exception : public std::exception
{
public:
    Exception(QString kind, QString reason);

    /// Name of the fault, such as "NSRangeException".
    [[nodiscard]] const QString& kind() const { return m_kind; }
    [[nodiscard]] const QString& reason() const { return m_reason; }
    [[nodiscard]] const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_kind;
    QString m_reason;
    QByteArray m_what;
};

/// An index or range outside of a string or an array ("NSRangeException").
class RangeError : public Exception
{
public:
    explicit RangeError(const QString& reason);
};

/// An argument that an operation can't take, such as a missing text ("NSInvalidArgumentException").
class InvalidArgument : public Exception
{
public:
    explicit InvalidArgument(const QString& reason);
};

/// A failed assertion of the database layer ("NSInternalInconsistencyException").
class AssertionFailure : public Exception
{
public:
    explicit AssertionFailure(const QString& reason);
};

} // namespace brenvaldo::platform
