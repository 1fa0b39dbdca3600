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

QString endEditingAction()
{
    return QStringLiteral("cCollectionViewController.controlTextDidEndEditing");
}

} // namespace brenvaldo::panels
