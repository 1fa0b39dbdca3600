// SPDX-License-Identifier: GPL-3.0-or-later
#include "layout.h"

namespace brenvaldo::panels {

namespace {

void gatherControls(const Layout& layout, QList<controls::Control*>& found);

struct ControlGatherer
{
    QList<controls::Control*>& found;

    void operator()(const Row& row) const
    {
        for (const Field& field : row.fields)
            found.append(field.control);
    }
    void operator()(const Heading&) const { }
    void operator()(const Note&) const { }
    void operator()(const HolderPlace& place) const { found.append(place.holder); }
    void operator()(const Table& table) const { found.append(table.table); }
    void operator()(const Pages& pages) const
    {
        found.append(pages.tabs);
        for (const Layout& page : pages.pages)
            gatherControls(page, found);
    }
};

void gatherControls(const Layout& layout, QList<controls::Control*>& found)
{
    for (const LayoutItem& item : layout)
        std::visit(ControlGatherer{found}, item.item);
}

} // namespace

Layout joined(std::initializer_list<Layout> parts)
{
    Layout all;
    for (const Layout& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

PanelView::PanelView(QString name)
    : m_name(std::move(name))
{
}

QList<controls::Control*> PanelView::controls() const
{
    QList<controls::Control*> found;
    gatherControls(m_layout, found);
    return found;
}

} // namespace brenvaldo::panels
