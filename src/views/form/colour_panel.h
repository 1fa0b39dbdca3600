// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFrame>

class QLineEdit;

namespace brenvaldo::views {

class HuePlane;

/// The panel of a colour well: a plane of saturation and brightness, a bar of hues, a hex field and
/// a few ready colours. It closes by itself when the user presses elsewhere or Escape.
class ColourPanel : public QFrame
{
    Q_OBJECT

public:
    ColourPanel(const QColor& colour, QWidget* parent);

    void showBelow(const QWidget& well);

Q_SIGNALS:
    void chosen(const QColor& colour);

private:
    [[nodiscard]] QWidget* readyColours();
    [[nodiscard]] QWidget* hexRow();
    void takeFromPlane(const QColor& colour);
    void takeFromHex();
    void take(const QColor& colour);

    HuePlane* m_plane = nullptr;
    QLineEdit* m_hex = nullptr;
};

} // namespace brenvaldo::views
