// SPDX-License-Identifier: GPL-3.0-or-later
#include "kept_marks.h"

#include <platform/codecs/drawing_file.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <QFileInfo>

namespace brenvaldo::watermark {

using platform::codecs::ImageSource;
using platform::graphics::Image;

namespace {

/// Images beyond this many pixels are too large to be kept decoded.
constexpr qint64 mostKeptPixels = qint64{1} << 25;

bool isKeptDecoded(platform::graphics::PixelSize size)
{
    return qint64{size.width} * size.height <= mostKeptPixels;
}

/// The upright image; in memory unless it is huge.
std::optional<Image> openedImage(const QString& path)
{
    const auto source = ImageSource::open(path);
    const auto image = source ? source->uprightImage() : platform::codecs::openDrawing(path);
    if (!image || !isKeptDecoded(image->pixelSize()))
        return image;
    return image->copiedToMemory();
}

} // namespace

KeptMarks::File KeptMarks::fileAt(const QString& path)
{
    const QFileInfo info(path);
    return {.path = path, .modified = info.lastModified(), .bytes = info.size()};
}

bool KeptMarks::canRead(const QString& path) { return image(fileAt(path)).has_value(); }

std::optional<Image> KeptMarks::image(const File& file)
{
    const std::scoped_lock lock(m_imageMutex);
    if (m_image && m_image->file == file)
        return m_image->image;
    m_image.reset();
    const auto opened = openedImage(file.path);
    if (opened && isKeptDecoded(opened->pixelSize()))
        m_image = {.file = file, .image = *opened};
    return opened;
}

std::shared_ptr<const ImageMark>
KeptMarks::mark(const ImageWatermarkSettings& settings, const MarkedSize& photo)
{
    const File file = fileAt(settings.path);
    const std::scoped_lock lock(m_markMutex);
    const bool isKept
        = m_mark && m_mark->file == file && m_mark->photo == photo && m_mark->settings == settings;
    if (!isKept) {
        m_mark.reset();
        auto made = prepared(file, settings, photo);
        if (!made)
            return nullptr;
        m_mark = {.file = file, .settings = settings, .photo = photo, .mark = std::move(made)};
    }
    return m_mark->mark;
}

std::shared_ptr<const ImageMark> KeptMarks::prepared(
    const File& file, const ImageWatermarkSettings& settings, const MarkedSize& photo
)
{
    const auto opened = image(file);
    if (!opened)
        return nullptr;
    try {
        auto mark = preparedMark(settings, *opened, photo);
        return mark ? std::make_shared<const ImageMark>(std::move(*mark)) : nullptr;
    } catch (const std::exception& error) {
        platform::log(u"Failed to prepare a watermark: "_s + QString::fromUtf8(error.what()));
        return nullptr;
    }
}

void KeptMarks::clear()
{
    const std::scoped_lock lock(m_markMutex, m_imageMutex);
    m_image.reset();
    m_mark.reset();
}

} // namespace brenvaldo::watermark
