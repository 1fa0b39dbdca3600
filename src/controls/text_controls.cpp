// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_controls.h"

#include <platform/foundation/numbers.h>

namespace brenvaldo::controls {

TextControl::TextControl(const QString& name, QString text)
    : Control(name)
    , m_text(std::move(text))
{
}

void TextControl::setStringValue(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    changed();
}

std::int32_t TextControl::intValue() const { return platform::intValue(m_text); }
std::int64_t TextControl::integerValue() const { return platform::integerValue(m_text); }
float TextControl::floatValue() const { return platform::floatValue(m_text); }
double TextControl::doubleValue() const { return platform::doubleValue(m_text); }

void TextView::setAlignment(Alignment alignment)
{
    if (m_alignment == alignment)
        return;
    m_alignment = alignment;
    changed();
}

} // namespace brenvaldo::controls
