// SPDX-License-Identifier: GPL-3.0-or-later
#include "css_text.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

CssText& CssText::rule(const QString& selector, const QStringList& lines)
{
    m_text += selector + u" {\n"_s;
    for (const QString& line : lines) {
        if (!line.isEmpty())
            m_text += line + u'\n';
    }
    m_text += u"}\n\n"_s;
    return *this;
}

CssText& CssText::raw(const QString& text)
{
    m_text += text;
    return *this;
}

} // namespace brenvaldo::gallery
