// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "binder.h"

#include <panels/panels.h>

#include <map>

class QWidget;

namespace brenvaldo::views {

class PhotoSamples;

/// Makes the widgets of panels from their layouts and binds them to their controls.
class FormBuilder
{
public:
    enum class Density {
        Form, ///< labels stand in a column of their own
        Compact ///< a label stands right before its field; rows of more fields show none
    };

    FormBuilder(const panels::Panels& panels, const Binder& binder);

    /// The choices of `control` will stand side by side with a picture of what each does, instead
    /// of in a menu.
    void showSamples(const controls::IndexedControl& control, PhotoSamples& samples);

    /// The widgets of `view`; every widget has the name of its control.
    [[nodiscard]] QWidget*
    build(const panels::PanelView& view, Density density, QWidget* parent) const;

    /// The widgets of what a holder calls `name`: a panel view, or one control; null when there is
    /// neither.
    [[nodiscard]] QWidget* build(const QString& name, Density density, QWidget* parent) const;

    /// The widget of one field, named for those who can't see it.
    [[nodiscard]] QWidget* buildField(const panels::Field& field, QWidget* parent) const;

private:
    [[nodiscard]] QWidget* makeField(const panels::Field& field, QWidget* parent) const;

    const panels::Panels& m_panels;
    const Binder& m_binder;
    std::map<const controls::Control*, PhotoSamples*> m_samples;
};

} // namespace brenvaldo::views
