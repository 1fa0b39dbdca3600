// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "temporary_folder.h"

namespace brenvaldo::test {

/// The same machine for every run: no display, the fonts that the packages bring, the C locale, a
/// time zone that is not UTC, and a home with its folders that goes with the object. Of the
/// caller's environment only what starts and watches programs is kept.
///
/// Made before anything else, and once: much of it is only read when a program starts.
/// `BRENVALDO_TEST_FONTS` names another font configuration.
class Surroundings
{
public:
    Surroundings();

private:
    void makeFolder(const char* variable, const QString& name) const;

    TemporaryFolder m_home;
};

} // namespace brenvaldo::test
