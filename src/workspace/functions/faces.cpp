// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <imaging/dv_image_handling.h>
#include <imaging/writer_rules.h>
#include <platform/services/face_finder.h>

namespace brenvaldo::workspace {

namespace {

using imaging::DVImageHandling;

PhotoRun::Operation start(const RunContext&)
{
    return [](const PhotoOutput& output) {
        return DVImageHandling::hGetListOfFaces(
            output.photo, platform::services::findFaces, output.tail
        );
    };
}

/// The file of the first face.
QString target(const QString& destinationBase, const QString& typeIdentifier)
{
    const QString first = DVImageHandling::faceBase(destinationBase, 1);
    return imaging::writtenPath(imaging::Writer::Batch, first, typeIdentifier);
}

} // namespace

Function faces()
{
    return {
        .id = QLatin1String("faces"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Cut out faces"),
        .choice = {.section = Section::EditPhoto, .index = 5},
        .holders = withoutPreview(QLatin1String("vwCopyFaces")),
        .run = PhotoRun{.start = start, .target = target},
    };
}

} // namespace brenvaldo::workspace
