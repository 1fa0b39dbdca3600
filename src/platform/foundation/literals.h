// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// \file
/// u"..."_s is a QString that shares the literal's characters.

namespace brenvaldo {

using namespace Qt::StringLiterals;

} // namespace brenvaldo
