// SPDX-License-Identifier: GPL-3.0-or-later
#include "common_titles.h"

namespace brenvaldo::panels {

QStringList positionGridTitles()
{
    return {
        u"Top left"_qs,
        u"Top centre"_qs,
        u"Top right"_qs,
        u"Middle left"_qs,
        u"Centre"_qs,
        u"Middle right"_qs,
        u"Bottom left"_qs,
        u"Bottom centre"_qs,
        u"Bottom right"_qs,
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

QStringList intensityTitles()
{
    QStringList titles;
    for (int tenths = 1; tenths <= 10; ++tenths)
        titles.append(QString::number(tenths / 10.0, 'f', 1));
    return titles;
}

QString endEditingAction() { return u"cCollectionViewController.controlTextDidEndEditing"_qs; }

} // namespace brenvaldo::panels
