// SPDX-License-Identifier: GPL-3.0-or-later
#include "common_rows.h"

namespace brenvaldo::panels {

Row colourRow(const QString& label, controls::ColorWell& well, controls::TextField& hexField)
{
    return {
        .label = label,
        .fields
        = {{.control = &well, .width = Field::Width::Narrow},
           {.control = &hexField, .accessibleName = u"Colour as hexadecimal digits"_qs}}};
}

Row offsetRow(controls::TextField& xOffset, controls::TextField& yOffset, const QString& hint)
{
    return {
        .label = u"Offset"_qs,
        .fields
        = {{.control = &xOffset, .unit = u"px"_qs, .accessibleName = u"Horizontal offset"_qs},
           {.control = &yOffset, .unit = u"px"_qs, .accessibleName = u"Vertical offset"_qs}},
        .hint = hint};
}

Row textRow(const QString& label, controls::TextField& field, const QString& unit)
{
    return {.label = label, .fields = {{.control = &field, .unit = unit}}};
}

} // namespace brenvaldo::panels
