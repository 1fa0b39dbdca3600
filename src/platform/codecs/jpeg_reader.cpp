// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_reader.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/regular_file.h>

#include <vips/vips8>

#include <jerror.h>

#include <algorithm>
#include <span>

namespace brenvaldo::platform::codecs {

namespace {

QString messageOf(j_common_ptr decoder)
{
    char text[JMSG_LENGTH_MAX];
    decoder->err->format_message(decoder, text);
    return u"JPEG: "_s + QString::fromLatin1(text);
}

/// True for bytes that nobody asked for between parts of the picture: something before them ended
/// too early. Cameras leave such bytes in front of the picture, and of the end marker.
bool skipsPicture(const jpeg_decompress_struct& decoder)
{
    const int marker = decoder.err->msg_parm.i[1];
    return decoder.input_scan_number > 0 && marker != JPEG_EOI;
}

/// True for warnings of the library behind which a part of the picture is made up.
bool isDamage(j_common_ptr decoder)
{
    switch (decoder->err->msg_code) {
    case JWRN_HIT_MARKER:
    case JWRN_JPEG_EOF:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_ARITH_BAD_CODE:
    case JWRN_MUST_RESYNC:
    case JWRN_BOGUS_PROGRESSION:
        return true;
    case JWRN_EXTRANEOUS_DATA:
        return skipsPicture(*reinterpret_cast<j_decompress_ptr>(decoder));
    default:
        return false;
    }
}

/// True when each component has come in some scan; the library makes up those that have not.
bool hasAllComponents(const jpeg_decompress_struct& decoder)
{
    const std::span components(decoder.comp_info, static_cast<std::size_t>(decoder.num_components));
    return std::ranges::all_of(components, [](const jpeg_component_info& component) {
        return component.quant_table != nullptr;
    });
}

void ignore(j_decompress_ptr /*decoder*/) { }

} // namespace

JpegReader::JpegReader(const QString& path)
    : m_file(path)
{
    m_decoder.err = jpeg_std_error(&m_errors);
    m_errors.error_exit = fail;
    m_errors.emit_message = emitMessage;
    m_progress.progress_monitor = checkScans;
    m_source.reader = this;
    m_source.init_source = ignore;
    m_source.term_source = ignore;
    m_source.fill_input_buffer = fill;
    m_source.skip_input_data = skip;
    m_source.resync_to_restart = jpeg_resync_to_restart;
    jpeg_create_decompress(&m_decoder);
    m_decoder.src = &m_source;
    m_decoder.progress = &m_progress;
    m_isOpen = openRegularFile(m_file);
}

JpegReader::~JpegReader() { jpeg_destroy_decompress(&m_decoder); }

// The library's errors come back through `setjmp`: nothing that needs a destructor may live in the
// functions that call it.

bool JpegReader::readHeader()
{
    if (!m_isOpen || setjmp(m_errors.back) != 0)
        return false;
    return jpeg_read_header(&m_decoder, TRUE) == JPEG_HEADER_OK;
}

bool JpegReader::start(int shrink)
{
    if (setjmp(m_errors.back) != 0)
        return false;
    m_decoder.scale_denom = static_cast<unsigned>(shrink);
    if (jpeg_start_decompress(&m_decoder) == FALSE)
        return false;
    if (!hasAllComponents(m_decoder))
        vips_error("jpeg", "JPEG: a component of the picture is missing");
    return hasAllComponents(m_decoder);
}

bool JpegReader::readRow(JSAMPLE* row)
{
    if (setjmp(m_errors.back) != 0)
        return false;
    if (jpeg_read_scanlines(&m_decoder, &row, 1) != 1)
        return false;
    const bool isInverted
        = m_decoder.out_color_space == JCS_CMYK && m_decoder.saw_Adobe_marker != FALSE;
    if (isInverted) {
        const auto samples = std::size_t{m_decoder.output_width} * 4;
        std::transform(row, row + samples, row, [](JSAMPLE sample) {
            return static_cast<JSAMPLE>(MAXJSAMPLE - sample);
        });
    }
    return true;
}

void JpegReader::fail(j_common_ptr decoder)
{
    vips_error("jpeg", "%s", messageOf(decoder).toUtf8().constData());
    std::longjmp(static_cast<Errors*>(decoder->err)->back, 1);
}

void JpegReader::emitMessage(j_common_ptr decoder, int level)
{
    if (level >= 0)
        return;
    if (isDamage(decoder))
        fail(decoder);
    if (decoder->err->num_warnings++ == 0)
        log(messageOf(decoder));
}

/// Some files hold thousands of scans that take hours.
void JpegReader::checkScans(j_common_ptr decoder)
{
    constexpr int mostScans = 100;
    if (reinterpret_cast<j_decompress_ptr>(decoder)->input_scan_number <= mostScans)
        return;
    decoder->err->msg_code = JERR_BAD_PROGRESSION;
    fail(decoder);
}

boolean JpegReader::fill(j_decompress_ptr decoder)
{
    auto* source = static_cast<Source*>(decoder->src);
    JpegReader& reader = *source->reader;
    const qint64 count = reader.m_file.read(
        reinterpret_cast<char*>(reader.m_buffer.data()), static_cast<qint64>(reader.m_buffer.size())
    );
    if (count <= 0)
        ERREXIT(decoder, JERR_INPUT_EOF);
    source->next_input_byte = reader.m_buffer.data();
    source->bytes_in_buffer = static_cast<std::size_t>(count);
    return TRUE;
}

void JpegReader::skip(j_decompress_ptr decoder, long count)
{
    auto left = static_cast<std::size_t>(std::max(count, 0L));
    while (left > decoder->src->bytes_in_buffer) {
        left -= decoder->src->bytes_in_buffer;
        fill(decoder);
    }
    decoder->src->next_input_byte += left;
    decoder->src->bytes_in_buffer -= left;
}

} // namespace brenvaldo::platform::codecs
