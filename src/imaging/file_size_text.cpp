// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include <platform/foundation/exceptions.h>

#include <QStringList>

namespace brenvaldo::imaging {

QString DVImageHandling::hNSFileSizeToHumanNotification(double bytes)
{
    static const QStringList units{
        QStringLiteral("bytes"),
        QStringLiteral("KB"),
        QStringLiteral("MB"),
        QStringLiteral("GB"),
        QStringLiteral("TB"),
    };
    double value = bytes;
    int unit = 0;
    while (value > 1024.0) {
        value *= 0.0009765625;
        ++unit;
    }
    if (unit >= units.size())
        throw platform::RangeError(
            QStringLiteral("index %1 beyond bounds [0 .. %2]").arg(unit).arg(units.size() - 1)
        );
    return QString::number(value, 'f', 2) + units.at(unit);
}

} // namespace brenvaldo::imaging
