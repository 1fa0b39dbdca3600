// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "file_result.h"

#include <platform/storage/desktop.h>
#include <platform/storage/file_system.h>

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>

#include <optional>

namespace brenvaldo::files {

/// A file and the name that it is to get in its folder.
struct PathAndName
{
    QString path;
    QString name;
};

/// A file whose date is asked for. The modes "0", "1" and "2" all mean the same format; with any
/// other mode the latest text comes back.
struct DateRequest
{
    QString path;
    QString mode;
};

struct TextAndPath
{
    QString text;
    QString path;
};

struct PathAndKey
{
    QString path;
    QString key;
};

/// The file operations of the program. No operation shows a message; faults of the platform show as
/// result words only, or not at all.
///
/// An object keeps the latest date text and the latest size text; all else has no state.
class cNSFileHandling
{
public:
    using SourceAndTarget = platform::storage::SourceAndTarget;

    /// Makes the folder and those around it; "EXISTS" for whatever stands at `path`, a file too.
    static FileResult hCreateDirectory(const QString& path);

    /// Puts a copy of the source at the target. The folder of the target is made when it is
    /// missing, and what stands at the target is removed before the source is looked at: where both
    /// are one path, the file is lost and the answer is "Failed".
    static FileResult hCopyFileTo(const SourceAndTarget& paths);
    /// As `hCopyFileTo`, but moves the source.
    static FileResult hMoveFileTo(const SourceAndTarget& paths);
    /// As `hCopyFileTo`, but makes a symbolic link that leads to the source.
    static FileResult hAliasFileTo(const SourceAndTarget& paths);

    /// Makes the target path itself a folder and then copies onto that same path.
    static FileResult hCopyFileToDest(const SourceAndTarget& paths);
    /// Copies without replacing: "Success" or "Failed".
    static FileResult hCopyFolderTo(const SourceAndTarget& paths);
    /// Deletes a source folder that exists, contents first. For one that doesn't, copies the files
    /// of its parent folder into the target. Always "Success".
    static FileResult hCopyAppTo(const SourceAndTarget& folders);

    static FileResult hTrashFile(const QString& path);
    /// Always "OK".
    static FileResult hDeleteFiles(const QList<QUrl>& files);
    static void hShowInFinder(platform::storage::Desktop& desktop, const QString& path);

    /// Moves the file to the new name through addresses made from the plain paths: does nothing
    /// when either is no valid address, such as with a blank in it.
    static void hRenameFile(const PathAndName& file);
    /// Copies, whatever its name says; an existing target stays.
    static void hRenameFile2(const SourceAndTarget& paths);

    /// "OK" or "NO".
    static FileResult hCheckIfFileExist(const QString& path);
    static void hAddIconToFile(const QString& path, const QImage& icon);

    /// The date as "15-Nov-2026T10-44-33"; "" for a missing file.
    QString hGetCreationDateFile(const DateRequest& request);
    QString hGetModificationDateFile(const DateRequest& request);
    /// The size as "5.5 MB"; for a missing file the latest text again.
    QString getFileSize(const QString& path);
    /// The type identifier by the name, such as "public.jpeg"; "" for a missing file.
    static QString hGetFileType(const QString& path);

    static void hWritHTMLFile(const TextAndPath& file);
    static void hWriteTextFile(const TextAndPath& file);
    /// The lines of a UTF-8 file; nothing when it is missing or no such text.
    static std::optional<QStringList> hReadTextFileLbyL(const QString& path);

    /// The value of a key of a property list; nothing when the file or the key is missing.
    static std::optional<QVariant> readPlist(const PathAndKey& entry);
    /// Sets the key in an existing property list; a missing file stays missing.
    static void writeToPlist(const PathAndKey& entry, const QVariant& value);

    static void writeNSDataToFile(const QByteArray& contents, const QString& path);
    /// Nothing when the file can't be read.
    static std::optional<QByteArray> readNSDataFromFile(const QString& path);

private:
    QString
    dateText(const DateRequest& request, QDateTime platform::storage::FileAttributes::*date);

    QString m_dateText;
    QString m_sizeText;
};

} // namespace brenvaldo::files
