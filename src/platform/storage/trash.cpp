// SPDX-License-Identifier: GPL-3.0-or-later
#include "trash.h"

#include "file_system.h"

#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/folders.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace brenvaldo::platform::storage {

namespace {

/// The user's own trash, whose folders nobody else can look into.
QString madeTrashFolder(const QString& name)
{
    const QString trash = appendingPathComponent(applicationSupportFolder(), u"Trash"_s);
    const QString folder = appendingPathComponent(trash, name);
    constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QDir().mkdir(trash, ownerOnly);
    QDir().mkdir(folder, ownerOnly);
    return folder;
}

QByteArray informationOn(const QString& path)
{
    return "[Trash Info]\nPath=" + QUrl::toPercentEncoding(path, "/") + "\nDeletionDate="
        + QDateTime::currentDateTime().toString(u"yyyy-MM-ddTHH:mm:ss"_s).toLatin1() + '\n';
}

/// Takes the first free one of "name", "name 2", "name 3" and so on by making its file in `folder`.
QString takenName(const QString& folder, const QString& name, const QByteArray& information)
{
    constexpr int most = 10000;
    for (int number = 1; number <= most; ++number) {
        const QString tried = number == 1 ? name : name + u' ' + QString::number(number);
        QFile file(appendingPathComponent(folder, tried + u".trashinfo"_s));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            file.write(information);
            return tried;
        }
        if (!file.exists())
            break;
    }
    return {};
}

/// Qt looks at what a link leads to: whether that exists, and on which volume.
bool moveLinkToTrash(const QString& link)
{
    const QString files = madeTrashFolder(u"files"_s);
    const QString informations = madeTrashFolder(u"info"_s);
    const QFileInfo item(link);
    const QString name
        = takenName(informations, item.fileName(), informationOn(item.absoluteFilePath()));
    if (name.isEmpty())
        return false;
    if (moveItem({.source = link, .target = appendingPathComponent(files, name)}))
        return true;
    removeItem(appendingPathComponent(informations, name + u".trashinfo"_s));
    return false;
}

} // namespace

bool moveToTrash(const QString& path)
{
    awaitUsesOfFile(path);
    // Without its data folder Qt moves the file into the current folder and calls it success.
    if (path.isEmpty() || !createFolder(applicationSupportFolder()))
        return false;
    if (QFileInfo(path).isSymLink())
        return moveLinkToTrash(path);
    return fileExists(path) && QFile::moveToTrash(path);
}

} // namespace brenvaldo::platform::storage
