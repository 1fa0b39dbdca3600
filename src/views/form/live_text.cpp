// SPDX-License-Identifier: GPL-3.0-or-later
#include "live_text.h"

#include "subscriptions.h"

#include <views/look/theme.h>

#include <QPainter>

namespace brenvaldo::views {

LiveText::LiveText(std::function<QString()> text, QWidget* parent)
    : QLabel(parent)
    , m_makeText(std::move(text))
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setContentsMargins(Metrics::margin + 1, 8, Metrics::margin, 8);
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &LiveText::refresh);
    refresh();
}

void LiveText::follow(const QList<controls::Control*>& controls)
{
    for (controls::Control* control : controls)
        keepFor(*this, control->changed.connect([this] { refreshSoon(); }));
}

void LiveText::refreshSoon() { m_soon.start(0); }

void LiveText::refresh()
{
    setText(m_makeText());
    setVisible(!text().isEmpty());
}

void LiveText::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(rect().adjusted(1, 0, 0, 0), colors().selection);
    QLabel::paintEvent(event);
}

} // namespace brenvaldo::views
