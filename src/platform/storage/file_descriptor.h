// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace brenvaldo::platform::storage {

/// An open file of the system.
class FileDescriptor
{
public:
    FileDescriptor(const QString& path, int flags)
        : m_descriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC))
    {
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor(FileDescriptor&&) = delete;
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor()
    {
        if (isOpen())
            ::close(m_descriptor);
    }

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int get() const { return m_descriptor; }
    /// False when the file system reports a late failure.
    [[nodiscard]] bool close() { return ::close(std::exchange(m_descriptor, -1)) == 0; }

private:
    int m_descriptor;
};

} // namespace brenvaldo::platform::storage
