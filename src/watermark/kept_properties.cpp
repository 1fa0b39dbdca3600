// SPDX-License-Identifier: GPL-3.0-or-later
#include "kept_properties.h"

#include <platform/metadata/image_properties.h>

#include <QFileInfo>

namespace brenvaldo::watermark {

using platform::metadata::PropertyDictionary;

std::shared_ptr<const PropertyDictionary> KeptProperties::of(const QString& path)
{
    const QFileInfo file(path);
    const std::scoped_lock lock(m_mutex);
    const bool isKept = m_properties && m_path == path && m_modified == file.lastModified()
        && m_bytes == file.size();
    if (!isKept) {
        m_path = path;
        m_modified = file.lastModified();
        m_bytes = file.size();
        m_properties = std::make_shared<const PropertyDictionary>(
            platform::metadata::imageProperties(path).value_or(PropertyDictionary())
        );
    }
    return m_properties;
}

} // namespace brenvaldo::watermark
