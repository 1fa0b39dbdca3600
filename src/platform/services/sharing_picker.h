// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform::services {

/// Offers the user what can be done with a photo outside of this program.
class SharingPicker
{
public:
    SharingPicker() = default;
    SharingPicker(const SharingPicker&) = delete;
    SharingPicker& operator=(const SharingPicker&) = delete;
    SharingPicker(SharingPicker&&) = delete;
    SharingPicker& operator=(SharingPicker&&) = delete;
    virtual ~SharingPicker() = default;

    /// Shows the choice for the photo at `path`.
    virtual void show(const QString& path) = 0;
};

} // namespace brenvaldo::platform::services
