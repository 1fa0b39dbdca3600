// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_result.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::files {

QString text(FileResult result)
{
    switch (result) {
    case FileResult::Ok:
        return u"OK"_s;
    case FileResult::Failed:
        return u"Failed"_s;
    case FileResult::NotCreated:
        return u"FAILED"_s;
    case FileResult::Exists:
        return u"EXISTS"_s;
    case FileResult::Success:
        return u"Success"_s;
    case FileResult::No:
        return u"NO"_s;
    }
    return {};
}

} // namespace brenvaldo::files
