// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/signal.h>

#include <QLocalServer>
#include <QStringList>

namespace brenvaldo::app {

/// Lets the program run once a user: a second start hands its files to the first and ends.
class SingleInstance
{
public:
    /// Meets other starts at a socket at `path`.
    explicit SingleInstance(const QString& path);

    /// Gives `files` to the program that runs already; false when none does.
    [[nodiscard]] bool handOver(const QStringList& files) const;

    /// Takes the files of later starts; a socket that a crashed program left behind is replaced.
    bool listen();

    /// Lets later starts open a window of their own.
    void stopListening();

    /// Absolute paths, maybe none: the second start wants at least the window.
    platform::Signal<const QStringList&> filesArrived;

private:
    void take();
    void tellLater(const QStringList& files);

    QString m_path;
    QLocalServer m_server;
};

/// The socket in the user's runtime folder; without such a folder, in a private one in the
/// folder of temporary files.
[[nodiscard]] QString instanceSocketPath();

} // namespace brenvaldo::app
