// SPDX-License-Identifier: GPL-3.0-or-later
#include "placeholders.h"

#include <platform/foundation/text.h>

namespace brenvaldo::watermark {

namespace {

using Source = Placeholder::Source;
using Form = Placeholder::Form;

QList<Placeholder> placeholderTable()
{
    const auto row = [](const char16_t* token, Source source, const char16_t* key, Form form) {
        return Placeholder{
            .token = QString::fromUtf16(token),
            .source = source,
            .key = QString::fromUtf16(key),
            .form = form};
    };
    return {
        row(u"<[IMGCD]>", Source::Exif, u"DateTimeOriginal", Form::Plain),
        row(u"<[IMGEUC]>", Source::Exif, u"UserComment", Form::Plain),
        row(u"<[IMGW]>", Source::Top, u"PixelWidth", Form::Plain),
        row(u"<[IMGH]>", Source::Top, u"PixelHeight", Form::Plain),
        row(u"<[IMGDPI]>", Source::Top, u"DPIHeight", Form::Plain),
        row(u"<[IMGFN]>", Source::OutputName, u"", Form::Plain),
        row(u"<[IMGCM]>", Source::Top, u"ColorModel", Form::Plain),
        row(u"<[IMGCP]>", Source::Top, u"ProfileName", Form::Plain),
        row(u"<[IMGD]>", Source::Top, u"Depth", Form::Plain),
        row(u"<[IPTCCREA]>", Source::Iptc, u"Byline", Form::FirstOfArray),
        row(u"<[IPTCFUNC]>", Source::Iptc, u"BylineTitle", Form::FirstOfArray),
        row(u"<[IPTCCAP]>", Source::Iptc, u"Caption/Abstract", Form::Plain),
        row(u"<[IPTCCOPY]>", Source::Iptc, u"CopyrightNotice", Form::Plain),
        row(u"<[IPTCHEAD]>", Source::Iptc, u"Headline", Form::Plain),
        row(u"<[IPTCKEYW]>", Source::Iptc, u"Keywords", Form::JoinedArray),
        row(u"<[IPTCNAME]>", Source::Iptc, u"ObjectName", Form::Plain),
        row(u"<[IPTCSOUR]>", Source::Iptc, u"Source", Form::Plain),
        row(u"<[IPTCTERM]>", Source::Iptc, u"UsageTerms", Form::Plain),
    };
}

bool staysWhenEmpty(const Placeholder& placeholder)
{
    return placeholder.source == Source::Exif || placeholder.source == Source::Iptc;
}

} // namespace

const QList<Placeholder>& placeholders()
{
    static const QList<Placeholder> table = placeholderTable();
    return table;
}

QString replacingPlaceholders(const QString& typed, const PlaceholderValue& value)
{
    QString text = typed;
    for (const Placeholder& placeholder : placeholders()) {
        if (!platform::containsText(typed, placeholder.token))
            continue;
        const std::optional<QString> found = value(placeholder);
        if (found && found->isEmpty() && staysWhenEmpty(placeholder))
            continue;
        text = platform::replacingOccurrences(text, placeholder.token, found.value_or(QString()));
    }
    return text;
}

} // namespace brenvaldo::watermark
