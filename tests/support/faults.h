// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::test {

inline void setMode(const QString& path, mode_t mode)
{
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("the mode can't be set");
}

/// For its life the process has no rights of the superuser, so that permissions count as they do
/// for a user. Folders of the test must be open to others (`chmod 755`) to be reached at all.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
        : m_user(::geteuid())
    {
        constexpr uid_t nobody = 65534;
        if (m_user == 0 && ::seteuid(nobody) != 0)
            qFatal("the privileges can't be dropped");
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
    WithoutPrivileges(WithoutPrivileges&&) = delete;
    WithoutPrivileges& operator=(WithoutPrivileges&&) = delete;
    ~WithoutPrivileges()
    {
        if (::seteuid(m_user) != 0)
            qFatal("the privileges can't be taken back");
    }

private:
    uid_t m_user;
};

/// For its life no file grows beyond `bytes`: writes fail as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {.rlim_cur = bytes, .rlim_max = m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    FullDisk(FullDisk&&) = delete;
    FullDisk& operator=(FullDisk&&) = delete;
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_before = {};
};

} // namespace brenvaldo::test
