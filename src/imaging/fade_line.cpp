// SPDX-License-Identifier: GPL-3.0-or-later
#include "fade_line.h"

namespace brenvaldo::imaging {

QLineF fadeLine(const QPointF& middle, const QSizeF& size, int angleIndex)
{
    const QPointF across(size.width() / 2, 0);
    const QPointF along(0, size.height() / 2);
    switch (angleIndex) {
    case 0:
        return {middle - across, middle + across};
    case 1:
        return {middle - along, middle + along};
    case 2:
        return {middle + across, middle - across};
    default:
        return {middle + along, middle - along};
    }
}

} // namespace brenvaldo::imaging
