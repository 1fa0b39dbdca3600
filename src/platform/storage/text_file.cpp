// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_file.h"

#include <platform/foundation/regular_file.h>

#include <QFile>
#include <QStringDecoder>

namespace brenvaldo::platform::storage {

std::optional<QString> readTextFile(const QString& path)
{
    QFile file(path);
    if (!openRegularFile(file))
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(file.readAll());
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace brenvaldo::platform::storage
