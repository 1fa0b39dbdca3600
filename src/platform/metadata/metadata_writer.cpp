// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata_writer.h"

#include "block_replacers.h"

#include <platform/containers/mapped_file.h>
#include <platform/containers/signatures.h>
#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/storage/file_replacement.h>

namespace brenvaldo::platform::metadata {

using containers::Container;

namespace {

using Editor = std::optional<QByteArrayList> (*)(QByteArrayView, const MetadataEdit&);

/// Null for the containers that are only read.
Editor editorFor(Container container)
{
    switch (container) {
    case Container::Jpeg:
        return editedJpeg;
    case Container::Png:
        return editedPng;
    case Container::Tiff:
        return editedTiffFile;
    case Container::Jpeg2000:
        return editedJpeg2000;
    case Container::Heif:
        return editedHeif;
    case Container::Gif:
    case Container::JpegXl:
    case Container::Webp:
    case Container::Photoshop:
    case Container::Bitmap:
    case Container::Other:
        return nullptr;
    }
    return nullptr;
}

bool failed(const QString& path, const QString& reason)
{
    log(u"Failed to write the metadata of %1: %2"_s.arg(path, reason));
    return false;
}

} // namespace

bool writeMetadata(const QString& path, const MetadataEdit& edit)
{
    awaitFile(path);
    const containers::MappedFile file(path);
    const auto kind = containers::fileKindOf(file.bytes());
    const Editor edited = kind ? editorFor(kind->container) : nullptr;
    if (!edited)
        return failed(path, u"its type holds none"_s);
    auto pieces = edited(file.bytes(), edit);
    if (!pieces && edit.userComment && !edit.iptc.isEmpty()) {
        failed(path, u"IPTC does not fit into what stands there"_s);
        pieces = edited(file.bytes(), {.userComment = edit.userComment});
    }
    if (!pieces)
        return failed(path, u"what stands there is damaged, or of a kind that is not known"_s);
    const QString fault = storage::replaceContents(path, *pieces);
    return fault.isEmpty() || failed(path, fault);
}

} // namespace brenvaldo::platform::metadata
