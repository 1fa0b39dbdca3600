// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine_target.h"

#include <algorithm>
#include <cstdio>

namespace brenvaldo::platform::codecs {

EngineTarget::EngineTarget(OutputFile& file)
    : EngineTarget(file, {})
{
}

EngineTarget::EngineTarget(OutputFile& file, Insertion insertion)
    : m_file(file)
    , m_insertion(std::move(insertion))
{
}

vips::VTarget EngineTarget::target()
{
    VipsTargetCustom* made = vips_target_custom_new();
    g_signal_connect(made, "write", G_CALLBACK(onWrite), this);
    g_signal_connect(made, "read", G_CALLBACK(onRead), this);
    g_signal_connect(made, "seek", G_CALLBACK(onSeek), this);
    return vips::VTarget(VIPS_TARGET(made));
}

gint64 EngineTarget::onWrite(
    VipsTargetCustom* /*target*/, const void* bytes, gint64 length, gpointer engineTarget
)
{
    auto* self = static_cast<EngineTarget*>(engineTarget);
    self->write(static_cast<const char*>(bytes), length);
    return self->m_file.isWhole() ? length : -1;
}

gint64 EngineTarget::onRead(
    VipsTargetCustom* /*target*/, void* bytes, gint64 length, gpointer engineTarget
)
{
    return static_cast<EngineTarget*>(engineTarget)->m_file.read(static_cast<char*>(bytes), length);
}

gint64
EngineTarget::onSeek(VipsTargetCustom* /*target*/, gint64 offset, int whence, gpointer engineTarget)
{
    return static_cast<EngineTarget*>(engineTarget)->seek(offset, whence);
}

void EngineTarget::write(const char* bytes, qint64 length)
{
    const qint64 inFront = std::clamp<qint64>(m_insertion.at - m_received, 0, length);
    m_file.write(bytes, inFront);
    m_received += length;
    if (inFront > 0 && m_received >= m_insertion.at)
        m_file.write(m_insertion.bytes);
    m_file.write(bytes + inFront, length - inFront);
}

gint64 EngineTarget::seek(qint64 offset, int whence)
{
    if (whence == SEEK_CUR)
        offset += m_file.pos();
    else if (whence == SEEK_END)
        offset += m_file.size();
    return m_file.seek(offset) ? m_file.pos() : -1;
}

} // namespace brenvaldo::platform::codecs
