// SPDX-License-Identifier: GPL-3.0-or-later
#include "result_word.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

QString text(ResultWord word)
{
    switch (word) {
    case ResultWord::Ok:
        return u"OK"_s;
    case ResultWord::Failed:
        return u"Failed"_s;
    case ResultWord::NotSupported:
        return u"Not Supported"_s;
    case ResultWord::IoFailure:
        return u"IOFailure"_s;
    case ResultWord::Exists:
        return u"EXISTS"_s;
    case ResultWord::None:
        return {};
    }
    return {};
}

} // namespace brenvaldo::imaging
