// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/list_picture.h>

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QThreadPool>

namespace brenvaldo::views {

/// Small pictures of the list, made in worker threads; nothing here waits for a file.
///
/// A picture comes twice: at once the one that the camera has put into the file, then one made from
/// the photo itself. What was asked for last is made first. Pictures are kept by path, date and
/// size of the file, the longest unused ones are dropped. A file that is written while it is being
/// read is looked at again when its picture is asked for next.
class ThumbnailStore : public QObject
{
    Q_OBJECT

public:
    /// Pictures fit a square of `side` pixels.
    explicit ThumbnailStore(int side, QObject* parent = nullptr);
    ~ThumbnailStore() override;
    ThumbnailStore(const ThumbnailStore&) = delete;
    ThumbnailStore& operator=(const ThumbnailStore&) = delete;
    ThumbnailStore(ThumbnailStore&&) = delete;
    ThumbnailStore& operator=(ThumbnailStore&&) = delete;

    /// The best picture there is yet; null at first. Asking starts the making.
    [[nodiscard]] QImage picture(const workspace::ListPicture& wanted);

    /// True when the file turned out to be no readable image.
    [[nodiscard]] bool isUnreadable(const QString& path) const;

    /// Looks again at each file when its picture is asked for next.
    void checkFilesAgain();

Q_SIGNALS:
    /// A picture, or a better one, can be had for `path`.
    void arrived(const QString& path);

private:
    struct FileState
    {
        QDateTime modified;
        qint64 size = -1;

        friend bool operator==(const FileState&, const FileState&) = default;
    };

    struct Entry
    {
        QImage picture;
        FileState file;
        bool isFinal = false;
    };

    [[nodiscard]] static FileState stateOf(const QString& path);
    void askFor(const workspace::ListPicture& wanted);
    void startNext();
    void make(const workspace::ListPicture& wanted, const FileState& known);
    void take(const QString& path, const Entry& entry);
    void finish(const QString& path, bool isSteady);

    int m_side;
    QCache<QString, Entry> m_entries;
    QList<workspace::ListPicture> m_waiting; ///< the newest last
    QSet<QString> m_checked; ///< paths looked at since the last check
    QSet<QString> m_inWork; ///< each path is worked on once at a time
    QThreadPool m_workers;
};

} // namespace brenvaldo::views
