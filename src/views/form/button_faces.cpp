// SPDX-License-Identifier: GPL-3.0-or-later
#include "button_faces.h"

#include <platform/foundation/literals.h>
#include <views/look/icons.h>

#include <QHash>
#include <QPushButton>

namespace brenvaldo::views {

namespace {

/// Drawings by the name of the button that shows one.
const QHash<QString, QString>& drawings()
{
    static const QHash<QString, QString> drawings{
        {u"btnShowDestination"_s, u"reveal"_s},
        {u"btnShowBatchDestinationFolder"_s, u"reveal"_s},
        {u"btnShowSortDestination01"_s, u"reveal"_s},
        {u"btnShowSortDestination02"_s, u"reveal"_s},
        {u"btnShowSortDestination03"_s, u"reveal"_s},
        {u"btnShowSortDestination04"_s, u"reveal"_s},
        {u"btnShowSortDestination05"_s, u"reveal"_s},
        {u"btnShowSortDestination06"_s, u"reveal"_s},
        {u"btnPresetsHelp"_s, u"help"_s},
    };
    return drawings;
}

} // namespace

void showFace(QPushButton& widget, const controls::Button& button)
{
    widget.setAccessibleName(button.title());
    const QString drawing = drawings().value(button.name());
    if (drawing.isEmpty()) {
        widget.setText(QString(button.title()).replace(QLatin1Char('&'), QLatin1String("&&")));
        return;
    }
    widget.setIcon(icon(drawing));
    widget.setFixedWidth(widget.sizeHint().height());
}

} // namespace brenvaldo::views
