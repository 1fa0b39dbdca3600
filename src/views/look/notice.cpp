// SPDX-License-Identifier: GPL-3.0-or-later
#include "notice.h"

#include "icons.h"
#include "theme.h"

#include <platform/foundation/literals.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace brenvaldo::views {

namespace {

constexpr int markSide = 18;

} // namespace

Notice::Notice(const QString& text, QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(text);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(2 * Metrics::margin + markSide, 10, Metrics::margin, 10);
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    line->addWidget(label);
}

void Notice::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect().adjusted(1, 0, 0, 0), colors().selection);
    QRect mark(0, 0, markSide, markSide);
    mark.moveCenter({Metrics::margin + markSide / 2, rect().center().y()});
    paintIcon(painter, u"info"_s, mark, colors().accent);
}

} // namespace brenvaldo::views
