// SPDX-License-Identifier: GPL-3.0-or-later
#include "date_text.h"

#include "literals.h"

#include <array>

namespace brenvaldo::platform {

QString dateTextForFileName(const QDateTime& date)
{
    if (!date.isValid())
        return {};
    static constexpr std::array<const char*, 12> months
        = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const QDateTime local = date.toLocalTime();
    const QDate day = local.date();
    const char* const month = months.at(static_cast<std::size_t>(day.month() - 1));
    return u"%1-%2-%3T%4"_s.arg(day.day())
        .arg(QLatin1String(month))
        .arg(day.year())
        .arg(local.time().toString(u"HH-mm-ss"_s));
}

} // namespace brenvaldo::platform
