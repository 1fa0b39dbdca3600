// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace brenvaldo::views {

/// Name, version, licence, and the libraries that the program stands on with theirs.
class AboutBox : public QDialog
{
    Q_OBJECT

public:
    explicit AboutBox(QWidget* parent = nullptr);
};

} // namespace brenvaldo::views
