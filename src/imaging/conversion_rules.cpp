// SPDX-License-Identifier: GPL-3.0-or-later
#include "conversion_rules.h"

#include "compression_level.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/foundation/text.h>

#include <algorithm>
#include <array>

namespace brenvaldo::imaging {

using platform::codecs::FileFormat;

namespace {

using Route = ConversionRule::Route;
using Quality = ConversionRule::Quality;

/// In the order in which a type identifier is tested.
const std::array<ConversionRule, 8>& conversionRules()
{
    static const std::array<ConversionRule, 8> rules{{
        {u"pdf"_s, FileFormat::Pdf, Route::Plain, Quality::PlatformDefault},
        {u"png"_s, FileFormat::Png, Route::Metadata, Quality::PlatformDefault},
        {u"tiff"_s, FileFormat::Tiff, Route::Metadata, Quality::PlatformDefault},
        {u"bmp"_s, FileFormat::Bmp, Route::Plain, Quality::PlatformDefault},
        {u"gif"_s, FileFormat::Gif, Route::Plain, Quality::PlatformDefault},
        {u"jpeg"_s, FileFormat::Jpeg, Route::Plain, Quality::FromLevel},
        {u"jp2"_s, FileFormat::Jpeg2000, Route::Plain, Quality::PlatformDefault},
        {u"heic"_s, FileFormat::Heic, Route::Metadata, Quality::PlatformDefault},
    }};
    return rules;
}

template <typename Predicate>
std::optional<ConversionRule> firstRule(Predicate matches)
{
    const auto& rules = conversionRules();
    const auto found = std::find_if(rules.begin(), rules.end(), matches);
    if (found == rules.end())
        return std::nullopt;
    return *found;
}

} // namespace

std::optional<ConversionRule> conversionRuleForType(const QString& typeIdentifier)
{
    return firstRule([&](const ConversionRule& rule) {
        return platform::hasSuffix(typeIdentifier, rule.suffix);
    });
}

std::optional<ConversionRule> conversionRuleForWord(const QString& word)
{
    return firstRule([&](const ConversionRule& rule) {
        return rule.format == FileFormat::Heic ? platform::hasSuffix(word, rule.suffix)
                                               : word == rule.suffix;
    });
}

QString conversionTarget(const QString& destinationBase, const QString& typeIdentifier)
{
    const auto rule = conversionRuleForType(typeIdentifier);
    if (!rule)
        return destinationBase;
    return platform::appendingPathExtension(destinationBase, rule->suffix);
}

double conversionQuality(const QString& compressionLevel)
{
    return tenthsOfLevel(compressionLevel, 8).value_or(0.9);
}

} // namespace brenvaldo::imaging
