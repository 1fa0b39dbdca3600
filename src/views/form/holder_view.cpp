// SPDX-License-Identifier: GPL-3.0-or-later
#include "holder_view.h"

#include "subscriptions.h"

#include <views/look/theme.h>

#include <QVBoxLayout>

namespace brenvaldo::views {

HolderView::HolderView(
    controls::Holder& holder,
    const FormBuilder& builder,
    FormBuilder::Density density,
    QWidget* parent
)
    : QWidget(parent)
    , m_holder(holder)
    , m_builder(builder)
    , m_density(density)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::rowGap);
    setObjectName(holder.name());
    keepFor(*this, holder.changed.connect([this] { follow(); }));
    follow();
}

/// An empty holder takes no room, not even the gap to what stands below it.
void HolderView::follow()
{
    refill();
    setVisible(!m_holder.isHidden() && !m_shown.isEmpty());
}

void HolderView::refill()
{
    if (m_shown == m_holder.views())
        return;
    m_shown = m_holder.views();
    while (QLayoutItem* item = layout()->takeAt(0)) {
        // The change may come from a widget of the old view, which must outlive its own signal.
        item->widget()->hide();
        item->widget()->deleteLater();
        std::unique_ptr<QLayoutItem> taken(item);
    }
    for (const QString& name : m_shown) {
        if (QWidget* view = m_builder.build(name, m_density, this)) {
            layout()->addWidget(view);
            view->show();
        }
    }
}

} // namespace brenvaldo::views
