// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace brenvaldo::imaging {

/// True for the units whose pixels depend on the resolution: all known ones and unknown texts but
/// "pixel".
[[nodiscard]] bool needsResolution(const QString& unit);

/// Pixels of `value` in `unit` at `dotsPerInch`: truncated, in "pica" rounded to the nearest with
/// halves away from 0.
[[nodiscard]] std::int32_t pixelsOf(float value, const QString& unit, float dotsPerInch);

} // namespace brenvaldo::imaging
