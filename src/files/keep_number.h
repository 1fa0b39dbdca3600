// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::files {

/// The running number that the numbering of files shares across a run, for the whole process.
class cKeepNumber
{
public:
    cKeepNumber(const cKeepNumber&) = delete;
    cKeepNumber& operator=(const cKeepNumber&) = delete;
    cKeepNumber(cKeepNumber&&) = delete;
    cKeepNumber& operator=(cKeepNumber&&) = delete;

    [[nodiscard]] static cKeepNumber& sharedNumber();

    QString myNumberString; ///< decimal digits

private:
    cKeepNumber() = default;
    ~cKeepNumber() = default;
};

} // namespace brenvaldo::files
