// SPDX-License-Identifier: GPL-3.0-or-later
#include "result_word.h"

namespace brenvaldo::imaging {

QString text(ResultWord word)
{
    switch (word) {
    case ResultWord::Ok:
        return QStringLiteral("OK");
    case ResultWord::Failed:
        return QStringLiteral("Failed");
    case ResultWord::NotSupported:
        return QStringLiteral("Not Supported");
    case ResultWord::IoFailure:
        return QStringLiteral("IOFailure");
    case ResultWord::Exists:
        return QStringLiteral("EXISTS");
    case ResultWord::None:
        return {};
    }
    return {};
}

} // namespace brenvaldo::imaging
