// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "result_word.h"

#include <QString>

/// \file
/// Each "Failed" leaves a line in the log that tells why.

namespace brenvaldo::imaging {

void logFailedWrite(const QString& path, const QString& reason);

/// Logs that no writer knows the type; answers "Failed".
ResultWord failsForType(const QString& path, const QString& typeIdentifier);

} // namespace brenvaldo::imaging
