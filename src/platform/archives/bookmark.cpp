// SPDX-License-Identifier: GPL-3.0-or-later
#include "bookmark.h"

#include <QFileInfo>
#include <QStringDecoder>

namespace brenvaldo::platform::archives {

namespace {

// A mark of four bytes, one byte for the version of the record, the path in UTF-8.
constexpr QByteArrayView recordStart("BMRK\x01");
constexpr qsizetype longestPath = qsizetype{16} * 1024;

} // namespace

std::optional<QByteArray> bookmarkFor(const QString& path)
{
    if (path.isEmpty() || !QFileInfo::exists(path))
        return std::nullopt;
    return recordStart.toByteArray() + path.toUtf8();
}

std::optional<QString> pathOfBookmark(const QByteArray& record)
{
    if (!record.startsWith(recordStart) || record.size() > recordStart.size() + longestPath)
        return std::nullopt;
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString path = utf8(QByteArrayView(record).sliced(recordStart.size()));
    if (utf8.hasError() || path.isEmpty() || path.contains(QChar::Null) || !QFileInfo::exists(path))
        return std::nullopt;
    return path;
}

} // namespace brenvaldo::platform::archives
