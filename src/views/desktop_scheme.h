// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme.h"

#include <QVariant>

namespace brenvaldo::views {

/// Asks the desktop once whether it wishes dark colours and takes them on; never waits for the
/// answer, and does nothing without a session bus.
void takeDesktopScheme();

/// The scheme that an answer of the desktop's settings service wishes: 1, wrapped in variants, is
/// dark; everything else is light.
[[nodiscard]] Scheme wishedScheme(const QVariant& answer);

} // namespace brenvaldo::views
