// SPDX-License-Identifier: GPL-3.0-or-later
#include "placeholder_values.h"

#include "kept_properties.h"

#include <platform/foundation/literals.h>
#include <platform/metadata/image_properties.h>

namespace brenvaldo::watermark {

namespace {

using platform::metadata::PropertyDictionary;
using platform::metadata::PropertyValue;

/// The dictionary that a placeholder reads; null when the photo has none.
const PropertyDictionary* dictionaryOf(const PropertyDictionary& top, Placeholder::Source source)
{
    switch (source) {
    case Placeholder::Source::Top:
        return &top;
    case Placeholder::Source::Exif:
        return top.dictionary(platform::metadata::property::exifDictionary);
    case Placeholder::Source::Iptc:
        return top.dictionary(platform::metadata::property::iptcDictionary);
    case Placeholder::Source::OutputName:
        return nullptr;
    }
    return nullptr;
}

std::optional<QString> firstText(const PropertyValue& value)
{
    const PropertyValue::Array* array = value.array();
    if (array == nullptr)
        return value.text();
    return array->isEmpty() ? std::nullopt : std::optional(array->first().text());
}

QString joinedText(const PropertyValue& value)
{
    const PropertyValue::Array* array = value.array();
    if (array == nullptr)
        return value.text();
    QStringList texts;
    for (const PropertyValue& element : *array)
        texts.append(element.text());
    return texts.join(u"; "_s);
}

std::optional<QString> textOf(const PropertyValue& value, Placeholder::Form form)
{
    switch (form) {
    case Placeholder::Form::Plain:
        return value.text();
    case Placeholder::Form::FirstOfArray:
        return firstText(value);
    case Placeholder::Form::JoinedArray:
        return joinedText(value);
    }
    return std::nullopt;
}

} // namespace

PlaceholderValue placeholderValuesOf(
    const QString& path, const QString& outputName, std::shared_ptr<KeptProperties> properties
)
{
    return [path, outputName, properties = std::move(properties)](const Placeholder& placeholder
           ) -> std::optional<QString> {
        if (placeholder.source == Placeholder::Source::OutputName)
            return outputName;
        const auto top = properties->of(path);
        const PropertyDictionary* dictionary = dictionaryOf(*top, placeholder.source);
        const PropertyValue* value = dictionary ? dictionary->value(placeholder.key) : nullptr;
        return value ? textOf(*value, placeholder.form) : std::nullopt;
    };
}

} // namespace brenvaldo::watermark
