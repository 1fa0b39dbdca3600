// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

namespace brenvaldo::views {

/// Shows a small picture of a form, fitted and centred in a field.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget* parent = nullptr);

    void setPicture(const QImage& picture);

    [[nodiscard]] QSize sizeHint() const override { return {180, 140}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {80, 140}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
};

} // namespace brenvaldo::views
