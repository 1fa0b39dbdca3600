// SPDX-License-Identifier: GPL-3.0-or-later
#include "info_pane.h"

#include <platform/foundation/literals.h>
#include <views/look/theme.h>

#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

namespace brenvaldo::views {

namespace {

constexpr int paneWidth = 360;

} // namespace

InfoPane::InfoPane(const panels::PanelView& view, const FormBuilder& builder, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(u"infoPane"_s);
    setAccessibleName(tr("Photo info"));
    setFixedWidth(paneWidth);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 1, 0);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* form = new QWidget(scroll);
    auto* column = new QVBoxLayout(form);
    column->setContentsMargins(Metrics::margin, 12, Metrics::margin, 12);
    column->addWidget(builder.build(view, FormBuilder::Density::Form, form));
    scroll->setWidget(form);
    all->addWidget(scroll);
}

void InfoPane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colors().window);
    painter.fillRect(QRect(width() - 1, 0, 1, height()), colors().border);
}

} // namespace brenvaldo::views
