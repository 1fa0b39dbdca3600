// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <views/form/form_builder.h>

#include <QWidget>

namespace brenvaldo::views {

/// The pane at the left that tells about the selected photo; closed until the user opens it.
class InfoPane : public QWidget
{
    Q_OBJECT

public:
    /// Shows the panel view `vwPhotoInfo`.
    InfoPane(const panels::PanelView& view, const FormBuilder& builder, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brenvaldo::views
