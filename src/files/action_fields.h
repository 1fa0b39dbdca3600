// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ns_string_handling.h"

#include <array>

/// \file
/// The settings that a C-Action keeps, in the order of its fields; for those that write the fields
/// and those that read them.

namespace brenvaldo::files {

inline constexpr std::array stripFields{
    &StripSettings::count,
    &StripSettings::side,
    &StripSettings::character,
    &StripSettings::start,
    &StripSettings::stop,
    &StripSettings::fragment,
    &StripSettings::removeMode,
    &StripSettings::allowedMode,
    &StripSettings::preserve};

inline constexpr std::array replaceFields{
    &ReplaceSettings::caseMode,
    &ReplaceSettings::start,
    &ReplaceSettings::stop,
    &ReplaceSettings::character,
    &ReplaceSettings::find,
    &ReplaceSettings::replacement};

inline constexpr std::array prefixFields{
    &PrefixSettings::text,
    &PrefixSettings::metadataKey,
    &PrefixSettings::creationDate,
    &PrefixSettings::modificationDate};

inline constexpr std::array postfixFields{
    &PostfixSettings::text,
    &PostfixSettings::metadataKey,
    &PostfixSettings::creationDate,
    &PostfixSettings::modificationDate,
    &PostfixSettings::beforeExtension};

} // namespace brenvaldo::files
