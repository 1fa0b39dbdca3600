// SPDX-License-Identifier: GPL-3.0-or-later
#include "form_builder.h"

#include "button_faces.h"
#include "color_well.h"
#include "fade_slider.h"
#include "form_rows.h"
#include "holder_view.h"
#include "picture_view.h"
#include "pop_up.h"
#include "radio_column.h"
#include "rows_table.h"
#include "sample_chooser.h"
#include "segments.h"
#include "text_area.h"
#include "unit_field.h"

#include <views/look/theme.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace brenvaldo::views {

namespace {

QVBoxLayout* formColumn(QWidget* form)
{
    auto* column = new QVBoxLayout(form);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::rowGap);
    return column;
}

/// Adds the items of a layout to a form, one below the other.
struct ItemBuilder
{
    const FormBuilder& builder;
    const Binder& binder;
    FormBuilder::Density density;
    QWidget* form;

    void operator()(const panels::Row& row) const { add(new FormRow(builder, row, density, form)); }
    void operator()(const panels::Heading& heading) const { add(headingLabel(heading.text, form)); }
    void operator()(const panels::Note& note) const { add(mutedLabel(note.text, form)); }
    void operator()(const panels::HolderPlace& place) const
    {
        add(new HolderView(*place.holder, builder, density, form));
    }
    void operator()(const panels::Table& table) const
    {
        auto* rows = new RowsTable(table.columns, form);
        rows->setEmptyText(table.emptyText);
        binder.bind(*rows, *table.table);
        binder.bindKeys(*rows, table);
        rows->setAccessibleName(
            table.accessibleName.isEmpty() ? table.table->name() : table.accessibleName
        );
        add(rows);
    }
    void operator()(const panels::Pages& pages) const
    {
        auto* tabs = new TabPages(*pages.tabs, binder, form);
        for (const panels::Layout& layout : pages.pages) {
            auto* page = new QWidget(tabs);
            formColumn(page);
            for (const auto& item : layout)
                std::visit(ItemBuilder{builder, binder, density, page}, item.item);
            tabs->addPage(page);
        }
        add(tabs);
    }

    void add(QWidget* widget) const { form->layout()->addWidget(widget); }
};

template <class Kind>
Kind* as(const panels::Field& field)
{
    return dynamic_cast<Kind*>(field.control);
}

QCheckBox* checkBox(const controls::CheckBox& box, QWidget* parent)
{
    return new QCheckBox(
        QString(box.title()).replace(QLatin1Char('&'), QLatin1String("&&")), parent
    );
}

} // namespace

FormBuilder::FormBuilder(const panels::Panels& panels, const Binder& binder)
    : m_panels(panels)
    , m_binder(binder)
{
}

void FormBuilder::showSamples(const controls::IndexedControl& control, PhotoSamples& samples)
{
    m_samples[&control] = &samples;
}

QWidget* FormBuilder::build(const panels::PanelView& view, Density density, QWidget* parent) const
{
    auto* form = new QWidget(parent);
    form->setObjectName(view.name());
    formColumn(form);
    for (const auto& item : view.layout())
        std::visit(ItemBuilder{*this, m_binder, density, form}, item.item);
    return form;
}

QWidget* FormBuilder::build(const QString& name, Density density, QWidget* parent) const
{
    if (const auto* view = m_panels.view(name))
        return build(*view, density, parent);
    if (auto* control = m_panels.control(name)) {
        QWidget* widget = buildField(
            {.control = control,
             .accessibleName = QCoreApplication::translate("FormBuilder", "Function")},
            parent
        );
        if (auto* popUp = qobject_cast<PopUp*>(widget))
            popUp->emphasise();
        return widget;
    }
    return nullptr;
}

QWidget* FormBuilder::buildField(const panels::Field& field, QWidget* parent) const
{
    QWidget* widget = makeField(field, parent);
    if (!widget->accessibleName().isEmpty())
        return widget;
    widget->setAccessibleName(
        field.accessibleName.isEmpty() ? field.control->name() : field.accessibleName
    );
    return widget;
}

template <class Widget, class Kind>
QWidget* bound(const Binder& binder, Widget* widget, Kind& control)
{
    binder.bind(*widget, control);
    return widget;
}

QWidget* FormBuilder::makeField(const panels::Field& field, QWidget* parent) const
{
    if (auto* text = as<controls::TextView>(field))
        return bound(m_binder, new TextArea(parent), *text);
    if (auto* text = as<controls::TextControl>(field))
        return bound(m_binder, new UnitField(field.unit, parent), *text);
    if (auto* box = as<controls::CheckBox>(field)) {
        QWidget* widget = bound(m_binder, checkBox(*box, parent), *box);
        widget->setAccessibleName(box->title());
        return widget;
    }
    if (auto* segments = as<controls::SegmentedControl>(field)) {
        const bool grid = segments->look() == controls::SegmentedControl::Look::PositionGrid;
        const auto look = grid ? Segments::Look::Grid : Segments::Look::Row;
        return bound(m_binder, new Segments(look, parent), *segments);
    }
    if (auto* matrix = as<controls::Matrix>(field))
        return bound(m_binder, new RadioColumn(parent), *matrix);
    const auto samples = m_samples.find(field.control);
    if (auto* choice = as<controls::IndexedControl>(field); choice && samples != m_samples.end())
        return bound(m_binder, new SampleChooser(*samples->second, parent), *choice);
    if (auto* popUp = as<controls::IndexedControl>(field))
        return bound(m_binder, new PopUp(field.unit, parent), *popUp);
    if (auto* well = as<controls::ColorWell>(field))
        return bound(m_binder, new ColorWell(parent), *well);
    if (auto* slider = as<controls::Slider>(field))
        return bound(
            m_binder,
            slider->look() == controls::Slider::Look::FadeStrip
                ? new FadeSlider(parent)
                : new QSlider(Qt::Horizontal, parent),
            *slider
        );
    if (auto* table = as<controls::TableView>(field))
        return bound(m_binder, new RowsTable({}, parent), *table);
    if (auto* bar = as<controls::ProgressIndicator>(field))
        return bound(m_binder, new QProgressBar(parent), *bar);
    if (auto* picture = as<controls::ImageView>(field))
        return bound(m_binder, new PictureView(parent), *picture);
    if (auto* holder = as<controls::Holder>(field))
        return new HolderView(*holder, *this, Density::Form, parent);
    if (auto* button = as<controls::Button>(field)) {
        auto* face = new QPushButton(parent);
        showFace(*face, *button);
        return bound(m_binder, face, *button);
    }
    return new QWidget(parent);
}

} // namespace brenvaldo::views
