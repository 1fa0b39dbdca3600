// SPDX-License-Identifier: GPL-3.0-or-later
#include "muted_label.h"

#include "theme.h"

#include <QEvent>

namespace brenvaldo::views {

MutedLabel::MutedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    takeColor();
}

void MutedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColor();
}

void MutedLabel::takeColor()
{
    QPalette own = palette();
    if (own.color(QPalette::Active, QPalette::WindowText) == colors().muted)
        return;
    own.setColor(QPalette::Active, QPalette::WindowText, colors().muted);
    own.setColor(QPalette::Inactive, QPalette::WindowText, colors().muted);
    own.setColor(QPalette::Disabled, QPalette::WindowText, colors().disabled);
    setPalette(own);
}

} // namespace brenvaldo::views
