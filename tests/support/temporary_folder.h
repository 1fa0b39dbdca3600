// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace brenvaldo::test {

/// A folder of its own for one test; gone with the object.
class TemporaryFolder
{
public:
    /// Ends in "/".
    [[nodiscard]] QString path() const { return m_folder.path() + QLatin1Char('/'); }
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a file and answers its path.
    [[nodiscard]] QString write(const QString& name, const QByteArray& contents) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("the test folder can't be written");
        return file.fileName();
    }

    /// The whole contents; empty when there is no such file.
    [[nodiscard]] static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace brenvaldo::test
