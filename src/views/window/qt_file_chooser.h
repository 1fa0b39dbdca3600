// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/file_chooser.h>

#include <QPointer>
#include <QWidget>

#include <functional>

class QFileDialog;

namespace brenvaldo::views {

/// Shows the open and save panels as dialogs over the main window.
class QtFileChooser : public controls::FileChooser
{
public:
    /// Makes the widget of an accessory control.
    using MakeField = std::function<QWidget*(controls::Control& control, QWidget* parent)>;

    /// Panels open over `window`; until then they stand alone and show no accessories.
    void attachTo(QWidget* window, MakeField makeField);

    [[nodiscard]] std::optional<QStringList> open(const controls::OpenPanel& panel) override;
    [[nodiscard]] std::optional<QString> save(const controls::SavePanel& panel) override;

private:
    void prepare(QFileDialog& dialog, const QString& message, const QString& startFolder) const;
    void addAccessories(QFileDialog& dialog, const QList<controls::Accessory>& accessories) const;
    [[nodiscard]] std::optional<QStringList> run(QFileDialog& dialog);

    QPointer<QWidget> m_window;
    MakeField m_makeField;
    QString m_lastFolder;
};

/// "Photos (*.jpg *.png)" filters in both cases of the letters; empty for no types.
[[nodiscard]] QString nameFilter(const QStringList& types);

} // namespace brenvaldo::views
