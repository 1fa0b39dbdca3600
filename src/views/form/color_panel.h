// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFrame>

class QLineEdit;

namespace brenvaldo::views {

class HuePlane;

/// The panel of a colour well: a plane of saturation and brightness, a bar of hues, a hex field and
/// a few ready colours. It closes by itself when the user presses elsewhere or Escape.
class ColorPanel : public QFrame
{
    Q_OBJECT

public:
    ColorPanel(const QColor& color, QWidget* parent);

    void showBelow(const QWidget& well);

Q_SIGNALS:
    void chosen(const QColor& color);

private:
    [[nodiscard]] QWidget* readyColors();
    [[nodiscard]] QWidget* hexRow();
    void takeFromPlane(const QColor& color);
    void takeFromHex();
    void take(const QColor& color);

    HuePlane* m_plane = nullptr;
    QLineEdit* m_hex = nullptr;
};

} // namespace brenvaldo::views
