// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_file.h"

#include <QFile>
#include <QStringDecoder>

namespace brenvaldo::platform::storage {

std::optional<QString> readTextFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(file.readAll());
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace brenvaldo::platform::storage
