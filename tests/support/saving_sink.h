// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <imaging/picture_sink.h>

#include <QList>

namespace brenvaldo::test {

/// How a photo of a run ended.
struct FinishedPhoto
{
    QString source;
    QString target;
    QString word;
};

/// Saves each picture at once and remembers the words.
class SavingSink : public imaging::PictureSink
{
public:
    void take(const imaging::PhotoOutcome& photo) override
    {
        const auto* picture = std::get_if<imaging::PictureToSave>(&photo.outcome);
        m_word = picture ? imaging::save(*picture) : std::get<imaging::ResultWord>(photo.outcome);
        done.append({.source = photo.source, .target = photo.target, .word = imaging::text(m_word)}
        );
    }

    imaging::ResultWord lastWord() override { return m_word; }

    QList<FinishedPhoto> done;

private:
    imaging::ResultWord m_word = imaging::ResultWord::None;
};

} // namespace brenvaldo::test
