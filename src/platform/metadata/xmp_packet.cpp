// SPDX-License-Identifier: GPL-3.0-or-later
#include "xmp_packet.h"

#include <platform/containers/bytes.h>
#include <platform/containers/jpeg_segments.h>

#include <QCryptographicHash>

#include <algorithm>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;
using containers::ByteOrder;

namespace {

constexpr qsizetype segmentHead = 4; // marker and length
constexpr qsizetype guidLength = 32;
constexpr qsizetype longestPacket = jpeg::longestPayload - jpeg::xmpHeader.size();
constexpr qsizetype longestPiece
    = jpeg::longestPayload - jpeg::extendedXmpHeader.size() - guidLength - 8;
constexpr QByteArrayView descriptionsEnd("</rdf:RDF>");

/// One segment of extended XMP.
struct Piece
{
    QByteArrayView guid;
    std::uint64_t total = 0;
    std::uint64_t offset = 0;
    QByteArrayView data;
};

std::optional<Piece> pieceOf(QByteArrayView segment)
{
    const QByteArrayView payload = containers::tailOf(segment, segmentHead);
    if (!payload.startsWith(jpeg::extendedXmpHeader))
        return std::nullopt;
    const QByteArrayView fields = payload.sliced(jpeg::extendedXmpHeader.size());
    const auto guid = containers::sliceOf(fields, 0, guidLength);
    const auto total = containers::unsignedAt(fields, guidLength, 4, ByteOrder::Big);
    const auto offset = containers::unsignedAt(fields, guidLength + 4, 4, ByteOrder::Big);
    if (!guid || !total || !offset)
        return std::nullopt;
    return Piece{
        .guid = *guid,
        .total = *total,
        .offset = *offset,
        .data = containers::tailOf(fields, guidLength + 8)};
}

/// The identifier of the extended part that `packet` names; empty when it names none.
QByteArrayView announcedGuid(QByteArrayView packet)
{
    constexpr QByteArrayView property("HasExtendedXMP");
    const qsizetype name = packet.indexOf(property);
    if (name < 0)
        return {};
    // As an attribute it stands behind a quote, as an element behind the end of its tag.
    qsizetype start = name + property.size();
    while (start < packet.size() && !QByteArrayView("\"'>").contains(packet[start]))
        ++start;
    return containers::sliceOf(packet, static_cast<std::uint64_t>(start + 1), guidLength)
        .value_or(QByteArrayView());
}

/// The pieces that belong to `packet`, put together; empty unless they fill the announced length.
QByteArray extendedPart(const containers::MetadataBlocks& blocks)
{
    const QByteArrayView guid = announcedGuid(blocks.xmp);
    QList<Piece> pieces;
    std::uint64_t length = 0;
    for (const QByteArray& segment : blocks.jpegSegments) {
        const auto piece = pieceOf(segment);
        if (!piece || piece->guid != guid)
            continue;
        pieces.append(*piece);
        length += static_cast<std::uint64_t>(piece->data.size());
    }
    std::stable_sort(pieces.begin(), pieces.end(), [](const Piece& left, const Piece& right) {
        return left.offset < right.offset;
    });

    QByteArray part;
    for (const Piece& piece : pieces) {
        if (piece.offset != static_cast<std::uint64_t>(part.size()) || piece.total != length)
            return {};
        part.append(piece.data);
    }
    return part;
}

/// What stands between the start and the end tag of rdf:RDF.
QByteArrayView descriptionsOf(QByteArrayView packet)
{
    const qsizetype tag = packet.indexOf("<rdf:RDF");
    const qsizetype start = tag < 0 ? -1 : packet.indexOf('>', tag);
    const qsizetype end = packet.lastIndexOf(descriptionsEnd);
    return start < 0 || end < start ? QByteArrayView() : packet.sliced(start + 1, end - start - 1);
}

/// The packet without its padding and without the processing instructions around it.
QByteArray withoutWrapper(const QByteArray& packet)
{
    const qsizetype start = packet.indexOf("<x:xmpmeta");
    const QByteArray endTag("</x:xmpmeta>");
    const qsizetype end = packet.lastIndexOf(endTag);
    return start < 0 || end < start ? packet : packet.sliced(start, end + endTag.size() - start);
}

QByteArray packetThatExtendsTo(const QByteArray& guid)
{
    return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
           "<rdf:Description rdf:about=\"\" xmlns:xmpNote=\"http://ns.adobe.com/xmp/note/\" "
           "xmpNote:HasExtendedXMP=\""
        + guid + "\"/></rdf:RDF></x:xmpmeta>\n<?xpacket end=\"w\"?>";
}

QByteArray xmpSegment(const QByteArray& packet)
{
    return containers::jpegSegment(jpeg::app1, jpeg::xmpHeader.toByteArray() + packet);
}

} // namespace

QByteArray completeXmp(const containers::MetadataBlocks& blocks)
{
    const QByteArray extended = extendedPart(blocks);
    const QByteArrayView descriptions = descriptionsOf(extended);
    const qsizetype place = blocks.xmp.lastIndexOf(descriptionsEnd);
    if (descriptions.isEmpty() || place < 0)
        return blocks.xmp;
    return blocks.xmp.first(place) + descriptions.toByteArray() + blocks.xmp.sliced(place);
}

QByteArrayList xmpSegments(const QByteArray& packet)
{
    if (packet.isEmpty())
        return {};
    if (packet.size() <= longestPacket)
        return {xmpSegment(packet)};
    const QByteArray bare = withoutWrapper(packet);
    if (bare.size() <= longestPacket)
        return {xmpSegment(bare)};

    const QByteArray guid
        = QCryptographicHash::hash(bare, QCryptographicHash::Md5).toHex().toUpper();
    QByteArrayList segments{xmpSegment(packetThatExtendsTo(guid))};
    for (qsizetype offset = 0; offset < bare.size(); offset += longestPiece) {
        QByteArray payload = jpeg::extendedXmpHeader.toByteArray() + guid;
        containers::appendUnsigned(
            payload, static_cast<std::uint64_t>(bare.size()), 4, ByteOrder::Big
        );
        containers::appendUnsigned(payload, static_cast<std::uint64_t>(offset), 4, ByteOrder::Big);
        payload.append(bare.mid(offset, longestPiece));
        segments.append(containers::jpegSegment(jpeg::app1, payload));
    }
    return segments;
}

} // namespace brenvaldo::platform::metadata
