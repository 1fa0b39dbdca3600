// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <memory>

namespace brenvaldo::platform::graphics {

/// How the evaluations that a thread asks for are to go.
struct EvaluationTerms
{
    int threads = 0; ///< of the engine for each; 0: as many as there are cores
    std::shared_ptr<const std::atomic<bool>> cancelled = {}; ///< true fails them soon; may be null

    [[nodiscard]] bool isCancelled() const { return cancelled && *cancelled; }

    /// Those of this thread.
    [[nodiscard]] static const EvaluationTerms& ofThread();
};

/// Sets the terms of this thread for as long as it lives.
class TermsOnThread
{
public:
    explicit TermsOnThread(EvaluationTerms terms);
    TermsOnThread(const TermsOnThread&) = delete;
    TermsOnThread& operator=(const TermsOnThread&) = delete;
    TermsOnThread(TermsOnThread&&) = delete;
    TermsOnThread& operator=(TermsOnThread&&) = delete;
    ~TermsOnThread();

private:
    EvaluationTerms m_before;
};

/// Stands first on a thread of the program's own that asks for evaluations, and lets go of what the
/// engine keeps for that thread.
class EngineThread
{
public:
    explicit EngineThread(EvaluationTerms terms);
    EngineThread(const EngineThread&) = delete;
    EngineThread& operator=(const EngineThread&) = delete;
    EngineThread(EngineThread&&) = delete;
    EngineThread& operator=(EngineThread&&) = delete;
    ~EngineThread();

private:
    TermsOnThread m_terms;
};

} // namespace brenvaldo::platform::graphics
