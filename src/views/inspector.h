// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "form_builder.h"

#include <workspace/photo_list.h>

#include <QWidget>

class QPushButton;
class QVBoxLayout;

namespace brenvaldo::views {

/// The right side of the window: sections, function, its settings, and the process button below.
class Inspector : public QWidget
{
    Q_OBJECT

public:
    Inspector(
        panels::Panels& panels,
        const workspace::PhotoList& photos,
        const FormBuilder& builder,
        const Binder& binder,
        QWidget* parent = nullptr
    );

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QWidget* sections();
    [[nodiscard]] QWidget* functionRow();
    [[nodiscard]] QWidget* settings();
    [[nodiscard]] QWidget* output();
    void addProcessButton(QVBoxLayout& column);
    void showRunTitle();
    [[nodiscard]] QWidget* holder(controls::Holder& holder, FormBuilder::Density density);

    panels::Panels& m_panels;
    const workspace::PhotoList& m_photos;
    const FormBuilder& m_builder;
    const Binder& m_binder;
    QPushButton* m_process = nullptr;
};

} // namespace brenvaldo::views
