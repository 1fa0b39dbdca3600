// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine_thread.h"

#include <vips/vips.h>

#include <utility>

namespace brenvaldo::platform::graphics {

namespace {

EvaluationTerms& termsOfThread()
{
    thread_local EvaluationTerms terms;
    return terms;
}

} // namespace

const EvaluationTerms& EvaluationTerms::ofThread() { return termsOfThread(); }

TermsOnThread::TermsOnThread(EvaluationTerms terms)
    : m_before(std::exchange(termsOfThread(), std::move(terms)))
{
}

TermsOnThread::~TermsOnThread() { termsOfThread() = std::move(m_before); }

EngineThread::EngineThread(EvaluationTerms terms)
    : m_terms(std::move(terms))
{
}

EngineThread::~EngineThread() { vips_thread_shutdown(); }

} // namespace brenvaldo::platform::graphics
