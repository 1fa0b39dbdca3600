// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_rows.h"

#include "jpeg_reader.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace brenvaldo::platform::codecs {

namespace {

/// One evaluation, in which rows are asked for from the top down, one thread at a time.
class JpegRows
{
public:
    JpegRows(SharedPhoto file, int shrink)
        : m_file(std::move(file))
        , m_shrink(shrink)
    {
    }

    static int
    generate(VipsRegion* out, void* /*scratch*/, void* rows, void* /*unused*/, gboolean* /*stop*/)
    {
        return static_cast<JpegRows*>(rows)->read(out) ? 0 : -1;
    }

    static void release(VipsImage* /*out*/, gpointer rows)
    {
        const std::unique_ptr<JpegRows> owned(static_cast<JpegRows*>(rows));
    }

private:
    bool read(VipsRegion* out)
    {
        const VipsRect area = out->valid;
        if (area.top == 0 && !start(*out->im))
            return false;
        if (!m_reader || area.top != m_next || area.left != 0) {
            vips_error("jpeg", "rows are asked for out of order");
            return false;
        }
        for (; m_next < VIPS_RECT_BOTTOM(&area); ++m_next) {
            if (!readRow(VIPS_REGION_ADDR(out, 0, m_next), VIPS_REGION_SIZEOF_LINE(out)))
                return false;
        }
        return m_next < out->im->Ysize || finish();
    }

    /// A fault in the rows that are rounded off is a fault all the same.
    bool finish()
    {
        const jpeg_decompress_struct& facts = m_reader->facts();
        bool isWhole = true;
        while (isWhole && facts.output_scanline < facts.output_height)
            isWhole = m_reader->readRow(m_row.data());
        m_reader = nullptr;
        return isWhole;
    }

    bool readRow(VipsPel* row, std::size_t size)
    {
        if (m_row.size() == size)
            return m_reader->readRow(row);
        if (!m_reader->readRow(m_row.data()))
            return false;
        std::copy_n(m_row.data(), size, row);
        return true;
    }

    bool start(const VipsImage& image)
    {
        m_next = 0;
        m_reader = std::make_unique<JpegReader>(m_file->path());
        if (!m_reader->readHeader() || !m_reader->start(m_shrink))
            return false;
        const jpeg_decompress_struct& facts = m_reader->facts();
        // A picture that shrinks is rounded down by the engine and up by the library.
        const bool fits = facts.output_width - static_cast<unsigned>(image.Xsize) <= 1
            && facts.output_height - static_cast<unsigned>(image.Ysize) <= 1
            && facts.output_components == image.Bands;
        if (!fits)
            vips_error("jpeg", "the file has changed");
        m_row.resize(
            std::size_t{facts.output_width} * static_cast<std::size_t>(facts.output_components)
        );
        return fits;
    }

    SharedPhoto m_file;
    int m_shrink;
    int m_next = 0;
    std::unique_ptr<JpegReader> m_reader;
    std::vector<JSAMPLE> m_row; ///< as long as the decoder makes it
};

} // namespace

vips::VImage jpegRows(const SharedPhoto& file, int shrink, const vips::VImage& header)
{
    const vips::VImage out(vips_image_new());
    VipsImage* image = out.get_image();
    JpegRows* rows = std::make_unique<JpegRows>(file, shrink).release();
    g_signal_connect(image, "close", G_CALLBACK(&JpegRows::release), rows);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_THINSTRIP, header.get_image(), nullptr) != 0
        || vips_image_generate(image, nullptr, &JpegRows::generate, nullptr, rows, nullptr) != 0)
        throw vips::VError();
    constexpr int rowsAtATime = 8;
    return out.sequential(vips::VImage::option()->set("tile_height", rowsAtATime));
}

void checkJpegSize(const QString& path)
{
    JpegReader reader(path);
    if (!reader.readHeader())
        throw vips::VError();
    // Each block of 8 x 8 pixels takes a bit at least. Arithmetic coding knows no such limit.
    constexpr qint64 pixelsOfAByte = qint64{8} * 8 * 8;
    const jpeg_decompress_struct& facts = reader.facts();
    const qint64 pixels = qint64{facts.image_width} * facts.image_height;
    if (facts.arith_code == FALSE && pixels > reader.fileSize() * pixelsOfAByte)
        throw vips::VError("the file is too short for the size it claims");
}

} // namespace brenvaldo::platform::codecs
