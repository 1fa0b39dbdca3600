// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_area.h"

namespace brenvaldo::views {

namespace {

constexpr int lines = 3;
constexpr int inset = 3; ///< keeps the text off the round corners

} // namespace

TextArea::TextArea(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setViewportMargins(inset, inset, inset, inset);
    setFixedHeight(fontMetrics().lineSpacing() * lines + 2 * inset + 12);
}

void TextArea::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    update();
}

void TextArea::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    update();
}

} // namespace brenvaldo::views
