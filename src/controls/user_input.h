// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "action_registry.h"
#include "choice_controls.h"
#include "color_well.h"
#include "containers.h"
#include "image_view.h"
#include "range_controls.h"
#include "text_controls.h"

namespace brenvaldo::controls {

/// What a user does to a control, from a widget or a script alike: gives it a value and sends its
/// actions.
class UserInput
{
public:
    explicit UserInput(const ActionRegistry& actions);

    /// Types on until the field holds `text`, without leaving it; nothing is sent when it does
    /// already.
    void typeOn(TextControl& field, const QString& text) const;
    /// Types `text` and leaves the field.
    void type(TextControl& field, const QString& text) const;
    void tick(CheckBox& box, int state) const;
    void pick(IndexedControl& control, int index) const;
    void pick(TabView& tabs, int index) const;
    void choose(ColorWell& well, const platform::graphics::Color& color) const;
    void drag(Slider& slider, double value) const;
    void select(TableView& table, int row) const;
    void press(const Button& button) const;
    /// Lets go of a file above a picture.
    void drop(ImageView& view, const QString& path) const;

private:
    void sendActions(const Control& control) const;
    void send(const QStringList& actions, const Control& control) const;

    const ActionRegistry& m_actions;
};

} // namespace brenvaldo::controls
