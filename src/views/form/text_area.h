// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace brenvaldo::views {

/// A field of three lines; Tab leaves it.
class TextArea : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextArea(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override { return {80, minimumHeight()}; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace brenvaldo::views
