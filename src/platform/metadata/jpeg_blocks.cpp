// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/jpeg_segments.h>
#include <platform/containers/photoshop_resources.h>

#include <algorithm>
#include <array>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;
using containers::JpegSegment;
using containers::MetadataBlocks;

namespace {

constexpr std::array describedByTheEncoder{
    std::pair{jpeg::app0, QByteArrayView("JFIF\0", 5)},
    std::pair{jpeg::app0, QByteArrayView("JFXX\0", 5)},
    std::pair{jpeg::app2, QByteArrayView("ICC_PROFILE\0", 12)},
    // The index of further pictures behind this one: its offsets would lie.
    std::pair{jpeg::app2, QByteArrayView("MPF\0", 4)},
    std::pair{jpeg::app14, QByteArrayView("Adobe", 5)},
};

bool belongsToTheCoding(const JpegSegment& segment)
{
    return std::any_of(
        describedByTheEncoder.begin(),
        describedByTheEncoder.end(),
        [&](const auto& known) {
            return segment.marker == known.first && segment.payload.startsWith(known.second);
        }
    );
}

/// Sorts the segments of one file into its blocks.
class Collector
{
public:
    void add(const JpegSegment& segment)
    {
        if (belongsToTheCoding(segment))
            return;
        const bool taken = segment.marker == jpeg::comment ? takeComment(segment)
            : segment.marker == jpeg::app1                 ? takeExif(segment) || takeXmp(segment)
            : segment.marker == jpeg::app13                ? takePhotoshop(segment)
                                                           : false;
        const bool isFurther = (segment.marker >= jpeg::app0 && segment.marker <= jpeg::app15)
            || segment.marker == jpeg::comment;
        if (!taken && isFurther)
            m_blocks.jpegSegments.append(segment.whole.toByteArray());
    }

    MetadataBlocks blocks()
    {
        m_blocks.iptc = containers::photoshopResourceData(
            m_blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );
        return m_blocks;
    }

private:
    bool takeComment(const JpegSegment& segment)
    {
        if (!m_blocks.comment.isEmpty() || segment.payload.isEmpty())
            return false;
        m_blocks.comment = segment.payload.toByteArray();
        return true;
    }

    bool takeExif(const JpegSegment& segment)
    {
        const auto part = containers::exifPartOf(segment, m_blocks.exif);
        if (part)
            m_blocks.exif.append(*part);
        return part.has_value();
    }

    bool takeXmp(const JpegSegment& segment)
    {
        if (!m_blocks.xmp.isEmpty() || !segment.payload.startsWith(jpeg::xmpHeader))
            return false;
        m_blocks.xmp = segment.payload.sliced(jpeg::xmpHeader.size()).toByteArray();
        return true;
    }

    bool takePhotoshop(const JpegSegment& segment)
    {
        if (!segment.payload.startsWith(jpeg::photoshopHeader))
            return false;
        m_blocks.photoshop.append(segment.payload.sliced(jpeg::photoshopHeader.size()));
        return true;
    }

    MetadataBlocks m_blocks;
};

} // namespace

MetadataBlocks readJpegBlocks(QByteArrayView file)
{
    const auto header = containers::readJpegHeader(file);
    if (!header)
        return {};
    Collector collector;
    for (const JpegSegment& segment : header->segments)
        collector.add(segment);
    return collector.blocks();
}

} // namespace brenvaldo::platform::metadata
