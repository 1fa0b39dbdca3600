// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_icon.h"

#include "atomic_file.h"
#include "file_system.h"

#include <platform/foundation/folders.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

#include <QBuffer>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace brenvaldo::platform::storage {

namespace {

/// Keeps the picture in a file named after its contents; "" when that fails.
QString storedIcon(const QImage& icon)
{
    QByteArray png;
    QBuffer buffer(&png);
    if (!icon.save(&buffer, "PNG"))
        return {};
    const QString folder = appendingPathComponent(homeFolder(), u"Icons"_s);
    const QByteArray name = QCryptographicHash::hash(png, QCryptographicHash::Sha1).toHex();
    const QString path = appendingPathComponent(folder, QString::fromLatin1(name) + u".png"_s);
    if (fileExists(path))
        return path;
    return createFolder(folder) && writeFileAtomically(path, png) ? path : QString();
}

} // namespace

void setFileIcon(const QString& path, const QImage& icon)
{
    // The attribute store answers over a bus: its command waits for that in a process of its own.
    const QString command = QStandardPaths::findExecutable(u"gio"_s);
    if (command.isEmpty() || icon.isNull() || !fileExists(path))
        return;
    const QString iconPath = storedIcon(icon);
    if (iconPath.isEmpty())
        return;
    QProcess process;
    process.setProgram(command);
    process.setArguments(
        {u"set"_s,
         QFileInfo(path).absoluteFilePath(),
         u"metadata::custom-icon"_s,
         QUrl::fromLocalFile(iconPath).toString(QUrl::FullyEncoded)}
    );
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

} // namespace brenvaldo::platform::storage
