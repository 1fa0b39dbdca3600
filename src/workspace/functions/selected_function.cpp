// SPDX-License-Identifier: GPL-3.0-or-later
#include "selected_function.h"

namespace brenvaldo::workspace {

cSelectedFunction& cSelectedFunction::sharedModel()
{
    static cSelectedFunction model;
    return model;
}

void cSelectedFunction::select(const QString& function)
{
    myString = function;
    changed();
}

} // namespace brenvaldo::workspace
