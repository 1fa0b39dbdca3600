// SPDX-License-Identifier: GPL-3.0-or-later
#include "comment_settings.h"

#include <panels/exif_panel.h>

namespace brenvaldo::metadata {

CommentSettings readSettings(const panels::ExifPanel& panel)
{
    return {
        .comment = panel.tfExifUserComment.stringValue(),
        .clearState = panel.cbClearBeforeAdd.state()};
}

} // namespace brenvaldo::metadata
