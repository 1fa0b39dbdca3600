// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform {

/// Files that other threads still make for the thread that this object was made on.
///
/// That thread sees them as if they were made at once: whoever looks at one of them there, or
/// writes in its place, waits for it first.
class FilesInTheMaking
{
public:
    FilesInTheMaking();
    FilesInTheMaking(const FilesInTheMaking&) = delete;
    FilesInTheMaking& operator=(const FilesInTheMaking&) = delete;
    FilesInTheMaking(FilesInTheMaking&&) = delete;
    FilesInTheMaking& operator=(FilesInTheMaking&&) = delete;
    virtual ~FilesInTheMaking();

    /// Returns when no file in the making comes to stand at `path`.
    virtual void waitFor(const QString& path) = 0;
    /// Returns when no file in the making is made of the one at `path`, or comes to stand there.
    virtual void waitForUsesOf(const QString& path) = 0;
    /// Returns when no file is in the making.
    virtual void waitForAll() = 0;
};

/// To be called before a file is opened or copied by its path.
void awaitFile(const QString& path);

/// To be called before a file is written anew, moved or removed by its path: also waits for those
/// that are made of it.
void awaitUsesOfFile(const QString& path);

void awaitAllFiles();

} // namespace brenvaldo::platform
