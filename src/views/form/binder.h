// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/image_view.h>
#include <controls/user_input.h>
#include <panels/layout.h>

#include <functional>

class QAbstractButton;
class QCheckBox;
class QPlainTextEdit;
class QProgressBar;
class QSlider;
class QTabBar;
class QWidget;

namespace brenvaldo::views {

class ColorWell;
class PictureView;
class PopUp;
class RadioColumn;
class RowsTable;
class SampleChooser;
class Segments;
class UnitField;

/// Ties widgets to controls, both ways, for as long as the widget lives.
///
/// The widget shows the control's value, enabled and hidden flag and tool tip; what the user does
/// in the widget goes through `UserInput`, so that the control's actions are sent. The widget gets
/// the control's name.
class Binder
{
public:
    explicit Binder(const controls::UserInput& input);

    /// The value follows each key; the actions are sent when the user has edited and leaves.
    void bind(UnitField& widget, controls::TextControl& control) const;
    void bind(QPlainTextEdit& widget, controls::TextView& control) const;
    void bind(QCheckBox& widget, controls::CheckBox& control) const;
    void bind(PopUp& widget, controls::IndexedControl& control) const;
    void bind(SampleChooser& widget, controls::IndexedControl& control) const;
    void bind(Segments& widget, controls::IndexedControl& control) const;
    void bind(RadioColumn& widget, controls::Matrix& control) const;
    void bind(QTabBar& widget, controls::TabView& control) const;
    void bind(ColorWell& widget, controls::ColorWell& control) const;
    void bind(QSlider& widget, controls::Slider& control) const;
    void bind(RowsTable& widget, controls::TableView& control) const;
    /// Enter, a double click and Delete press the buttons that the table names.
    void bindKeys(RowsTable& widget, const panels::Table& table) const;
    void bind(QAbstractButton& widget, controls::Button& control) const;
    void bind(QProgressBar& widget, const controls::ProgressIndicator& control) const;
    /// A picture that takes files gets those that are dropped on it.
    void bind(PictureView& widget, controls::ImageView& control) const;

    [[nodiscard]] const controls::UserInput& input() const { return m_input; }

private:
    const controls::UserInput& m_input;
};

/// Gives `widget` the control's name, runs `update` now and after each change of the control, and
/// lets the widget follow the control's enabled and hidden flag and its tool tip.
void followControl(
    QWidget& widget, const controls::Control& control, const std::function<void()>& update
);

} // namespace brenvaldo::views
