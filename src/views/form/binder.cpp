// SPDX-License-Identifier: GPL-3.0-or-later
#include "binder.h"

#include "color_well.h"
#include "picture_view.h"
#include "pop_up.h"
#include "radio_column.h"
#include "rows_table.h"
#include "sample_chooser.h"
#include "segments.h"
#include "subscriptions.h"
#include "unit_field.h"

#include <QCheckBox>
#include <QEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabBar>

namespace brenvaldo::views {

namespace {

constexpr int sliderSteps = 1000;

/// Calls back when the user has edited a text view and then leaves it.
class LeaveWatcher : public QObject
{
public:
    LeaveWatcher(QPlainTextEdit& text, std::function<void()> left)
        : QObject(&text)
        , m_left(std::move(left))
    {
        text.installEventFilter(this);
    }

    void setEdited() { m_edited = true; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut && std::exchange(m_edited, false))
            m_left();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_left;
    bool m_edited = false;
};

QColor shown(const platform::graphics::Color& color)
{
    return QColor::fromRgbF(
        static_cast<float>(color.red),
        static_cast<float>(color.green),
        static_cast<float>(color.blue)
    );
}

platform::graphics::Color chosen(const QColor& color)
{
    return {
        .red = color.red() / 255.0,
        .green = color.green() / 255.0,
        .blue = color.blue() / 255.0,
        .alpha = 1};
}

void align(QPlainTextEdit& widget, controls::TextView::Alignment alignment)
{
    QTextOption option = widget.document()->defaultTextOption();
    switch (alignment) {
    case controls::TextView::Alignment::Left:
        option.setAlignment(Qt::AlignLeft);
        break;
    case controls::TextView::Alignment::Right:
        option.setAlignment(Qt::AlignRight);
        break;
    case controls::TextView::Alignment::Center:
        option.setAlignment(Qt::AlignHCenter);
        break;
    }
    widget.document()->setDefaultTextOption(option);
}

void showTitles(PopUp& widget, const QStringList& titles)
{
    QStringList shown;
    for (int index = 0; index < widget.count(); ++index)
        shown.append(widget.itemText(index));
    if (shown == titles)
        return;
    widget.clear();
    widget.addItems(titles);
}

} // namespace

void followControl(
    QWidget& widget, const controls::Control& control, const std::function<void()>& update
)
{
    widget.setObjectName(control.name());
    const auto showAll = [&widget, &control, update] {
        update();
        widget.setEnabled(control.isEnabled());
        if (widget.isHidden() != control.isHidden())
            widget.setVisible(!control.isHidden());
        widget.setToolTip(control.toolTip());
    };
    showAll();
    keepFor(widget, control.changed.connect(showAll));
}

Binder::Binder(const controls::UserInput& input)
    : m_input(input)
{
}

void Binder::bind(UnitField& widget, controls::TextControl& control) const
{
    followControl(widget, control, [&widget, &control] {
        if (widget.text() == control.stringValue())
            return;
        widget.setText(control.stringValue());
        if (!widget.hasFocus())
            widget.setCursorPosition(0);
    });
    QObject::connect(&widget, &QLineEdit::textEdited, &widget, [this, &widget, &control] {
        widget.setModified(true);
        m_input.typeOn(control, widget.text());
    });
    QObject::connect(&widget, &QLineEdit::editingFinished, &widget, [this, &widget, &control] {
        if (!widget.isModified())
            return;
        widget.setModified(false);
        m_input.type(control, widget.text());
    });
}

void Binder::bind(QPlainTextEdit& widget, controls::TextView& control) const
{
    followControl(widget, control, [&widget, &control] {
        const QSignalBlocker quiet(&widget);
        align(widget, control.alignment());
        if (widget.toPlainText() != control.stringValue())
            widget.setPlainText(control.stringValue());
    });
    auto* watcher = new LeaveWatcher(widget, [this, &widget, &control] {
        m_input.type(control, widget.toPlainText());
    });
    const auto edited = [this, &widget, &control, watcher] {
        watcher->setEdited();
        m_input.typeOn(control, widget.toPlainText());
    };
    QObject::connect(&widget, &QPlainTextEdit::textChanged, watcher, edited);
}

void Binder::bind(QCheckBox& widget, controls::CheckBox& control) const
{
    followControl(widget, control, [&widget, &control] { widget.setChecked(control.isOn()); });
    QObject::connect(&widget, &QCheckBox::clicked, &widget, [this, &control](bool ticked) {
        m_input.tick(control, ticked ? 1 : 0);
    });
}

void Binder::bind(PopUp& widget, controls::IndexedControl& control) const
{
    followControl(widget, control, [&widget, &control] {
        showTitles(widget, control.titles());
        widget.setCurrentIndex(control.selectedIndex());
    });
    QObject::connect(&widget, &QComboBox::activated, &widget, [this, &control](int index) {
        m_input.pick(control, index);
    });
}

void Binder::bind(SampleChooser& widget, controls::IndexedControl& control) const
{
    followControl(widget, control, [&widget, &control] {
        widget.setTitles(control.titles());
        widget.select(control.selectedIndex());
    });
    QObject::connect(&widget, &SampleChooser::picked, &widget, [this, &control](int index) {
        m_input.pick(control, index);
    });
}

void Binder::bind(Segments& widget, controls::IndexedControl& control) const
{
    followControl(widget, control, [&widget, &control] {
        widget.setTitles(control.titles());
        widget.select(control.selectedIndex());
    });
    QObject::connect(&widget, &Segments::picked, &widget, [this, &control](int index) {
        m_input.pick(control, index);
    });
}

void Binder::bind(RadioColumn& widget, controls::Matrix& control) const
{
    followControl(widget, control, [&widget, &control] {
        widget.setTitles(control.titles());
        widget.select(control.selectedRow());
    });
    QObject::connect(&widget, &RadioColumn::picked, &widget, [this, &control](int row) {
        m_input.pick(control, row);
    });
}

void Binder::bind(QTabBar& widget, controls::TabView& control) const
{
    for (const auto& tab : control.tabs())
        widget.addTab(tab.label);
    followControl(widget, control, [&widget, &control] {
        widget.setCurrentIndex(control.selectedIndex());
    });
    QObject::connect(&widget, &QTabBar::currentChanged, &widget, [this, &control](int index) {
        if (index != control.selectedIndex())
            m_input.pick(control, index);
    });
}

void Binder::bind(ColorWell& widget, controls::ColorWell& control) const
{
    followControl(widget, control, [&widget, &control] {
        widget.setColor(shown(control.color()));
    });
    QObject::connect(&widget, &ColorWell::chosen, &widget, [this, &control](const QColor& color) {
        m_input.choose(control, chosen(color));
    });
}

void Binder::bind(QSlider& widget, controls::Slider& control) const
{
    const double range = control.maximum() - control.minimum();
    widget.setRange(0, sliderSteps);
    followControl(widget, control, [&widget, &control, range] {
        const double part = range > 0 ? (control.doubleValue() - control.minimum()) / range : 0;
        const QSignalBlocker quiet(&widget);
        widget.setValue(qRound(part * sliderSteps));
    });
    QObject::connect(&widget, &QSlider::valueChanged, &widget, [this, &control, range](int step) {
        m_input.drag(control, control.minimum() + range * step / sliderSteps);
    });
}

void Binder::bind(RowsTable& widget, controls::TableView& control) const
{
    const auto showRows = [&widget, &control] {
        widget.setRows(control.content());
        widget.selectRow(control.selectedRow());
    };
    followControl(widget, control, showRows);
    keepFor(widget, control.content().changed.connect(showRows));
    QObject::connect(&widget, &RowsTable::picked, &widget, [this, &control](int row) {
        m_input.select(control, row);
    });
}

void Binder::bindKeys(RowsTable& widget, const panels::Table& table) const
{
    const auto presses = [this, &widget](void (RowsTable::*key)(), const controls::Button* button) {
        if (button)
            QObject::connect(&widget, key, &widget, [this, button] { m_input.press(*button); });
    };
    presses(&RowsTable::used, table.useButton);
    presses(&RowsTable::removed, table.removeButton);
}

void Binder::bind(QAbstractButton& widget, controls::Button& control) const
{
    followControl(widget, control, [] {});
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [this, &control] {
        m_input.press(control);
    });
}

void Binder::bind(QProgressBar& widget, const controls::ProgressIndicator& control) const
{
    widget.setTextVisible(false);
    followControl(widget, control, [&widget, &control] {
        widget.setRange(0, qRound(control.maximum()));
        widget.setValue(qRound(control.doubleValue()));
    });
}

void Binder::bind(PictureView& widget, controls::ImageView& control) const
{
    followControl(widget, control, [&widget, &control] {
        widget.setPicture(control.image() ? control.image()->toQImage() : QImage());
    });
    widget.setAcceptDrops(control.takesFiles());
    QObject::connect(
        &widget,
        &PictureView::fileDropped,
        &widget,
        [this, &control](const QString& path) { m_input.drop(control, path); }
    );
}

} // namespace brenvaldo::views
