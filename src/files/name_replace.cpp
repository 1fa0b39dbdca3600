// SPDX-License-Identifier: GPL-3.0-or-later
#include "name_parts.h"
#include "ns_string_handling.h"

#include <platform/foundation/numbers.h>
#include <platform/foundation/text.h>

namespace brenvaldo::files {

QString cNSStringHandling::hReplaceText(const QString& name, const ReplaceSettings& settings)
{
    NameParts parts = partsOf(name);
    parts.base = hChangeCaseFiles(parts.base, settings.caseMode);
    parts.extension = hChangeCaseFiles(parts.extension, settings.caseMode);
    const int start = platform::intValue(settings.start);
    if (start > 0 && parts.base.size() > start)
        parts.base = hTrimReplace(parts.base, settings.character, settings.start, settings.stop);
    parts.base = platform::replacingOccurrences(parts.base, settings.find, settings.replacement);
    return joined(parts);
}

QString cNSStringHandling::hTrimReplace(
    const QString& text, const QString& replacement, const QString& start, const QString& stop
)
{
    const QString subject = precomposed(text);
    const QString range = platform::substring(
        subject, qsizetype{platform::intValue(start)} - 1, qsizetype{platform::intValue(stop)} - 1
    );
    return platform::replacingOccurrences(subject, range, replacement);
}

} // namespace brenvaldo::files
