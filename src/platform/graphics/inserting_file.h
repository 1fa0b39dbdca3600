// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>

#include <vips/vips8>

namespace brenvaldo::platform {

/// A file that an encoder of the engine writes, with bytes put in that the encoder knows nothing
/// of.
class InsertingFile
{
public:
    struct Insertion
    {
        qint64 at; ///< count of the encoder's bytes in front of the inserted ones
        QByteArray bytes;
    };

    InsertingFile(const QString& path, Insertion insertion);

    /// What the encoder writes to; must not outlive the file.
    [[nodiscard]] vips::VTarget target();

    /// To be called when the encoder is done. Throws `vips::VError` when any byte could not be
    /// written.
    void finish();

private:
    static gint64
    receive(VipsTargetCustom* target, const void* bytes, gint64 length, gpointer insertingFile);
    void write(const char* bytes, qint64 length);
    void append(const char* bytes, qint64 length);

    QFile m_file;
    Insertion m_insertion;
    qint64 m_received = 0;
    bool m_isWhole;
};

} // namespace brenvaldo::platform
