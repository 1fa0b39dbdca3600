// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

/// \file
/// Operations on files and folders by the rules of the platform: none of them replaces an existing
/// target, and none asks. Results tell success; a failure leaves no half-made file behind.

namespace brenvaldo::platform::storage {

/// True when something stands at `path`; a symbolic link counts as what it leads to.
[[nodiscard]] bool fileExists(const QString& path);

/// True when a folder stands at `path`, or a link that leads to one.
[[nodiscard]] bool isFolder(const QString& path);

/// Makes the folder and those around it that are missing; true when it then stands.
bool createFolder(const QString& path);

struct SourceAndTarget
{
    QString source;
    QString target;
};

/// Copies a file, a link (as a link) or a folder with all its contents; dates, modes and extended
/// attributes travel along.
///
/// False when something stands at the target already, when the source is missing, or when a folder
/// would be copied into itself.
bool copyItem(const SourceAndTarget& paths);

/// Moves a file or folder, across volumes by copying; false as for `copyItem`.
bool moveItem(const SourceAndTarget& paths);

/// Makes a symbolic link at `target` that leads to `source`, whether that exists or not.
bool createSymbolicLink(const SourceAndTarget& paths);

/// Removes a file, a link (never what it leads to) or a folder with its contents.
bool removeItem(const QString& path);

struct FileAttributes
{
    std::int64_t size = 0; ///< bytes
    QDateTime creationDate; ///< the modification date where the file system keeps none
    QDateTime modificationDate;
};

/// Attributes of the file, folder or link itself; nothing when it can't be read.
[[nodiscard]] std::optional<FileAttributes> fileAttributes(const QString& path);

struct FolderEntry
{
    QString path;
    QString name;
    bool isFolder = false; ///< false for a link to a folder
};

enum class HiddenFiles { Skipped, Included };

/// The entries of one folder, sorted by name; empty when it can't be read. Hidden are names that
/// begin with a dot.
[[nodiscard]] QList<FolderEntry>
folderEntries(const QString& folder, HiddenFiles hidden = HiddenFiles::Skipped);

/// The entries of a folder and of all folders in it, each folder right before its contents; hidden
/// ones are left out with all that they hold, links are not followed.
[[nodiscard]] QList<FolderEntry> folderTree(const QString& folder);

} // namespace brenvaldo::platform::storage
