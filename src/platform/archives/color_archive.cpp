// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_archive.h"

#include "archive_reader.h"
#include "keyed_archive.h"
#include "typed_stream.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::archives {

namespace {

constexpr qsizetype longestText = qsizetype{16} * 1024;

/// -0 as 0, and what is no finite number as 0: neither may reach an archive.
ColorComponents normalized(ColorComponents components)
{
    for (float& component : components)
        component = std::isfinite(component) && component != 0.0F ? component : 0.0F;
    return components;
}

QString base64(const QByteArray& archive) { return QString::fromLatin1(archive.toBase64()); }

/// Other writers wrap the text, and some leave the padding out.
std::optional<QByteArray> decoded(const QString& text)
{
    QString unbroken = text;
    unbroken.removeIf([](QChar character) { return character.isSpace(); });
    const auto result = QByteArray::fromBase64Encoding(
        unbroken.toLatin1(), QByteArray::AbortOnBase64DecodingErrors
    );
    if (!result)
        return std::nullopt;
    return *result;
}

ColorComponents components(const QByteArray& archive)
{
    if (isKeyedArchive(archive))
        return componentsOfKeyedArchive(archive);
    return componentsOfTypedStream(archive);
}

} // namespace

QString colorArchive(const ColorComponents& components)
{
    return base64(typedStreamOf(normalized(components)));
}

QString galleryColorArchive(const ColorComponents& components)
{
    return base64(keyedArchiveOf(normalized(components)));
}

std::optional<ColorComponents> colorFromArchive(const QString& text)
{
    if (text.size() > longestText)
        return std::nullopt;
    const std::optional<QByteArray> archive = decoded(text);
    if (!archive)
        return std::nullopt;
    try {
        const ColorComponents found = components(*archive);
        const bool finite = std::all_of(found.begin(), found.end(), [](float component) {
            return std::isfinite(component);
        });
        return finite ? std::optional(found) : std::nullopt;
    } catch (const DamagedArchive&) {
        return std::nullopt;
    }
}

} // namespace brenvaldo::platform::archives
