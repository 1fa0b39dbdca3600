// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace brenvaldo::views {

/// A pop-up menu button. It shortens long titles to its width, and the wheel turns it only while it
/// has the focus, so that scrolling a form changes nothing.
class PopUp : public QComboBox
{
    Q_OBJECT

public:
    /// `lead` is shown before the chosen title: "Quality" with "9" shows "Quality 9".
    explicit PopUp(const QString& lead, QWidget* parent = nullptr);

    /// Paints the chosen title in bold.
    void emphasise();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QString shownText() const;

    QString m_lead;
    bool m_emphasised = false;
};

} // namespace brenvaldo::views
