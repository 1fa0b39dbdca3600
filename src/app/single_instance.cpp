// SPDX-License-Identifier: GPL-3.0-or-later
#include "single_instance.h"

#include <platform/foundation/literals.h>

#include <QDataStream>
#include <QDir>
#include <QLocalSocket>

#include <unistd.h>

namespace brenvaldo::app {

namespace {

constexpr int patience = 500; ///< ms that reaching a running program may take
/// ms that it may take to answer: between two photos of a run it takes no messages.
constexpr int patienceForAnswer = 15'000;
constexpr qint64 longestMessage = qint64{4} * 1024 * 1024;

QByteArray message(const QStringList& files)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << files;
    return bytes;
}

} // namespace

QString instanceSocketPath()
{
    const QString name = u"brenvaldo.sock"_s;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QDir(runtime).exists())
        return QDir(runtime).filePath(name);
    const QString folder = QDir::temp().filePath(u"brenvaldo-%1"_s.arg(getuid()));
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QDir(folder).filePath(name);
}

SingleInstance::SingleInstance(const QString& path)
    : m_path(path)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] { take(); });
}

bool SingleInstance::handOver(const QStringList& files) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(message(files));
    return socket.waitForBytesWritten(patience) && socket.waitForReadyRead(patienceForAnswer);
}

bool SingleInstance::listen()
{
    if (m_server.listen(m_path))
        return true;
    QLocalServer::removeServer(m_path);
    return m_server.listen(m_path);
}

void SingleInstance::stopListening() { m_server.close(); }

void SingleInstance::take()
{
    QLocalSocket* socket = m_server.nextPendingConnection();
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
        if (socket->bytesAvailable() > longestMessage)
            return socket->abort();
        QDataStream stream(socket);
        stream.setVersion(QDataStream::Qt_6_4);
        stream.startTransaction();
        QStringList files;
        stream >> files;
        if (!stream.commitTransaction())
            return;
        socket->write("taken");
        socket->flush();
        tellLater(files);
    });
}

/// The observers deliver events, in which a sender that has hung up takes its socket along: the
/// slot of the socket must be left by then.
void SingleInstance::tellLater(const QStringList& files)
{
    QMetaObject::invokeMethod(
        &m_server, [this, files] { filesArrived(files); }, Qt::QueuedConnection
    );
}

} // namespace brenvaldo::app
