// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace brenvaldo::platform {

/// Lets this thread, for as long as it lives, wait with each finished file until that may be put in
/// its place.
class CommitTurn
{
public:
    /// Returns when it is this thread's turn; false when the file is to be thrown away.
    using Wait = std::function<bool()>;

    explicit CommitTurn(Wait wait);
    CommitTurn(const CommitTurn&) = delete;
    CommitTurn& operator=(const CommitTurn&) = delete;
    CommitTurn(CommitTurn&&) = delete;
    CommitTurn& operator=(CommitTurn&&) = delete;
    ~CommitTurn();
};

/// Waits for this thread's turn; at once true on a thread that has none to wait for.
[[nodiscard]] bool awaitCommitTurn();

} // namespace brenvaldo::platform
