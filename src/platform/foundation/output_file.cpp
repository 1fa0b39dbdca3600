// SPDX-License-Identifier: GPL-3.0-or-later
#include "output_file.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenvaldo::platform {

namespace {

constexpr qint64 bytesAtOnce = 64 << 10;
constexpr mode_t modeBeforeMask = 0666;

} // namespace

OutputFile::OutputFile(const QString& path)
    : m_descriptor(::open(
        QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, modeBeforeMask
    ))
{
    if (keptWhole(m_descriptor >= 0))
        open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

OutputFile::~OutputFile()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool OutputFile::finish()
{
    return writeWaiting() && keptWhole(::close(std::exchange(m_descriptor, -1)) == 0);
}

qint64 OutputFile::size() const
{
    struct stat status = {};
    const qint64 written = ::fstat(m_descriptor, &status) == 0 ? status.st_size : 0;
    return std::max(written, ::lseek(m_descriptor, 0, SEEK_CUR) + m_waiting.size());
}

bool OutputFile::seek(qint64 position)
{
    return writeWaiting() && keptWhole(::lseek(m_descriptor, position, SEEK_SET) == position)
        && QIODevice::seek(position);
}

qint64 OutputFile::readData(char* bytes, qint64 length)
{
    if (!writeWaiting())
        return -1;
    const ssize_t count = ::read(m_descriptor, bytes, static_cast<std::size_t>(length));
    return keptWhole(count >= 0) ? count : -1;
}

qint64 OutputFile::writeData(const char* bytes, qint64 length)
{
    if (m_waiting.size() + length > bytesAtOnce && !writeWaiting())
        return -1;
    if (length > bytesAtOnce)
        return writeOut(bytes, length) ? length : -1;
    m_waiting.append(bytes, length);
    return isWhole() ? length : -1;
}

bool OutputFile::keptWhole(bool succeeded)
{
    if (!succeeded && isWhole())
        m_fault = qt_error_string(errno);
    return isWhole();
}

bool OutputFile::writeOut(const char* bytes, qint64 length)
{
    while (isWhole() && length > 0) {
        const ssize_t count = ::write(m_descriptor, bytes, static_cast<std::size_t>(length));
        if (count < 0 && errno == EINTR)
            continue;
        if (keptWhole(count >= 0)) {
            bytes += count;
            length -= count;
        }
    }
    return isWhole();
}

bool OutputFile::writeWaiting()
{
    const QByteArray waiting = std::exchange(m_waiting, {});
    return writeOut(waiting.constData(), waiting.size());
}

} // namespace brenvaldo::platform
