// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch_rules.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::workspace {

QString applyOnFilter(int index)
{
    switch (index) {
    case 0:
        return u"ALL"_s;
    case 1:
        return u"L"_s;
    case 2:
        return u"P"_s;
    default:
        return u"S"_s;
    }
}

double progressStep(qsizetype photos)
{
    const qsizetype step = 1000 / photos;
    return static_cast<double>(step);
}

QString destinationBase(const QString& folder, const QString& outputName)
{
    return platform::deletingPathExtension(folder + outputName);
}

void logNotBuilt(const QLatin1String& function)
{
    platform::log(
        u"The function \"%1\" comes with a later version; its photos are left as they are."_s.arg(
            function
        )
    );
}

} // namespace brenvaldo::workspace
