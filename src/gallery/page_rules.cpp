// SPDX-License-Identifier: GPL-3.0-or-later
#include "page_rules.h"

#include <platform/foundation/literals.h>

#include <algorithm>

namespace brenvaldo::gallery {

int pageCount(int photos, int perPage)
{
    const float pages = static_cast<float>(photos) / static_cast<float>(perPage);
    const int fullPages = photos / perPage;
    return pages > static_cast<float>(fullPages) ? static_cast<int>(pages + 1) : 0;
}

int columnCount(int asked) { return std::clamp(asked, 1, 20); }

std::array<QString, 6> columnWidths(int columns)
{
    std::array<QString, 6> widths;
    double width = 100 / columns;
    widths[0] = QString::number(width, 'f', 6);
    const double factors[] = {1.25, 1.5, 1.75, 2};
    for (std::size_t index = 0; index < std::size(factors); ++index) {
        width *= factors[index];
        widths[index + 1] = QString::number(width, 'f', 6);
    }
    widths[5] = u"100"_s;
    return widths;
}

std::optional<int> thumbnailHeight(int ratioIndex, int width)
{
    switch (ratioIndex) {
    case 1:
        return width;
    case 2:
        return width / 3 * 2;
    case 3:
        return width / 2 * 3;
    case 4:
        return width / 3;
    case 5:
        return width / 4 * 3;
    case 6:
        return width / 3 * 4;
    case 7:
        return width / 12 * 9;
    case 8:
        return width / 16 * 9;
    default:
        return std::nullopt;
    }
}

} // namespace brenvaldo::gallery
