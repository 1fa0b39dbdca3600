// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace brenvaldo::views {

/// A text in the colour of labels and hints; it follows the scheme.
class MutedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MutedLabel(const QString& text, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void takeColor();
};

} // namespace brenvaldo::views
