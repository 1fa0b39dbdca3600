// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <views/form/form_builder.h>
#include <workspace/workspace.h>

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
        workspace::Workspace& workspace,
        const FormBuilder& builder,
        const Binder& binder,
        QWidget* parent = nullptr
    );

Q_SIGNALS:
    /// The process button can, or cannot, be pressed from now on.
    void runOffered(bool isOffered);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QWidget* sections();
    [[nodiscard]] QWidget* functionRow();
    [[nodiscard]] QWidget* sectionTitle(QWidget* parent);
    [[nodiscard]] QWidget* settings();
    [[nodiscard]] QWidget* output();
    [[nodiscard]] QWidget* laterNotice();
    [[nodiscard]] QWidget* outlook();
    [[nodiscard]] QString outlookText() const;
    void addProcessButton(QVBoxLayout& rows);
    void followRun();
    void showRun();
    [[nodiscard]] QWidget* holder(controls::Holder& holder, FormBuilder::Density density);

    workspace::Workspace& m_workspace;
    panels::Panels& m_panels;
    const FormBuilder& m_builder;
    const Binder& m_binder;
    QWidget* m_later = nullptr; ///< tells that the function is not in this version
    QPushButton* m_process = nullptr;
};

} // namespace brenvaldo::views
