// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_saver.h"

namespace brenvaldo::workspace {

PictureSaver::PictureSaver(
    const QLatin1String& function, imaging::DVImageHandling& imageHandling, RunJournal& journal
)
    : m_function(function)
    , m_imageHandling(imageHandling)
    , m_journal(journal)
{
}

void PictureSaver::take(const imaging::PhotoOutcome& photo)
{
    m_lastWord = m_imageHandling.finish(photo.outcome);
    m_journal.add(
        {.time = QDateTime::currentDateTime(),
         .function = m_function,
         .source = photo.source,
         .target = photo.target,
         .word = m_lastWord}
    );
}

imaging::ResultWord PictureSaver::lastWord() { return m_lastWord; }

} // namespace brenvaldo::workspace
