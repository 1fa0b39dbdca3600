// SPDX-License-Identifier: GPL-3.0-or-later
#include "files_in_the_making.h"

#include <algorithm>
#include <vector>

namespace brenvaldo::platform {

namespace {

using All = std::vector<FilesInTheMaking*>;

/// More than one while a run goes on inside of another.
All& filesOfThread()
{
    thread_local All all;
    return all;
}

} // namespace

FilesInTheMaking::FilesInTheMaking() { filesOfThread().push_back(this); }

FilesInTheMaking::~FilesInTheMaking()
{
    All& all = filesOfThread();
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
}

void awaitFile(const QString& path)
{
    // A copy: who waits may be told of words, and start or end a run of its own.
    const All all = filesOfThread();
    for (FilesInTheMaking* files : all)
        files->waitFor(path);
}

void awaitUsesOfFile(const QString& path)
{
    const All all = filesOfThread();
    for (FilesInTheMaking* files : all)
        files->waitForUsesOf(path);
}

void awaitAllFiles()
{
    const All all = filesOfThread();
    for (FilesInTheMaking* files : all)
        files->waitForAll();
}

} // namespace brenvaldo::platform
