// SPDX-License-Identifier: GPL-3.0-or-later
#include "field_roles.h"

#include "common_titles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

void makeFunctionField(controls::TextField& field, int tag)
{
    field.setTag(tag);
    field.addAction(endEditingAction());
}

void makeHexField(controls::TextField& field, int tag)
{
    field.setTag(tag);
    field.addAction(u"cColorWellHandling.controlTextDidEndEditing"_s);
}

} // namespace brenvaldo::panels
