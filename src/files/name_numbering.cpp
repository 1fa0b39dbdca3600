// SPDX-License-Identifier: GPL-3.0-or-later
#include "keep_number.h"
#include "ns_string_handling.h"

#include <platform/foundation/numbers.h>
#include <platform/foundation/paths.h>

namespace brenvaldo::files {

namespace {

QString advancedNumber()
{
    QString& number = cKeepNumber::sharedNumber().myNumberString;
    number = QString::number(platform::wrapped32(std::int64_t{platform::intValue(number)} + 1));
    return number;
}

/// The number in so many places; nothing where it has as many itself.
QString inPlaces(const QString& number, int places)
{
    return places > number.size() ? number.rightJustified(places, u'0') : QString();
}

} // namespace

QString cNSStringHandling::hNumbering(const QString& name, const NumberingSettings& settings)
{
    const QString added
        = settings.prefix + inPlaces(advancedNumber(), settings.digits) + settings.postfix;
    if (settings.position != u"0")
        return added + name;
    return platform::deletingPathExtension(name) + added + u'.' + platform::pathExtension(name);
}

} // namespace brenvaldo::files
