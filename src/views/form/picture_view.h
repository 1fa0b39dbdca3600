// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

namespace brenvaldo::views {

/// Shows a small picture of a form, fitted and centred in a field. Where it accepts drops, one
/// local file can be dropped on it.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget* parent = nullptr);

    void setPicture(const QImage& picture);

    [[nodiscard]] QSize sizeHint() const override { return {180, 140}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {80, 140}; }

Q_SIGNALS:
    void fileDropped(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void paintHint(QPainter& painter) const;
    void showsTarget(bool isTarget);

    QImage m_picture;
    bool m_isTarget = false; ///< a file hovers above it
};

} // namespace brenvaldo::views
