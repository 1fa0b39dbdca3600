// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_of_scans.h"

#include <array>
#include <cstdio> // jpeglib.h needs it
#include <cstdlib>

#include <jpeglib.h>

namespace brenvaldo::test {

namespace {

constexpr int width = 64;
constexpr int height = 48;

} // namespace

QByteArray jpegOf(const JpegKind& kind)
{
    jpeg_compress_struct encoder = {};
    jpeg_error_mgr errors = {};
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&encoder, &bytes, &size);
    encoder.image_width = width;
    encoder.image_height = height;
    encoder.input_components = 3;
    encoder.in_color_space = JCS_RGB;
    jpeg_set_defaults(&encoder);
    encoder.comp_info[0].h_samp_factor = 1;
    encoder.comp_info[0].v_samp_factor = 1;
    encoder.restart_interval = static_cast<unsigned>(kind.restartBlocks);
    const std::array<jpeg_scan_info, 3> scans = {{
        {1, {0}, 0, 63, 0, 0}, //
        {1, {1}, 0, 63, 0, 0},
        {1, {2}, 0, 63, 0, 0},
    }};
    if (kind.hasScanOfEachComponent) {
        encoder.scan_info = scans.data();
        encoder.num_scans = static_cast<int>(scans.size());
    }
    jpeg_start_compress(&encoder, TRUE);
    std::array<JSAMPLE, width* 3> row = {};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width * 3; ++x)
            row[static_cast<std::size_t>(x)] = static_cast<JSAMPLE>((x * 7919 + y * 104729) >> 3);
        JSAMPLE* rows = row.data();
        jpeg_write_scanlines(&encoder, &rows, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    QByteArray file(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    std::free(bytes);
    return file;
}

} // namespace brenvaldo::test
