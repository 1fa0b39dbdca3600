// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/metadata/property_dictionary.h>

#include <QDateTime>
#include <QString>

#include <memory>
#include <mutex>

namespace brenvaldo::watermark {

/// Reads the properties of photos and keeps those of the last one, so that a preview that is drawn
/// again and again does not read its file each time. Any thread.
class KeptProperties
{
public:
    /// Empty when the file can't be read; read anew when it has changed on disk.
    [[nodiscard]] std::shared_ptr<const platform::metadata::PropertyDictionary>
    of(const QString& path);

private:
    std::mutex m_mutex;
    QString m_path;
    QDateTime m_modified;
    qint64 m_bytes = 0;
    std::shared_ptr<const platform::metadata::PropertyDictionary> m_properties;
};

} // namespace brenvaldo::watermark
