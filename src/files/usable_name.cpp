// SPDX-License-Identifier: GPL-3.0-or-later
#include "usable_name.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

#include <QTextBoundaryFinder>

namespace brenvaldo::files {

namespace {

constexpr qsizetype longestName = 255; ///< bytes
/// A run may write another extension than the photo has: the longest is ".jpeg".
constexpr qsizetype reservedForExtension = 5;

QString withoutSeparators(QString name)
{
    name.remove(QChar(u'\0'));
    return name.replace(u'/', u'-');
}

/// As many whole characters from the start as fit into `bytes`.
QString shortened(const QString& text, qsizetype bytes)
{
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    while (characters.toNextBoundary() >= 0
           && text.first(characters.position()).toUtf8().size() <= bytes)
        end = characters.position();
    return text.first(end);
}

QString fitted(const QString& name)
{
    if (name.toUtf8().size() <= longestName)
        return name;
    const QString extension = platform::pathExtension(name);
    const qsizetype extensionSize = extension.toUtf8().size() + 1;
    if (extension.isEmpty() || extensionSize >= longestName)
        return shortened(name, longestName - reservedForExtension);
    const qsizetype kept = longestName - std::max(extensionSize, reservedForExtension);
    return shortened(platform::deletingPathExtension(name), kept) + u'.' + extension;
}

} // namespace

QString asNamePart(const QString& value)
{
    QString part = value;
    for (QChar& character : part) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            character = u' ';
    }
    return part.replace(u'/', u'-');
}

QString usableName(const QString& made)
{
    const QString name = fitted(withoutSeparators(made));
    return name == u"." || name == u".." ? QString() : name;
}

} // namespace brenvaldo::files
