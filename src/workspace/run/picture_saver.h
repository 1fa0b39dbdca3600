// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run_journal.h"

#include <imaging/dv_image_handling.h>
#include <imaging/picture_sink.h>

#include <QLatin1String>

namespace brenvaldo::workspace {

/// Saves the pictures of one run and records each photo's word: the one place where a run waits for
/// a file.
class PictureSaver : public imaging::PictureSink
{
public:
    PictureSaver(
        const QLatin1String& function, imaging::DVImageHandling& imageHandling, RunJournal& journal
    );

    void take(const imaging::PhotoOutcome& photo) override;
    [[nodiscard]] imaging::ResultWord lastWord() override;

private:
    QLatin1String m_function;
    imaging::DVImageHandling& m_imageHandling;
    RunJournal& m_journal;
    imaging::ResultWord m_lastWord = imaging::ResultWord::None;
};

} // namespace brenvaldo::workspace
