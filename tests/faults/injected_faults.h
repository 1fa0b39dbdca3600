// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>

namespace brenvaldo::test {

/// Counts what is written, flushed, linked and renamed in a folder, and lets calls fail for want of
/// room. One at a time; the system calls of the whole process pass by it.
class InjectedFaults
{
public:
    struct Plan
    {
        int first = 0; ///< the call that fails, from 1 on; 0: none
        bool stays = false; ///< all calls after it fail as well
        bool refusesNamelessFiles = false; ///< as network folders do
        bool refusesMarkedRenames = false; ///< knows no rename that keeps what is there
        bool killsAtRename = false; ///< the process ends instead of renaming
        std::optional<std::size_t> room
            = {}; ///< for all files of the folder, nameless ones as well
        std::function<void()> atFlush = {}; ///< what another process does meanwhile
    };

    InjectedFaults(const QString& folder, const Plan& plan);
    InjectedFaults(const InjectedFaults&) = delete;
    InjectedFaults& operator=(const InjectedFaults&) = delete;
    InjectedFaults(InjectedFaults&&) = delete;
    InjectedFaults& operator=(InjectedFaults&&) = delete;
    ~InjectedFaults();

    [[nodiscard]] int calls() const { return m_calls; }

    /// The faults that are in force; null for none.
    [[nodiscard]] static InjectedFaults* current();

    [[nodiscard]] const Plan& plan() const { return m_plan; }
    [[nodiscard]] bool concerns(const char* path) const;
    [[nodiscard]] bool concerns(int descriptor) const;
    /// Counts a call; true when it is to fail.
    [[nodiscard]] bool failsNow();

    /// Bytes that the folder still takes up. Who asks for them and then writes holds `roomMutex`.
    [[nodiscard]] std::size_t roomLeft() const;
    [[nodiscard]] std::mutex& roomMutex() { return m_roomMutex; }

private:
    QByteArray m_folder;
    Plan m_plan;
    std::atomic<int> m_calls = 0;
    std::mutex m_roomMutex;
};

} // namespace brenvaldo::test
