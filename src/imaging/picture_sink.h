// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture_to_save.h"

namespace brenvaldo::imaging {

/// What became of one photo of a run.
struct PhotoOutcome
{
    QString source; ///< path of the photo
    QString target; ///< path that is to be written; empty when there is none
    Outcome outcome;
};

/// Where the pictures of a run go: it saves them and records the words, in the order of the photos.
class PictureSink
{
public:
    PictureSink() = default;
    PictureSink(const PictureSink&) = delete;
    PictureSink& operator=(const PictureSink&) = delete;
    PictureSink(PictureSink&&) = delete;
    PictureSink& operator=(PictureSink&&) = delete;
    virtual ~PictureSink() = default;

    virtual void take(const PhotoOutcome& photo) = 0;

    /// The word of the last photo that was taken; waits for its file.
    [[nodiscard]] virtual ResultWord lastWord() = 0;
};

} // namespace brenvaldo::imaging
