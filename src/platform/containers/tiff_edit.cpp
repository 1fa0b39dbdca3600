// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiff_edit.h"

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint64_t entryLength = 12;
constexpr qsizetype inlineBytes = 4;
/// Far more than any honest directory has; there is room for some more.
constexpr std::uint64_t mostEntries = 60000;

/// Bytes of the file that nobody needs any more.
struct Extent
{
    std::uint64_t start = 0;
    std::uint64_t end = 0;
};

using Entries = QList<QByteArrayView>;

/// The entries of a directory as they stand.
struct RawDirectory
{
    std::uint64_t offset = 0;
    Entries entries = {};
    QByteArrayView link = {};

    [[nodiscard]] Extent extent() const
    {
        return {offset, offset + 2 + static_cast<std::uint64_t>(entries.size()) * entryLength + 4};
    }
};

std::uint64_t evenOf(std::uint64_t offset) { return offset + offset % 2; }

class Editor
{
public:
    Editor(QByteArrayView bytes, ByteOrder order)
        : m_bytes(bytes)
        , m_order(order)
    {
    }

    std::optional<QByteArrayList> edited(std::uint64_t rootOffset, const TiffEdit& edit)
    {
        const auto root = directoryAt(rootOffset);
        const auto exif = root && !edit.exif.isEmpty() ? exifDirectoryOf(*root) : RawDirectory();
        if (!root || !exif)
            return std::nullopt;
        const Entries rootEntries = kept(*root, tagsOf(edit.root) + edit.removedFromRoot);
        const Entries exifEntries = kept(*exif, tagsOf(edit.exif));
        m_keptLength = lengthWithoutUnusedEnd(rootEntries + exifEntries);

        // The directories stand last: most edits change them again and take their room.
        QByteArrayList newInRoot = entriesOf(edit.root);
        if (edit.exif.isEmpty())
            return pieces(appended(rootEntries, newInRoot, root->link));
        const std::uint64_t offset = appended(exifEntries, entriesOf(edit.exif), exif->link);
        newInRoot.append(entryOf(longField(tiff::ExifDirectory, offset, m_order)));
        return pieces(appended(without(rootEntries, {tiff::ExifDirectory}), newInRoot, root->link));
    }

private:
    [[nodiscard]] std::uint64_t
    numberAt(QByteArrayView bytes, std::uint64_t offset, int width) const
    {
        return unsignedAt(bytes, offset, width, m_order).value_or(0);
    }

    [[nodiscard]] std::uint16_t tagOf(QByteArrayView entry) const
    {
        return static_cast<std::uint16_t>(numberAt(entry, 0, 2));
    }

    [[nodiscard]] std::optional<RawDirectory> directoryAt(std::uint64_t offset) const
    {
        const auto count = unsignedAt(m_bytes, offset, 2, m_order);
        if (!count || *count > mostEntries)
            return std::nullopt;
        const auto entries = sliceOf(m_bytes, offset + 2, *count * entryLength);
        const auto link = sliceOf(m_bytes, offset + 2 + *count * entryLength, 4);
        if (!entries || !link)
            return std::nullopt;
        RawDirectory directory{.offset = offset, .link = *link};
        for (std::uint64_t i = 0; i < *count; ++i)
            directory.entries.append(*sliceOf(*entries, i * entryLength, entryLength));
        return directory;
    }

    /// One without entries where there is none.
    [[nodiscard]] std::optional<RawDirectory> exifDirectoryOf(const RawDirectory& root) const
    {
        for (const QByteArrayView entry : root.entries) {
            if (tagOf(entry) == tiff::ExifDirectory)
                return directoryAt(numberAt(entry, 8, 4));
        }
        return RawDirectory();
    }

    static QList<std::uint16_t> tagsOf(const TiffDirectory& fields)
    {
        QList<std::uint16_t> tags;
        for (const TiffField& field : fields)
            tags.append(field.tag);
        return tags;
    }

    [[nodiscard]] Entries without(Entries entries, const QList<std::uint16_t>& tags) const
    {
        entries.removeIf([&](QByteArrayView entry) { return tags.contains(tagOf(entry)); });
        return entries;
    }

    /// The entries of other tags; the directory and the values of those that go are not needed any
    /// more.
    Entries kept(const RawDirectory& directory, const QList<std::uint16_t>& tags)
    {
        m_unused.append(directory.extent());
        for (const QByteArrayView entry : directory.entries) {
            if (tags.contains(tagOf(entry)))
                m_unused.append(valueExtent(entry));
        }
        return without(directory.entries, tags);
    }

    /// Where a long value stands; empty at the start of the file for a short one.
    [[nodiscard]] Extent valueExtent(QByteArrayView entry) const
    {
        const auto width = static_cast<std::uint64_t>(
            tiffTypeWidth(static_cast<std::uint16_t>(numberAt(entry, 2, 2)))
        );
        const std::uint64_t length = width * numberAt(entry, 4, 4);
        const std::uint64_t start = numberAt(entry, 8, 4);
        return length > inlineBytes ? Extent{start, start + length} : Extent{};
    }

