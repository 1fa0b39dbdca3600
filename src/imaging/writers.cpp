// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "failure_log.h"
#include "writer_rules.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/metadata/image_file_writer.h>

namespace brenvaldo::imaging {

namespace {

platform::metadata::ImageFileRequest
fileRequest(const WriterRule& rule, const PictureToSave& picture)
{
    platform::metadata::ImageFileRequest request;
    request.format = rule.format;
    if (rule.properties == WriterRule::Properties::Carried && picture.properties)
        request.metadata = &*picture.properties;
    // The quality travels in a copy of the properties: without them there is nothing to put it in.
    if (rule.quality == WriterRule::Quality::FromLevel && picture.properties)
        request.lossyQuality = writerQuality(picture.compressionLevel);
    return request;
}

ResultWord write(Writer writer, const PictureToSave& picture)
{
    if (isNotSupported(picture.typeIdentifier))
        return ResultWord::NotSupported;
    const auto rule = writerRule(writer, picture.typeIdentifier);
    if (!rule)
        return failsForType(picture.destination, picture.typeIdentifier);

    const QString path = picture.destination + rule->extension;
    if (picture.image
        && platform::metadata::writeImageFile(*picture.image, fileRequest(*rule, picture), path))
        return ResultWord::Ok;

    if (!picture.image)
        logFailedWrite(path, u"there is no picture"_s);
    if (rule->failure == WriterRule::Failure::Logged) {
        const QString url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
        platform::log(u"Failed to write image to "_s + url);
    }
    return ResultWord::Failed;
}

} // namespace

ResultWord DVImageHandling::hSaveToNewImageFileX(const PictureToSave& picture)
{
    return write(Writer::Batch, picture);
}

ResultWord DVImageHandling::hSaveToNewImageFileMPR(const PictureToSave& picture)
{
    return write(Writer::Watermark, picture);
}

ResultWord DVImageHandling::hSaveToNewImageFile(const PictureToSave& picture)
{
    return write(Writer::WholePath, picture);
}

ResultWord DVImageHandling::finish(const Outcome& outcome)
{
    const auto* picture = std::get_if<PictureToSave>(&outcome);
    return finish(outcome, picture ? save(*picture) : ResultWord::None);
}

ResultWord DVImageHandling::finish(const Outcome& outcome, ResultWord saved)
{
    if (const auto* word = std::get_if<ResultWord>(&outcome))
        return *word;
    const auto* picture = std::get_if<PictureToSave>(&outcome);
    if (!picture)
        return m_storeResult;
    if (picture->writer == hSaveToNewImageFileX)
        m_storeResult = saved;
    return saved;
}

} // namespace brenvaldo::imaging
