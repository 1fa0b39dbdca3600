// SPDX-License-Identifier: GPL-3.0-or-later
#include "mmeta.h"

#include "iptc_settings.h"
#include "meta_log.h"
#include "metadata_texts.h"

#include <platform/foundation/literals.h>
#include <platform/metadata/metadata_writer.h>

#include <tuple>

namespace brenvaldo::metadata {

using platform::metadata::MetadataEdit;
using platform::metadata::PropertyDictionary;
namespace property = platform::metadata::property;

namespace {

constexpr int wantsWrite = 1;

std::optional<QString> commentIn(const PropertyDictionary& properties)
{
    const PropertyDictionary* exif = properties.dictionary(property::exifDictionary);
    return exif ? exif->text(property::exifUserComment) : std::nullopt;
}

QString commentToWrite(const std::optional<QString>& former, const CommentSettings& settings)
{
    if (!former || settings.clearState != 0)
        return settings.comment;
    return settings.comment.isEmpty() ? *former : *former + u"; "_s + settings.comment;
}

QString answerTo(mMeta::Written written)
{
    return written == mMeta::Written::NoImage ? u"Failed"_s : u"OK"_s;
}

} // namespace

mMeta::Written mMeta::writeExifData(const QString& path, const CommentSettings& settings)
{
    const auto source = getMyImageSource(path);
    if (!source)
        return Written::NoImage;
    const std::optional<QString> former = commentIn(*source);
    const QString comment = commentToWrite(former, settings);
    MetadataEdit edit{.iptc = readIptcChanges(m_panels.vwFileManagementEXIF)};
    // A comment that stays is not written anew: its bytes stay as well.
    if (comment != former)
        edit.userComment = comment;
    return platform::metadata::writeMetadata(path, edit) ? Written::Done : Written::Nothing;
}

QString mMeta::hSetExifData(const QString& path, const QString& comment, int clearState)
{
    return answerTo(writeExifData(path, {.comment = comment, .clearState = clearState}));
}

QString mMeta::hAddIPTCdata(const QString& path, int writeFlag)
{
    const auto changes = readIptcChanges(m_panels.vwFileManagementEXIF);
    if (writeFlag == wantsWrite)
        std::ignore = platform::metadata::writeMetadata(path, {.iptc = changes});
    return u"OK"_s;
}

void mMeta::btApplyExifUserComment(const QString& activeFile)
{
    if (activeFile.isEmpty())
        return;
    panels::ExifPanel& panel = m_panels.vwFileManagementEXIF;
    const Written written = writeExifData(activeFile, readSettings(panel));
    const QString answer = answerTo(written);
    if (written == Written::NoImage)
        panel.tfExifUserComment.setStringValue(notSupportedText());
    else
        hiDoNothing(activeFile);
    panel.mymMetaLogTableViewController.addObject(
        metaLogRow(QDateTime::currentDateTime(), answer, activeFile)
    );
    commentApplied(activeFile, written);
}

} // namespace brenvaldo::metadata
