// SPDX-License-Identifier: GPL-3.0-or-later
#include "inserting_file.h"

#include <algorithm>

namespace brenvaldo::platform {

InsertingFile::InsertingFile(const QString& path, Insertion insertion)
    : m_file(path)
    , m_insertion(std::move(insertion))
    , m_isWhole(m_file.open(QIODevice::WriteOnly))
{
}

vips::VTarget InsertingFile::target()
{
    VipsTargetCustom* made = vips_target_custom_new();
    g_signal_connect(made, "write", G_CALLBACK(receive), this);
    return vips::VTarget(VIPS_TARGET(made));
}

void InsertingFile::finish()
{
    if (!m_isWhole || !m_file.flush())
        throw vips::VError("the file can't be written");
}

gint64 InsertingFile::receive(
    VipsTargetCustom* /*target*/, const void* bytes, gint64 length, gpointer insertingFile
)
{
    auto* file = static_cast<InsertingFile*>(insertingFile);
    file->write(static_cast<const char*>(bytes), length);
    return file->m_isWhole ? length : -1;
}

void InsertingFile::write(const char* bytes, qint64 length)
{
    const qint64 inFront = std::clamp<qint64>(m_insertion.at - m_received, 0, length);
    append(bytes, inFront);
    m_received += length;
    if (inFront > 0 && m_received >= m_insertion.at)
        append(m_insertion.bytes.constData(), m_insertion.bytes.size());
    append(bytes + inFront, length - inFront);
}

void InsertingFile::append(const char* bytes, qint64 length)
{
    m_isWhole = m_isWhole && m_file.write(bytes, length) == length;
}

} // namespace brenvaldo::platform