    /// The length of the file without the unused extents that stand at its end.
    [[nodiscard]] std::uint64_t lengthWithoutUnusedEnd(const Entries& used) const
    {
        const auto whole = static_cast<std::uint64_t>(m_bytes.size());
        std::uint64_t length = whole;
        const auto endsThere = [&length](const Extent& extent) {
            return extent.start >= tiffHeaderLength && extent.end > extent.start
                && evenOf(extent.end) == evenOf(length);
        };
        for (auto last = m_unused.begin();
             (last = std::find_if(m_unused.begin(), m_unused.end(), endsThere)) != m_unused.end();)
            length = last->start;
        const bool isUsed = std::any_of(used.begin(), used.end(), [&](QByteArrayView entry) {
            return valueExtent(entry).end > length;
        });
        return isUsed ? whole : length;
    }

    [[nodiscard]] std::uint64_t nextOffset() const
    {
        return evenOf(m_keptLength) + static_cast<std::uint64_t>(m_tail.size());
    }

    /// The entry of a field, whose long value goes behind the end.
    QByteArray entryOf(const TiffField& field)
    {
        const auto width = static_cast<qsizetype>(tiffTypeWidth(field.type));
        QByteArray entry;
        appendUnsigned(entry, field.tag, 2, m_order);
        appendUnsigned(entry, field.type, 2, m_order);
        appendUnsigned(entry, static_cast<std::uint64_t>(field.value.size() / width), 4, m_order);
        if (field.value.size() <= inlineBytes)
            return entry + field.value.leftJustified(inlineBytes, '\0');
        appendUnsigned(entry, nextOffset(), 4, m_order);
        m_tail.append(field.value);
        if (m_tail.size() % 2 != 0)
            m_tail.append('\0');
        return entry;
    }

    QByteArrayList entriesOf(const TiffDirectory& fields)
    {
        QByteArrayList entries;
        for (const TiffField& field : fields)
            entries.append(entryOf(field));
        return entries;
    }

    /// Writes a directory of these entries behind the end; answers where it stands.
    std::uint64_t appended(const Entries& former, const QByteArrayList& fresh, QByteArrayView link)
    {
        QByteArrayList all = fresh;
        for (const QByteArrayView entry : former)
            all.append(entry.toByteArray());
        std::stable_sort(all.begin(), all.end(), [this](const auto& left, const auto& right) {
            return tagOf(left) < tagOf(right);
        });
        const std::uint64_t offset = nextOffset();
        appendUnsigned(m_tail, static_cast<std::uint64_t>(all.size()), 2, m_order);
        m_tail.append(all.join());
        m_tail.append(link.isEmpty() ? QByteArray(4, '\0') : link.toByteArray());
        return offset;
    }

    [[nodiscard]] std::optional<QByteArrayList> pieces(std::uint64_t rootOffset) const
    {
        if (nextOffset() > std::numeric_limits<std::uint32_t>::max())
            return std::nullopt;
        const QByteArrayView kept
            = m_bytes.first(static_cast<qsizetype>(m_keptLength)).sliced(tiffHeaderLength);
        const QByteArray padding(kept.size() % 2, '\0');
        return QByteArrayList{tiffHeader(m_order, rootOffset), viewed(kept), padding + m_tail};
    }

    QByteArrayView m_bytes;
    ByteOrder m_order;
    QList<Extent> m_unused;
    std::uint64_t m_keptLength = 0;
    QByteArray m_tail;
};

} // namespace

std::optional<QByteArrayList> editedTiff(QByteArrayView bytes, const TiffEdit& edit)
{
    const auto file = TiffFile::open(bytes);
    if (!file || file->isBig())
        return std::nullopt;
    return Editor(bytes, file->order()).edited(file->firstOffset(), edit);
}

std::optional<QByteArray> tiffWithExifValue(const QByteArray& bytes, const TiffField& field)
{
    const auto file = TiffFile::open(bytes);
    if (!file || file->isBig())
        return std::nullopt;
    const TiffDirectory root = file->firstDirectory();
    const TiffDirectory exif = file->subDirectory(root, tiff::ExifDirectory);
    const TiffField* former = fieldOf(exif, field.tag);
    const qsizetype room = former ? former->value.size() : 0;
    if (!former || former->type != field.type || field.value.size() > room
        || field.value.size() <= inlineBytes)
        return std::nullopt;

    QByteArray entry;
    for (const qsizetype length : {room, field.value.size()}) {
        appendUnsigned(entry, field.tag, 2, file->order());
        appendUnsigned(entry, field.type, 2, file->order());
        const auto count = static_cast<std::uint64_t>(length / tiffTypeWidth(field.type));
        appendUnsigned(entry, count, 4, file->order());
        appendUnsigned(entry, former->valueOffset, 4, file->order());
    }
    const QByteArrayView before = QByteArrayView(entry).first(entryLength);
    const qsizetype place = bytes.indexOf(before);
    if (place < 0 || bytes.indexOf(before, place + 1) >= 0)
        return std::nullopt;
    QByteArray result = bytes;
    result.replace(place, entryLength, entry.sliced(entryLength));
    return result.replace(
        static_cast<qsizetype>(former->valueOffset), room, field.value.leftJustified(room, '\0')
    );
}

QByteArray emptyTiff(ByteOrder order)
{
    return tiffHeader(order, tiffHeaderLength) + QByteArray(6, '\0');
}

} // namespace brenvaldo::platform::containers
