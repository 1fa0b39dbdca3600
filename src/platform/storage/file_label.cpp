// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_label.h"

#include "file_system.h"

#include <QByteArray>
#include <QFile>

#include <sys/xattr.h>

namespace brenvaldo::platform::storage {

namespace {

constexpr int highestLabel = 7;

/// Empty when the file has no such attribute, or its file system keeps none.
QByteArray extendedAttribute(const QString& path, const char* name)
{
    QByteArray value(64, '\0');
    const ssize_t size = ::getxattr(
        QFile::encodeName(path).constData(),
        name,
        value.data(),
        static_cast<std::size_t>(value.size())
    );
    return size > 0 ? value.left(size) : QByteArray();
}

std::optional<int> ownLabel(const QString& path)
{
    bool isNumber = false;
    const int label = extendedAttribute(path, "user.kMDItemFSLabel").toInt(&isNumber);
    if (!isNumber || label < 0 || label > highestLabel)
        return std::nullopt;
    return label;
}

int serverLabel(const QString& path)
{
    constexpr qsizetype flags = 9;
    const QByteArray information = extendedAttribute(path, "user.com.apple.FinderInfo");
    if (information.size() <= flags)
        return 0;
    return (information.at(flags) & 0x0E) >> 1;
}

} // namespace

std::optional<int> fileLabel(const QString& path)
{
    if (!fileExists(path))
        return std::nullopt;
    if (const auto label = ownLabel(path))
        return label;
    return serverLabel(path);
}

} // namespace brenvaldo::platform::storage
