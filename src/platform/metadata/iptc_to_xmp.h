// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace brenvaldo::platform::metadata {

/// An XMP packet with what the IIM data sets tell, for containers that hold no IPTC; empty when
/// nothing in them has a counterpart.
[[nodiscard]] QByteArray xmpFromIptc(const QByteArray& iptc);

} // namespace brenvaldo::platform::metadata
