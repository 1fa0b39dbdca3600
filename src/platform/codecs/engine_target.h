// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/output_file.h>

#include <QByteArray>

#include <vips/vips8>

namespace brenvaldo::platform::codecs {

/// The way of the engine's encoders into an output file. Bytes that an encoder knows nothing of can
/// be put in between; such an encoder must not seek.
class EngineTarget
{
public:
    struct Insertion
    {
        qint64 at = 0; ///< count of the encoder's bytes in front of the inserted ones
        QByteArray bytes = {};
    };

    explicit EngineTarget(OutputFile& file);
    EngineTarget(OutputFile& file, Insertion insertion);

    /// What the encoder writes to; must not outlive this object.
    [[nodiscard]] vips::VTarget target();

private:
    static gint64
    onWrite(VipsTargetCustom* target, const void* bytes, gint64 length, gpointer engineTarget);
    static gint64
    onRead(VipsTargetCustom* target, void* bytes, gint64 length, gpointer engineTarget);
    static gint64
    onSeek(VipsTargetCustom* target, gint64 offset, int whence, gpointer engineTarget);

    void write(const char* bytes, qint64 length);
    [[nodiscard]] gint64 seek(qint64 offset, int whence);

    OutputFile& m_file;
    Insertion m_insertion;
    qint64 m_received = 0;
};

} // namespace brenvaldo::platform::codecs
