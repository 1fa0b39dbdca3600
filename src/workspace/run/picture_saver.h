// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "background_writer.h"
#include "run_journal.h"

#include <controls/range_controls.h>
#include <imaging/dv_image_handling.h>
#include <imaging/picture_sink.h>
#include <platform/foundation/files_in_the_making.h>

#include <QLatin1String>

#include <deque>

namespace brenvaldo::workspace {

/// Saves the pictures of one run and records each photo's word: the one place where a run waits for
/// a file.
///
/// It writes behind: pictures are made on other threads, files and words come in the order of the
/// photos. When it goes away all of them are there, unless the program ends.
class PictureSaver : public imaging::PictureSink, private platform::FilesInTheMaking
{
public:
    struct Links
    {
        QLatin1String function; ///< id
        imaging::DVImageHandling& imageHandling;
        RunJournal& journal;
        const controls::ProgressIndicator& bar; ///< knows whether the program ends
        int photosAtATime = 0; ///< 0: as many as there are cores, which is also the most
        int cores = 0; ///< 0: those of the machine
    };

    PictureSaver(Links links, qsizetype photos);
    PictureSaver(const PictureSaver&) = delete;
    PictureSaver& operator=(const PictureSaver&) = delete;
    PictureSaver(PictureSaver&&) = delete;
    PictureSaver& operator=(PictureSaver&&) = delete;
    ~PictureSaver() override;

    void take(const imaging::PhotoOutcome& photo) override;
    [[nodiscard]] imaging::ResultWord lastWord() override;

private:
    /// A photo whose word is not recorded yet.
    struct Waiting
    {
        imaging::PhotoOutcome photo; ///< without pixels
        QStringList places; ///< of the files, however their paths are written
        QString placeOfSource;
        bool isMade = false; ///< by the writer
    };

    void waitFor(const QString& path) override;
    void waitForUsesOf(const QString& path) override;
    void waitForAll() override;
    void start(const imaging::PhotoOutcome& photo, const imaging::PictureToSave& picture);
    template <class IsMeant>
    void recordUntilNone(const IsMeant& isMeant);
    void recordFinished();
    void recordFirst();
    void record(const imaging::PhotoOutcome& photo, imaging::ResultWord saved);
    void recordWhatStands();

    Links m_links;
    int m_cores;
    int m_photosAtATime;
    BackgroundWriter m_writer;
    std::deque<Waiting> m_waiting; ///< in the order of the photos
    imaging::ResultWord m_lastWord = imaging::ResultWord::None;
};

} // namespace brenvaldo::workspace
