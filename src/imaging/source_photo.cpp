// SPDX-License-Identifier: GPL-3.0-or-later
#include "source_photo.h"

#include "writer_rules.h"

namespace brenvaldo::imaging {

Outcome unreadablePhoto(const OutputTail& tail)
{
    return isNotSupported(tail.myFileType) ? ResultWord::NotSupported : ResultWord::Failed;
}

} // namespace brenvaldo::imaging
