// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "writer_rules.h"

#include <platform/foundation/log.h>
#include <platform/metadata/image_file_writer.h>

namespace brenvaldo::imaging {

namespace {

platform::ImageFileRequest fileRequest(const WriterRule& rule, const PictureToSave& picture)
{
    platform::ImageFileRequest request;
    request.format = rule.format;
    if (rule.properties == WriterRule::Properties::Carried)
        request.metadata = picture.properties;
    // The quality travels in a copy of the properties: without them there is nothing to put it in.
    if (rule.quality == WriterRule::Quality::FromLevel && picture.properties)
        request.lossyQuality = writerQuality(picture.compressionLevel);
    return request;
}

ResultWord save(Writer writer, const PictureToSave& picture)
{
    if (isNotSupported(picture.typeIdentifier))
        return ResultWord::NotSupported;
    const auto rule = writerRule(writer, picture.typeIdentifier);
    if (!rule)
        return ResultWord::Failed;

    const QString path = picture.destination + rule->extension;
    if (picture.image
        && platform::writeImageFile(*picture.image, fileRequest(*rule, picture), path))
        return ResultWord::Ok;

    if (rule->failure == WriterRule::Failure::Logged) {
        const QString url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
        platform::log(QStringLiteral("Failed to write image to ") + url);
    }
    return ResultWord::Failed;
}

} // namespace

ResultWord DVImageHandling::hSaveToNewImageFileX(const PictureToSave& picture)
{
    return save(Writer::Batch, picture);
}

ResultWord DVImageHandling::hSaveToNewImageFileMPR(const PictureToSave& picture)
{
    return save(Writer::Watermark, picture);
}

ResultWord DVImageHandling::hSaveToNewImageFile(const PictureToSave& picture)
{
    return save(Writer::WholePath, picture);
}

} // namespace brenvaldo::imaging
