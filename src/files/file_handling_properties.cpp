// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_handling.h"

#include <platform/foundation/byte_count.h>
#include <platform/foundation/date_text.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::files {

using platform::storage::FileAttributes;

QString cNSFileHandling::dateText(
    const DateRequest& request, QDateTime platform::storage::FileAttributes::*date
)
{
    static const QStringList modes = {u"0"_s, u"1"_s, u"2"_s};
    if (modes.contains(request.mode)) {
        const auto attributes = platform::storage::fileAttributes(request.path);
        m_dateText = attributes ? platform::dateTextForFileName((*attributes).*date) : QString();
    }
    return m_dateText;
}

QString cNSFileHandling::hGetCreationDateFile(const DateRequest& request)
{
    return dateText(request, &FileAttributes::creationDate);
}

QString cNSFileHandling::hGetModificationDateFile(const DateRequest& request)
{
    return dateText(request, &FileAttributes::modificationDate);
}

QString cNSFileHandling::getFileSize(const QString& path)
{
    if (const auto attributes = platform::storage::fileAttributes(path))
        m_sizeText = platform::byteCountText(attributes->size);
    return m_sizeText;
}

} // namespace brenvaldo::files
