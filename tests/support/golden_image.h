// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

#include <gtest/gtest.h>

namespace brenvaldo::test {

/// Compares `actual` with tests/golden/`name`.png.
///
/// At most 0.02 % of the samples may differ by more than 1, and none by more than 3. On a failure
/// the picture and its difference are written beside the test program's working folder as
/// golden-actual and golden-difference files; a picture that was looked at takes the golden one's
/// place.
[[nodiscard]] testing::AssertionResult looksLike(const QImage& actual, const QString& name);

} // namespace brenvaldo::test
