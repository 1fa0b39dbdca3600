// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_edit.h"
#include "block_readers.h"
#include "block_replacers.h"
#include "block_segments.h"
#include "picture_index.h"
#include "xmp_packet.h"

#include <platform/containers/bytes.h>
#include <platform/containers/jpeg_segments.h>

#include <algorithm>
#include <numeric>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;
using containers::JpegSegment;
using containers::MetadataBlocks;

namespace {

constexpr qsizetype startMarkerLength = 2;
constexpr QByteArrayView pictureIndexHeader("MPF\0", 4);

enum class Kind { Jfif, Exif, Xmp, Photoshop, PictureIndex, Other };

/// A segment with whatever stray bytes stand in front of it.
struct Part
{
    Kind kind;
    QByteArray bytes;
};

/// What the segments in front of one hold.
struct Taken
{
    QByteArray exif;
    bool xmp = false;
};

Kind kindOf(const JpegSegment& segment, const Taken& taken)
{
    const QByteArrayView payload = segment.payload;
    if (segment.marker == jpeg::app0)
        return Kind::Jfif;
    if (containers::exifPartOf(segment, taken.exif))
        return Kind::Exif;
    if (segment.marker == jpeg::app1 && payload.startsWith(jpeg::xmpHeader) && !taken.xmp)
        return Kind::Xmp;
    if (segment.marker == jpeg::app13 && payload.startsWith(jpeg::photoshopHeader))
        return Kind::Photoshop;
    if (segment.marker == jpeg::app2 && payload.startsWith(pictureIndexHeader))
        return Kind::PictureIndex;
    return Kind::Other;
}

/// What stands between the start marker and the first scan.
class Parts
{
public:
    Parts(QByteArrayView file, const containers::JpegHeader& header)
    {
        const char* place = file.begin() + startMarkerLength;
        Taken taken;
        for (const JpegSegment& segment : header.segments) {
            const Kind kind = kindOf(segment, taken);
            if (kind == Kind::Exif)
                taken.exif.append(*containers::exifPartOf(segment, taken.exif));
            taken.xmp = taken.xmp || kind == Kind::Xmp;
            m_parts.append({kind, containers::viewed({place, segment.whole.end()})});
            place = segment.whole.end();
        }
    }

    /// Puts the segments in the place of all those of `kind`, or behind those that lead the file.
    void replace(Kind kind, const QByteArrayList& segments)
    {
        const auto isOfKind = [kind](const Part& part) { return part.kind == kind; };
        const auto first = std::find_if(m_parts.begin(), m_parts.end(), isOfKind);
        const auto place = first == m_parts.end() ? endOfLeading() : first;
        const qsizetype index = place - m_parts.begin();
        m_parts.removeIf(isOfKind);
        m_parts.insert(index, {kind, segments.join()});
    }

    /// The parts; an index of further pictures is told where they stand now, as `before` knew it.
    [[nodiscard]] QByteArrayList piecesAfter(const Parts& before) const
    {
        const PictureMove move{
            .shift = before.lengthBeforeIndex() - before.length() + length() - lengthBeforeIndex(),
            .growth = length() - before.length()};
        QByteArrayList pieces;
        for (const Part& part : m_parts)
            pieces.append(part.kind == Kind::PictureIndex ? moved(part.bytes, move) : part.bytes);
        return pieces;
    }

private:
    QList<Part>::iterator endOfLeading()
    {
        return std::find_if(m_parts.begin(), m_parts.end(), [](const Part& part) {
            return part.kind != Kind::Jfif && part.kind != Kind::Exif && part.kind != Kind::Xmp;
        });
    }

    [[nodiscard]] static qsizetype
    lengthOf(QList<Part>::const_iterator first, QList<Part>::const_iterator last)
    {
        return std::accumulate(first, last, qsizetype{0}, [](qsizetype sum, const Part& part) {
            return sum + part.bytes.size();
        });
    }
    [[nodiscard]] qsizetype length() const { return lengthOf(m_parts.begin(), m_parts.end()); }
    [[nodiscard]] qsizetype lengthBeforeIndex() const
    {
        const auto index = std::find_if(m_parts.begin(), m_parts.end(), [](const Part& part) {
            return part.kind == Kind::PictureIndex;
        });
        return lengthOf(m_parts.begin(), index);
    }

    static QByteArray moved(const QByteArray& part, const PictureMove& move)
    {
        const qsizetype start = part.lastIndexOf(pictureIndexHeader) + pictureIndexHeader.size();
        return part.first(start) + movedPictureIndex(QByteArrayView(part).sliced(start), move);
    }

    QList<Part> m_parts;
};

/// A packet that goes on in further segments can't grow beyond its own; an EXIF block does not
/// begin to: most programs read one segment.
bool fits(const MetadataBlocks& before, const MetadataBlocks& after)
{
    const bool xmpFits = xmpSegments(after.xmp).size() <= 1 || completeXmp(before) == before.xmp;
    const auto exifLength = exifSegments(after.exif).size();
    return xmpFits && (exifLength <= 1 || exifLength <= exifSegments(before.exif).size());
}

} // namespace

std::optional<QByteArrayList> editedJpeg(QByteArrayView file, const MetadataEdit& edit)
{
    const auto header = containers::readJpegHeader(file);
    if (!header || header->segments.isEmpty())
        return std::nullopt;
    const MetadataBlocks before = readJpegBlocks(file);
    const auto after = editedBlocks(before, edit);
    if (!after || !fits(before, *after))
        return std::nullopt;

    const Parts former(file, *header);
    Parts parts = former;
    if (after->exif != before.exif)
        parts.replace(Kind::Exif, exifSegments(after->exif));
    if (after->xmp != before.xmp)
        parts.replace(Kind::Xmp, xmpSegments(after->xmp));
    if (after->photoshop != before.photoshop)
        parts.replace(Kind::Photoshop, photoshopSegments(after->photoshop));
    return QByteArrayList{containers::viewed(file.first(startMarkerLength))}
    + parts.piecesAfter(former) + QByteArrayList{containers::viewed(file.sliced(header->end))};
}

} // namespace brenvaldo::platform::metadata
