// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_saver.h"

#include <imaging/writer_rules.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/machine.h>
#include <platform/graphics/memory_need.h>

#include <QFileInfo>
#include <QStorageInfo>
#include <QThread>

#include <algorithm>
#include <iterator>

namespace brenvaldo::workspace {

namespace {

int coresOf(const PictureSaver::Links& links)
{
    return links.cores > 0 ? links.cores : QThread::idealThreadCount();
}

int photosAtATime(int wanted, int cores, qsizetype photos)
{
    const int most = wanted > 0 ? std::min(wanted, cores) : cores;
    return static_cast<int>(std::clamp<qsizetype>(photos, 1, most));
}

BackgroundWriter::Limits limitsOf(int photos, int cores)
{
    return {
        .files = photos,
        .engineThreads = std::max(cores / photos, 1),
        .memory = platform::memoryOfMachine() / 4};
}

/// The same for all ways to write a path.
QString placeOf(const QString& path)
{
    if (path.isEmpty())
        return {};
    const QFileInfo file(path);
    const QString existing = file.canonicalFilePath();
    return existing.isEmpty() ? QFileInfo(file.path()).canonicalFilePath() + u'/' + file.fileName()
                              : existing;
}

/// One of the targets is the place, or lies in it.
bool isOrHolds(const QString& place, const QStringList& targets)
{
    return std::any_of(targets.begin(), targets.end(), [&](const QString& target) {
        return target == place || target.startsWith(place + u'/');
    });
}

/// Paths of the files that belong to the photo; the last is that of the picture itself.
QStringList targetsOf(const imaging::PhotoOutcome& photo, const imaging::PictureToSave& picture)
{
    QStringList targets;
    for (const auto* before = picture.before.get(); before; before = before->before.get())
        targets.append(imaging::writtenPath(
            imaging::Writer::Batch, before->destination, before->typeIdentifier
        ));
    return targets << (photo.target.isEmpty() ? picture.destination : photo.target);
}

std::size_t spaceAround(const QString& path)
{
    const qint64 bytes = QStorageInfo(QFileInfo(path).path()).bytesAvailable();
    return static_cast<std::size_t>(std::max<qint64>(bytes, 0));
}

/// What a word needs to know of the outcome.
imaging::PhotoOutcome withoutPixels(const imaging::PhotoOutcome& photo)
{
    imaging::PhotoOutcome rest = photo;
    if (auto* picture = std::get_if<imaging::PictureToSave>(&rest.outcome)) {
        picture->image.reset();
        picture->properties.reset();
        picture->before.reset();
    }
    return rest;
}

} // namespace

PictureSaver::PictureSaver(Links links, qsizetype photos)
    : m_links(std::move(links))
    , m_cores(coresOf(m_links))
    , m_photosAtATime(workspace::photosAtATime(m_links.photosAtATime, m_cores, photos))
    , m_writer(limitsOf(m_photosAtATime, m_cores))
{
}

PictureSaver::~PictureSaver() { PictureSaver::waitForAll(); }

void PictureSaver::take(const imaging::PhotoOutcome& photo)
{
    const auto* picture = std::get_if<imaging::PictureToSave>(&photo.outcome);
    if (picture && m_photosAtATime == 1)
        return record(photo, imaging::save(*picture));
    if (picture)
        start(photo, *picture);
    else
        m_waiting.push_back({.photo = photo, .places = {placeOf(photo.target)}, .placeOfSource = {}}
        );
    recordFinished();
}

void PictureSaver::start(const imaging::PhotoOutcome& photo, const imaging::PictureToSave& picture)
{
    const QStringList targets = targetsOf(photo, picture);
    for (const QString& target : targets)
        platform::awaitFile(target);
    m_writer.start(
        {.save = [picture] { return imaging::save(picture); },
         .memory = picture.image ? platform::graphics::memoryNeed(*picture.image) : 0,
         .diskSpace = spaceAround(targets.last())}
    );
    Waiting waiting{
        .photo = withoutPixels(photo),
        .places = {},
        .placeOfSource = placeOf(photo.source),
        .isMade = true};
    std::transform(targets.begin(), targets.end(), std::back_inserter(waiting.places), placeOf);
    m_waiting.push_back(waiting);
}

imaging::ResultWord PictureSaver::lastWord()
{
    waitForAll();
    return m_lastWord;
}

void PictureSaver::waitFor(const QString& path)
{
    if (m_waiting.empty())
        return;
    const QString place = placeOf(path);
    recordUntilNone([&place](const Waiting& each) { return isOrHolds(place, each.places); });
}

void PictureSaver::waitForUsesOf(const QString& path)
{
    if (m_waiting.empty())
        return;
    const QString place = placeOf(path);
    recordUntilNone([&place](const Waiting& each) {
        return isOrHolds(place, each.places + QStringList{each.placeOfSource});
    });
}

template <class IsMeant>
void PictureSaver::recordUntilNone(const IsMeant& isMeant)
{
    while (std::any_of(m_waiting.begin(), m_waiting.end(), isMeant))
        recordFirst();
}

void PictureSaver::waitForAll()
{
    if (m_links.bar.isAskedToEnd())
        return recordWhatStands();
    while (!m_waiting.empty())
        recordFirst();
}

void PictureSaver::recordWhatStands()
{
    m_writer.cancel();
    while (!m_waiting.empty()) {
        const Waiting first = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (!first.isMade || m_writer.takeFirst().word != imaging::ResultWord::Ok)
            continue;
        record(first.photo, imaging::ResultWord::Ok);
    }
}

void PictureSaver::recordFinished()
{
    while (!m_waiting.empty() && (!m_waiting.front().isMade || m_writer.hasFinished()))
        recordFirst();
}

void PictureSaver::recordFirst()
{
    // Who hears of the word may wait for others.
    const Waiting first = std::move(m_waiting.front());
    m_waiting.pop_front();
    if (!first.isMade)
        return record(first.photo, imaging::ResultWord::None);
    const BackgroundWriter::Finished finished = m_writer.takeFirst();
    for (const QString& line : finished.log)
        platform::log(line);
    record(first.photo, finished.word);
}

void PictureSaver::record(const imaging::PhotoOutcome& photo, imaging::ResultWord saved)
{
    m_lastWord = m_links.imageHandling.finish(photo.outcome, saved);
    m_links.journal.add(
        {.function = m_links.function,
         .source = photo.source,
         .target = photo.target,
         .word = m_lastWord}
    );
}

} // namespace brenvaldo::workspace
