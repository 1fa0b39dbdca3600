// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/regular_file.h>

#include <QByteArrayView>
#include <QFile>
#include <QString>

namespace brenvaldo::platform::containers {

/// The bytes of a regular file, without reading what nobody looks at.
class MappedFile
{
public:
    explicit MappedFile(const QString& path)
        : m_file(path)
    {
        if (openRegularFile(m_file) && m_file.size() > 0)
            m_start = m_file.map(0, m_file.size());
    }

    /// Valid as long as this object; empty when the file can't be read.
    [[nodiscard]] QByteArrayView bytes() const
    {
        return m_start ? QByteArrayView(m_start, m_file.size()) : QByteArrayView();
    }

private:
    QFile m_file;
    const uchar* m_start = nullptr;
};

} // namespace brenvaldo::platform::containers
