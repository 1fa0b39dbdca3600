// SPDX-License-Identifier: GPL-3.0-or-later
#include "thumbnail_store.h"

#include <platform/codecs/image_source.h>

#include <QFileInfo>

#include <algorithm>

namespace brenvaldo::views {

namespace {

constexpr int workerCount = 2;
constexpr int cacheKilobytes = 192 * 1024;
constexpr int mostWaiting = 400;

QImage fitted(const QImage& picture, int side)
{
    if (picture.width() <= side && picture.height() <= side)
        return picture;
    return picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage rendered(const workspace::ListPicture& picture, int side)
{
    const auto drawn = workspace::drawnPicture(picture, side);
    return drawn ? drawn->toQImage() : QImage();
}

} // namespace

ThumbnailStore::ThumbnailStore(int side, QObject* parent)
    : QObject(parent)
    , m_side(side)
    , m_entries(cacheKilobytes)
{
    m_workers.setMaxThreadCount(workerCount);
    m_workers.setThreadPriority(QThread::LowPriority);
}

ThumbnailStore::~ThumbnailStore()
{
    m_waiting.clear();
    m_workers.waitForDone();
}

ThumbnailStore::FileState ThumbnailStore::stateOf(const QString& path)
{
    const QFileInfo file(path);
    return {.modified = file.lastModified(), .size = file.exists() ? file.size() : -1};
}

QImage ThumbnailStore::picture(const workspace::ListPicture& wanted)
{
    const Entry* entry = m_entries.object(wanted.path);
    const bool isComing = m_inWork.contains(wanted.path);
    if (!m_checked.contains(wanted.path) || (!entry && !isComing))
        askFor(wanted);
    return entry ? entry->picture : QImage();
}

void ThumbnailStore::askFor(const workspace::ListPicture& wanted)
{
    m_checked.insert(wanted.path);
    m_waiting.removeOne(wanted);
    m_waiting.append(wanted);
    if (m_waiting.size() > mostWaiting)
        m_checked.remove(m_waiting.takeFirst().path);
    startNext();
}

bool ThumbnailStore::isUnreadable(const QString& path) const
{
    const Entry* entry = m_entries.object(path);
    return entry && entry->isFinal && entry->picture.isNull();
}

void ThumbnailStore::checkFilesAgain() { m_checked.clear(); }

void ThumbnailStore::startNext()
{
    while (m_inWork.size() < workerCount) {
        const auto next = std::find_if(
            m_waiting.crbegin(),
            m_waiting.crend(),
            [this](const workspace::ListPicture& waiting) {
                return !m_inWork.contains(waiting.path);
            }
        );
        if (next == m_waiting.crend())
            return;
        const workspace::ListPicture wanted = *next;
        m_waiting.removeOne(wanted);
        const Entry* entry = m_entries.object(wanted.path);
        const FileState known = entry && entry->isFinal ? entry->file : FileState{};
        m_inWork.insert(wanted.path);
        m_workers.start([this, wanted, known] { make(wanted, known); });
    }
}

void ThumbnailStore::make(const workspace::ListPicture& wanted, const FileState& known)
{
    const QString& path = wanted.path;
    const auto tell = [this, path](const Entry& entry) {
        QMetaObject::invokeMethod(this, [this, path, entry] { take(path, entry); });
    };
    const FileState file = stateOf(path);
    if (file != known || file.size < 0) {
        if (const QImage quick = platform::codecs::embeddedThumbnail(path); !quick.isNull())
            tell({.picture = fitted(quick, m_side), .file = file});
        tell({.picture = rendered(wanted, m_side), .file = file, .isFinal = true});
    }
    const bool isSteady = stateOf(path) == file;
    QMetaObject::invokeMethod(this, [this, path, isSteady] { finish(path, isSteady); });
}

void ThumbnailStore::take(const QString& path, const Entry& entry)
{
    const auto kilobytes = std::max<qsizetype>(1, entry.picture.sizeInBytes() / 1024);
    m_entries.insert(path, new Entry(entry), kilobytes);
    Q_EMIT arrived(path);
}

void ThumbnailStore::finish(const QString& path, bool isSteady)
{
    m_inWork.remove(path);
    if (!isSteady) {
        m_checked.remove(path);
        Q_EMIT arrived(path);
    }
    startNext();
}

} // namespace brenvaldo::views
