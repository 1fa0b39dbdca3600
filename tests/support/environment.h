// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace brenvaldo::test {

/// Gives an environment variable a value, none when `value` is null; its old one comes back with
/// the end of the object.
class Environment
{
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        set(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    Environment(Environment&&) = delete;
    Environment& operator=(Environment&&) = delete;
    ~Environment() { set(m_before); }

private:
    void set(const QByteArray& value) const
    {
        value.isNull() ? qunsetenv(m_name) : qputenv(m_name, value);
    }

    const char* m_name;
    QByteArray m_before;
};

} // namespace brenvaldo::test
