// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_result.h"

namespace brenvaldo::files {

QString text(FileResult result)
{
    switch (result) {
    case FileResult::Ok:
        return QStringLiteral("OK");
    case FileResult::Failed:
        return QStringLiteral("Failed");
    case FileResult::NotCreated:
        return QStringLiteral("FAILED");
    case FileResult::Exists:
        return QStringLiteral("EXISTS");
    case FileResult::Success:
        return QStringLiteral("Success");
    case FileResult::No:
        return QStringLiteral("NO");
    }
    return {};
}

} // namespace brenvaldo::files
