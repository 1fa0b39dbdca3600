// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSlider>

namespace brenvaldo::views {

/// A slider for the extent of a fade: a strip above it shows what the fade leaves, and follows the
/// value.
class FadeSlider : public QSlider
{
    Q_OBJECT

public:
    explicit FadeSlider(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionSlider* option) const override;

private:
    [[nodiscard]] QRect strip() const;
};

} // namespace brenvaldo::views
