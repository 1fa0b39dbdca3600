// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_mark.h"

#include <QDateTime>

#include <memory>
#include <mutex>

namespace brenvaldo::watermark {

/// Decodes the images of watermarks and makes them ready, and keeps the last of each, so that
/// neither is done again while the file, the settings and the size of the photos stay the same.
/// Any thread.
class KeptMarks
{
public:
    /// False when there is no file at `path`, or one that is no image or a damaged one. What is
    /// damaged in a huge image shows when it is made ready.
    [[nodiscard]] bool canRead(const QString& path);

    /// Null when the image can't be read.
    [[nodiscard]] std::shared_ptr<const ImageMark>
    mark(const ImageWatermarkSettings& settings, const MarkedSize& photo);

    /// Gives the memory back.
    void clear();

private:
    struct File
    {
        QString path;
        QDateTime modified;
        qint64 bytes = 0;

        friend bool operator==(const File&, const File&) = default;
    };

    struct KeptImage
    {
        File file;
        platform::graphics::Image image;
    };

    struct KeptMark
    {
        File file;
        ImageWatermarkSettings settings;
        MarkedSize photo;
        std::shared_ptr<const ImageMark> mark;
    };

    [[nodiscard]] static File fileAt(const QString& path);
    [[nodiscard]] std::optional<platform::graphics::Image> image(const File& file);
    [[nodiscard]] std::shared_ptr<const ImageMark>
    prepared(const File& file, const ImageWatermarkSettings& settings, const MarkedSize& photo);

    std::mutex m_imageMutex;
    std::optional<KeptImage> m_image;
    std::mutex m_markMutex; ///< held while a mark is made ready; the other may be taken inside
    std::optional<KeptMark> m_mark;
};

} // namespace brenvaldo::watermark
