// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace brenvaldo::views {

/// A field of one line with its unit, such as "px", inside at the right end.
class UnitField : public QLineEdit
{
    Q_OBJECT

public:
    explicit UnitField(const QString& unit, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeRoomForUnit();
    [[nodiscard]] int unitWidth() const;

    QString m_unit;
};

} // namespace brenvaldo::views
