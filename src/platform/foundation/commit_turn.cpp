// SPDX-License-Identifier: GPL-3.0-or-later
#include "commit_turn.h"

#include <utility>

namespace brenvaldo::platform {

namespace {

CommitTurn::Wait& waitOfThread()
{
    thread_local CommitTurn::Wait wait;
    return wait;
}

} // namespace

CommitTurn::CommitTurn(Wait wait) { waitOfThread() = std::move(wait); }

CommitTurn::~CommitTurn() { waitOfThread() = nullptr; }

bool awaitCommitTurn()
{
    const CommitTurn::Wait& wait = waitOfThread();
    return !wait || wait();
}

} // namespace brenvaldo::platform
