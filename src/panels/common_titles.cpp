// SPDX-License-Identifier: GPL-3.0-or-later
#include "common_titles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

QStringList positionGridTitles()
{
    return {
        u"Top left"_s,
        u"Top centre"_s,
        u"Top right"_s,
        u"Middle left"_s,
        u"Centre"_s,
        u"Middle right"_s,
        u"Bottom left"_s,
        u"Bottom centre"_s,
        u"Bottom right"_s,
    };
}

QStringList gradientAngleTitles()
{
    return {u"0\u00b0"_s, u"90\u00b0"_s, u"180\u00b0"_s, u"270\u00b0"_s};
}

QStringList frameBlendTitles()
{
    return {u"Normal"_s, u"Darken"_s, u"Lighten"_s, u"Multiply"_s, u"Overlay"_s, u"Colour"_s};
}

QStringList intensityTitles()
{
    QStringList titles;
    for (int tenths = 1; tenths <= 10; ++tenths)
        titles.append(QString::number(tenths / 10.0, 'f', 1));
    return titles;
}

QString endEditingAction() { return u"cCollectionViewController.controlTextDidEndEditing"_s; }

} // namespace brenvaldo::panels
