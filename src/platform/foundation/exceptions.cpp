// SPDX-License-Identifier: GPL-3.0-or-later
#include "exceptions.h"

#include "literals.h"

namespace brenvaldo::platform {

Exception::Exception(QString kind, QString reason)
    : m_kind(std::move(kind))
    , m_reason(std::move(reason))
    , m_what((m_kind + u": "_s + m_reason).toUtf8())
{
}

RangeError::RangeError(const QString& reason)
    : Exception(u"NSRangeException"_s, reason)
{
}

InvalidArgument::InvalidArgument(const QString& reason)
    : Exception(u"NSInvalidArgumentException"_s, reason)
{
}

AssertionFailure::AssertionFailure(const QString& reason)
    : Exception(u"NSInternalInconsistencyException"_s, reason)
{
}

} // namespace brenvaldo::platform
