// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <views/form/form_builder.h>

#include <QDialog>

namespace brenvaldo::views {

/// A sheet of the main window that shows the panel view of the same name while its control is open.
///
/// Escape closes it through the sheet's own actions, where it has some.
class PanelSheet : public QDialog
{
    Q_OBJECT

public:
    PanelSheet(
        controls::Sheet& sheet,
        const panels::PanelView& view,
        const FormBuilder& builder,
        const controls::ActionRegistry& actions,
        QWidget* parent
    );

    void reject() override;

private:
    void follow();

    controls::Sheet& m_sheet;
    const controls::ActionRegistry& m_actions;
};

} // namespace brenvaldo::views
