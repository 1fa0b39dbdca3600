// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_handling.h"

#include <platform/foundation/regular_file.h>
#include <platform/foundation/text.h>
#include <platform/storage/atomic_file.h>
#include <platform/storage/property_list.h>
#include <platform/storage/text_file.h>

#include <QFile>

namespace brenvaldo::files {

void cNSFileHandling::hWritHTMLFile(const TextAndPath& file) { hWriteTextFile(file); }

void cNSFileHandling::hWriteTextFile(const TextAndPath& file)
{
    writeNSDataToFile(file.text.toUtf8(), file.path);
}

std::optional<QStringList> cNSFileHandling::hReadTextFileLbyL(const QString& path)
{
    const auto text = platform::storage::readTextFile(path);
    if (!text)
        return std::nullopt;
    return platform::splitAtNewlines(*text);
}

std::optional<QVariant> cNSFileHandling::readPlist(const PathAndKey& entry)
{
    const auto dictionary = platform::storage::readPropertyList(entry.path);
    if (!dictionary || !dictionary->contains(entry.key))
        return std::nullopt;
    return dictionary->value(entry.key);
}

void cNSFileHandling::writeToPlist(const PathAndKey& entry, const QVariant& value)
{
    auto dictionary = platform::storage::readPropertyList(entry.path);
    if (!dictionary)
        return;
    dictionary->insert(entry.key, value);
    static_cast<void>(platform::storage::writePropertyList(entry.path, *dictionary));
}

void cNSFileHandling::writeNSDataToFile(const QByteArray& contents, const QString& path)
{
    static_cast<void>(platform::storage::writeFileAtomically(path, contents));
}

std::optional<QByteArray> cNSFileHandling::readNSDataFromFile(const QString& path)
{
    QFile file(path);
    if (!platform::openRegularFile(file))
        return std::nullopt;
    return file.readAll();
}

} // namespace brenvaldo::files
