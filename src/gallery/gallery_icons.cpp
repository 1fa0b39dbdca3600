// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_icons.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

QImage icon(const QString& name) { return QImage(u":/gallery/icons/"_s + name + u".png"_s); }

} // namespace brenvaldo::gallery
