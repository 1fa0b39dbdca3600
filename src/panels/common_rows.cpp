// SPDX-License-Identifier: GPL-3.0-or-later
#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

Row colorRow(const QString& label, controls::ColorWell& well, controls::TextField& hexField)
{
    return {
        .label = label,
        .fields
        = {{.control = &well, .width = Field::Width::Narrow},
           {.control = &hexField, .accessibleName = u"Colour as hexadecimal digits"_s}}};
}

Row offsetRow(controls::TextField& xOffset, controls::TextField& yOffset, const QString& hint)
{
    return {
        .label = u"Offset"_s,
        .fields
        = {{.control = &xOffset, .unit = u"px"_s, .accessibleName = u"Horizontal offset"_s},
           {.control = &yOffset, .unit = u"px"_s, .accessibleName = u"Vertical offset"_s}},
        .hint = hint};
}

Row textRow(const QString& label, controls::TextField& field, const QString& unit)
{
    return {.label = label, .fields = {{.control = &field, .unit = unit}}};
}

} // namespace brenvaldo::panels
