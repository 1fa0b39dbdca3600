// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

#include <array>
#include <csetjmp>
#include <cstdio> // jpeglib.h needs it

#include <jpeglib.h>

namespace brenvaldo::platform::codecs {

/// A JPEG file on its way through the decoder; answers false at the first fault.
///
/// Data that end early or can't be decoded are a fault, be there an end marker or not.
class JpegReader
{
public:
    explicit JpegReader(const QString& path);
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    JpegReader(JpegReader&&) = delete;
    JpegReader& operator=(JpegReader&&) = delete;
    ~JpegReader();

    [[nodiscard]] bool readHeader();

    /// Behind `readHeader`.
    [[nodiscard]] const jpeg_decompress_struct& facts() const { return m_decoder; }
    [[nodiscard]] qint64 fileSize() const { return m_file.size(); }

    /// Behind `readHeader`: from now on rows can be read.
    [[nodiscard]] bool start(int shrink);

    /// The next row; CMYK as amounts of ink.
    [[nodiscard]] bool readRow(JSAMPLE* row);

private:
    // The library finds its way back to this object by the address of its part.
    struct Errors : jpeg_error_mgr
    {
        std::jmp_buf back;
    };
    struct Source : jpeg_source_mgr
    {
        JpegReader* reader;
    };

    static void fail(j_common_ptr decoder);
    static void emitMessage(j_common_ptr decoder, int level);
    static void checkScans(j_common_ptr decoder);
    static boolean fill(j_decompress_ptr decoder);
    static void skip(j_decompress_ptr decoder, long count);

    QFile m_file;
    Errors m_errors = {};
    Source m_source = {};
    jpeg_progress_mgr m_progress = {};
    jpeg_decompress_struct m_decoder = {};
    // With more bytes at hand than this the library takes a way through them on which it passes bad
    // codes over without a word.
    std::array<JOCTET, 512> m_buffer;
    bool m_isOpen = false;
};

} // namespace brenvaldo::platform::codecs
