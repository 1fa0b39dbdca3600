// SPDX-License-Identifier: GPL-3.0-or-later
#include "writer_rules.h"

#include "compression_level.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/text.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace brenvaldo::imaging {

using platform::codecs::FileFormat;

namespace {

constexpr QStringView originalFileType = u"original file type";

struct TypeRow
{
    std::u16string_view typeIdentifier;
    FileFormat format;
    std::u16string_view extension;
    WriterRule::Properties properties;
    WriterRule::Failure failure;
};

using Properties = WriterRule::Properties;
using Failure = WriterRule::Failure;

constexpr std::array typeRows{
    TypeRow{u"public.png", FileFormat::Png, u".png", Properties::Carried, Failure::Logged},
    TypeRow{u"public.tiff", FileFormat::Tiff, u".tiff", Properties::Carried, Failure::Logged},
    TypeRow{u"com.microsoft.bmp", FileFormat::Bmp, u"", Properties::Dropped, Failure::Silent},
    TypeRow{u"public.bmp", FileFormat::Bmp, u".bmp", Properties::Dropped, Failure::Logged},
    TypeRow{u"com.compuserve.gif", FileFormat::Gif, u".gif", Properties::Dropped, Failure::Logged},
    TypeRow{u"public.jpeg", FileFormat::Jpeg, u".jpg", Properties::Carried, Failure::Logged},
    TypeRow{u"public.jp2", FileFormat::Jpeg2000, u".jp2", Properties::Dropped, Failure::Logged},
    TypeRow{u"public.heic", FileFormat::Heic, u".heic", Properties::Carried, Failure::Logged},
};

/// What sets a writer apart from the table.
struct WriterTraits
{
    enum class Heic { Whole, Never, BySuffix };
    enum class Extension { Added, AsGiven };
    enum class Log { ByRow, HeicAlone };

    Heic heic;
    Extension extension;
    WriterRule::Quality jpegQuality;
    Log log;
};

constexpr WriterTraits traitsOf(Writer writer)
{
    using Heic = WriterTraits::Heic;
    using Extension = WriterTraits::Extension;
    using Log = WriterTraits::Log;
    using Compression = WriterRule::Quality;
    switch (writer) {
    case Writer::Batch:
        return {Heic::Whole, Extension::Added, Compression::FromLevel, Log::ByRow};
    case Writer::Watermark:
        return {Heic::Never, Extension::Added, Compression::FromLevel, Log::ByRow};
    case Writer::WholePath:
        break;
    }
    return {Heic::BySuffix, Extension::AsGiven, Compression::PlatformDefault, Log::HeicAlone};
}

bool matches(const TypeRow& row, const WriterTraits& traits, const QString& typeIdentifier)
{
    if (row.format == FileFormat::Heic) {
        if (traits.heic == WriterTraits::Heic::Never)
            return false;
        if (traits.heic == WriterTraits::Heic::BySuffix)
            return platform::hasSuffix(typeIdentifier, u"heic"_s);
    }
    return typeIdentifier == QStringView(row.typeIdentifier);
}

WriterRule rule(const TypeRow& row, const WriterTraits& traits)
{
    WriterRule rule{.format = row.format, .properties = row.properties, .failure = row.failure};
    if (traits.extension == WriterTraits::Extension::Added)
        rule.extension = QStringView(row.extension).toString();
    if (row.format == FileFormat::Jpeg)
        rule.quality = traits.jpegQuality;
    if (traits.log == WriterTraits::Log::HeicAlone && row.format != FileFormat::Heic)
        rule.failure = Failure::Silent;
    return rule;
}

} // namespace

std::optional<WriterRule> writerRule(Writer writer, const QString& typeIdentifier)
{
    const WriterTraits traits = traitsOf(writer);
    const auto row = std::find_if(typeRows.begin(), typeRows.end(), [&](const TypeRow& candidate) {
        return matches(candidate, traits, typeIdentifier);
    });
    if (row == typeRows.end())
        return std::nullopt;
    return rule(*row, traits);
}

bool isNotSupported(const QString& typeIdentifier)
{
    return typeIdentifier == u"com.adobe.photoshop-image"_s || typeIdentifier == u"com.adobe.pdf"_s;
}

QString writtenPath(Writer writer, const QString& destination, const QString& typeIdentifier)
{
    const auto rule = writerRule(writer, typeIdentifier);
    return rule ? destination + rule->extension : QString();
}

double writerQuality(const QString& compressionLevel)
{
    return tenthsOfLevel(compressionLevel, 9).value_or(1.0);
}

QString outputTypeForTitle(const QString& title)
{
    if (title == originalFileType)
        return title;
    if (title == u"gif"_s)
        return u"com.compuserve."_s + title;
    return u"public."_s + title;
}

bool keepsOriginalType(const QString& outputType) { return outputType == originalFileType; }

} // namespace brenvaldo::imaging
