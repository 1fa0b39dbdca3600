// SPDX-License-Identifier: GPL-3.0-or-later
#include "name_parts.h"
#include "ns_string_handling.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/numbers.h>
#include <platform/foundation/paths.h>
#include <platform/foundation/text.h>

#include <functional>

namespace brenvaldo::files {

namespace {

/// A name on its way through the steps.
struct Stripping
{
    const StripSettings& settings;
    bool keepsExtension;
    qsizetype baseLength; ///< of the name as it came, without extension
    QString subject;
};

/// Tells texts apart, not numbers: "00" is set.
bool isSet(const QString& number) { return !number.isEmpty() && number != u"0"; }

void stripCount(Stripping& name)
{
    const int count = platform::intValue(name.settings.count);
    if (!isSet(name.settings.count) || name.subject.size() <= count)
        return;
    name.subject = name.settings.side == u"0"
        ? platform::substringFrom(name.subject, count)
        : platform::substringTo(name.subject, name.subject.size() - count);
}

void stripRange(Stripping& name)
{
    const int start = platform::intValue(name.settings.start);
    const int stop = platform::intValue(name.settings.stop);
    const qsizetype length = name.keepsExtension ? name.subject.size() : name.baseLength;
    if (stop < start || !isSet(name.settings.start) || !isSet(name.settings.stop) || length <= stop)
        return;
    // The second number is a length here, one too high: a start of 1 makes both readings agree.
    const QString range
        = platform::substring(name.subject, qsizetype{start} - 1, qsizetype{stop} - 1);
    name.subject = platform::replacingOccurrences(name.subject, range, QString());
}

QString partAtFragment(const QString& subject, const StripSettings& settings)
{
    const QStringList pieces = platform::componentsSeparatedBy(subject, settings.fragment);
    if (settings.removeMode == u"0")
        return pieces.first();
    if (settings.removeMode == u"1")
        return pieces.last();
    if (settings.removeMode == u"2")
        return pieces.first() + settings.fragment;
    return settings.fragment + pieces.last();
}

bool isLastRemoveMode(const QString& mode) { return mode != u"0" && mode != u"1" && mode != u"2"; }

void stripFragment(Stripping& name)
{
    const StripSettings& settings = name.settings;
    if (settings.fragment.isEmpty())
        return;
    const QString part = partAtFragment(name.subject, settings);
    if (name.keepsExtension)
        platform::log(part);
    const bool mayEmptyTheName = !name.keepsExtension && isLastRemoveMode(settings.removeMode);
    if (mayEmptyTheName || part != name.subject)
        name.subject = platform::replacingOccurrences(name.subject, part, QString());
}

void keepAllowed(Stripping& name)
{
    if (name.settings.allowedMode == u"0")
        return;
    const bool takesDigits = name.settings.allowedMode == u"1";
    const QString kept
        = cNSStringHandling::hRemoveNonLetters(name.subject, takesDigits ? u"NA"_s : u"OL"_s);
    if (!kept.isEmpty())
        name.subject = kept;
}

using StripCharacters = std::function<QString(const QString& subject)>;

QString stripped(
    const QString& name, const StripSettings& settings, const StripCharacters& withoutCharacters
)
{
    const NameParts parts = partsOf(name);
    const bool keepsExtension = settings.preserve == u"1";
    Stripping stripping{
        .settings = settings,
        .keepsExtension = keepsExtension,
        .baseLength = parts.base.size(),
        .subject = keepsExtension ? parts.base : precomposed(name)};
    stripCount(stripping);
    stripping.subject = withoutCharacters(stripping.subject);
    stripRange(stripping);
    stripFragment(stripping);
    keepAllowed(stripping);
    if (!keepsExtension)
        return stripping.subject;
    return platform::appendingPathExtension(stripping.subject, parts.extension);
}

QString listSeparator(const QString& selector)
{
    if (selector == u"0")
        return u";"_s;
    return selector == u"1" ? u","_s : u"~"_s;
}

} // namespace

QString cNSStringHandling::hFileNameStripper(const QString& name, const StripSettings& settings)
{
    return stripped(name, settings, [&](const QString& subject) {
        return platform::replacingOccurrences(subject, settings.character, QString());
    });
}

QString cNSStringHandling::hFileNameStripperV2(
    const QString& name, const StripSettings& settings, const QString& separator
)
{
    const QStringList texts
        = platform::componentsSeparatedBy(settings.character, listSeparator(separator));
    return stripped(name, settings, [&](QString subject) {
        for (const QString& text : texts)
            subject = platform::replacingOccurrences(subject, text, QString());
        return subject;
    });
}

} // namespace brenvaldo::files
