// SPDX-License-Identifier: GPL-3.0-or-later
#include "common_titles.h"

namespace brenvaldo::panels {

QStringList positionGridTitles()
{
    return {
        QStringLiteral("Top left"),
        QStringLiteral("Top centre"),
        QStringLiteral("Top right"),
        QStringLiteral("Middle left"),
        QStringLiteral("Centre"),
        QStringLiteral("Middle right"),
        QStringLiteral("Bottom left"),
        QStringLiteral("Bottom centre"),
        QStringLiteral("Bottom right"),
    };
}

QStringList gradientAngleTitles()
{
    return {u"0\u00b0"_qs, u"90\u00b0"_qs, u"180\u00b0"_qs, u"270\u00b0"_qs};
}

QStringList frameBlendTitles()
{
    return {u"Normal"_qs, u"Darken"_qs, u"Lighten"_qs, u"Multiply"_qs, u"Overlay"_qs, u"Colour"_qs};
}

QString endEditingAction()
{
    return QStringLiteral("cCollectionViewController.controlTextDidEndEditing");
}

} // namespace brenvaldo::panels
