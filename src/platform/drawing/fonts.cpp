// SPDX-License-Identifier: GPL-3.0-or-later
#include "fonts.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/memo.h>

#include <QFontDatabase>

namespace brenvaldo::platform::drawing {

namespace {

constexpr int anySize = 12;

bool isPlainStyle(const QString& style)
{
    static const QStringList plainStyles{u"Regular"_s, u"Normal"_s, u"Book"_s, u"Roman"_s};
    return style.isEmpty() || plainStyles.contains(style);
}

QString faceName(const QString& family, const QString& style)
{
    return isPlainStyle(style) ? family : family + QLatin1Char(' ') + style;
}

/// The words of a style that tell its width and its slant, not its weight.
QStringList shapeOf(const QString& style)
{
    static const QStringList weights{
        u"Thin"_s,
        u"Hairline"_s,
        u"ExtraLight"_s,
        u"UltraLight"_s,
        u"Light"_s,
        u"Medium"_s,
        u"SemiBold"_s,
        u"DemiBold"_s,
        u"Bold"_s};
    QStringList words = style.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.removeIf([](const QString& word) { return isPlainStyle(word) || weights.contains(word); }
    );
    words.sort();
    return words;
}

/// The family's bold style of the same width and slant; empty without one.
QString boldStyleOf(const QString& family, const QString& style)
{
    for (const QString& candidate : QFontDatabase::styles(family)) {
        if (QFontDatabase::weight(family, candidate) == QFont::Bold
            && shapeOf(candidate) == shapeOf(style))
            return candidate;
    }
    return {};
}

QFont lookedUpFont(const QString& name)
{
    for (const QString& family : QFontDatabase::families()) {
        if (!name.startsWith(family))
            continue;
        for (const QString& style : QFontDatabase::styles(family)) {
            if (faceName(family, style) == name)
                return QFontDatabase::font(family, style, anySize);
        }
    }
    return QFont(name);
}

} // namespace

QStringList installedFontNames()
{
    QStringList names;
    for (const QString& family : QFontDatabase::families()) {
        for (const QString& style : QFontDatabase::styles(family)) {
            const QString name = faceName(family, style);
            if (!names.contains(name))
                names.append(name);
        }
    }
    return names;
}

QFont fontNamed(const QString& name)
{
    static Memo<QString, QFont> fonts;
    QFont font = fonts.value(name, lookedUpFont);
    // Makes a copy that shares nothing: what a font loads belongs to one thread.
    font.setPointSize(anySize);
    return font;
}

QFont boldFaceOf(const QFont& font)
{
    if (font.weight() >= QFont::Bold)
        return font;
    QFont bold = font;
    // The name counts more than the weight; that of a face without its bold counterpart goes.
    bold.setStyleName(boldStyleOf(font.family(), font.styleName()));
    bold.setBold(true);
    return bold;
}

} // namespace brenvaldo::platform::drawing
