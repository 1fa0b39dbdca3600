// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace brenvaldo::platform {

/// The picture as on black-and-white film with exaggerated contrast; alpha stays.
///
/// A red-leaning grey mix, a gamma, a smoothstep S-curve and crushed ends, on encoded straight
/// colour.
[[nodiscard]] QImage photoEffectNoir(const QImage& image);

} // namespace brenvaldo::platform
