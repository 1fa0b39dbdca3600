// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace brenvaldo::app {

/// The application of the window: an exception that leaves the handling of an event (a photo is
/// selected, files are dropped) is logged and ends that handling; the program goes on.
///
/// Actions are guarded by `controls::ActionRegistry` already.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace brenvaldo::app
