// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace brenvaldo::views {

/// A big button with a drawing above its title; one of a row that fills a common frame.
class SectionButton : public QAbstractButton
{
    Q_OBJECT

public:
    SectionButton(const QString& title, const QString& drawing, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_drawing;
    bool m_showsFocus = false;
};

} // namespace brenvaldo::views
