// SPDX-License-Identifier: GPL-3.0-or-later
#include "user_input.h"

namespace brenvaldo::controls {

UserInput::UserInput(const ActionRegistry& actions)
    : m_actions(actions)
{
}

void UserInput::typeOn(TextControl& field, const QString& text) const
{
    if (field.stringValue() == text)
        return;
    field.setStringValue(text);
    send(field.typingActions(), field);
}

void UserInput::type(TextControl& field, const QString& text) const
{
    typeOn(field, text);
    sendActions(field);
}

void UserInput::tick(CheckBox& box, int state) const
{
    box.setState(state);
    sendActions(box);
}

void UserInput::pick(IndexedControl& control, int index) const
{
    control.selectIndex(index);
    sendActions(control);
}

void UserInput::pick(TabView& tabs, int index) const
{
    tabs.selectIndex(index);
    sendActions(tabs);
}

void UserInput::choose(ColorWell& well, const platform::graphics::Color& color) const
{
    well.setColor(color);
    sendActions(well);
}

void UserInput::drag(Slider& slider, double value) const
{
    slider.setDoubleValue(value);
    sendActions(slider);
}

void UserInput::select(TableView& table, int row) const
{
    table.selectRow(row);
    sendActions(table);
}

void UserInput::press(const Button& button) const { sendActions(button); }

void UserInput::drop(ImageView& view, const QString& path) const
{
    view.setDroppedFile(path);
    sendActions(view);
}

void UserInput::sendActions(const Control& control) const { send(control.actions(), control); }

void UserInput::send(const QStringList& actions, const Control& control) const
{
    for (const QString& action : actions)
        m_actions.send(action, {.tag = control.tag(), .control = &control});
}

} // namespace brenvaldo::controls
