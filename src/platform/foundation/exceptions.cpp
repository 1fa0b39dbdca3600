// SPDX-License-Identifier: GPL-3.0-or-later
#include "exceptions.h"

namespace brenvaldo::platform {

Exception::Exception(QString kind, QString reason)
    : m_kind(std::move(kind))
    , m_reason(std::move(reason))
    , m_what((m_kind + QStringLiteral(": ") + m_reason).toUtf8())
{
}

RangeError::RangeError(const QString& reason)
    : Exception(QStringLiteral("NSRangeException"), reason)
{
}

InvalidArgument::InvalidArgument(const QString& reason)
    : Exception(QStringLiteral("NSInvalidArgumentException"), reason)
{
}

AssertionFailure::AssertionFailure(const QString& reason)
    : Exception(QStringLiteral("NSInternalInconsistencyException"), reason)
{
}

} // namespace brenvaldo::platform
