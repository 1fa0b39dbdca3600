// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter.h"

#include "filter_table.h"

#include <platform/foundation/literals.h>

#include <algorithm>

namespace brenvaldo::platform::filters {

namespace {

/// Whether the filter has an input of this name that takes such a value.
bool takes(const FilterRow& row, const QString& input, const InputValue& value)
{
    if (std::holds_alternative<FilterImage>(value))
        return input == u"inputImage"_s
            || std::any_of(row.moreImages.begin(), row.moreImages.end(), [&](const char* name) {
                   return input == QLatin1String(name);
               });
    return std::any_of(row.inputs.begin(), row.inputs.end(), [&](const FilterRow::Input& known) {
        return input == QLatin1String(known.name) && value.index() == known.defaultValue.index();
    });
}

} // namespace

Filter::Filter(const FilterRow& row)
    : m_row(&row)
{
}

std::optional<Filter> Filter::filterWithName(const QString& name)
{
    const FilterRow* row = filterRow(name);
    return row ? std::optional(Filter(*row).setDefaults()) : std::nullopt;
}

Filter& Filter::setValue(const QString& input, const InputValue& value)
{
    if (takes(*m_row, input, value))
        m_values.insert_or_assign(input, value);
    return *this;
}

Filter& Filter::setDefaults()
{
    for (const FilterRow::Input& input : m_row->inputs)
        m_values.insert_or_assign(QString::fromLatin1(input.name), input.defaultValue);
    return *this;
}

std::optional<InputValue> Filter::value(const QString& input) const
{
    const auto found = m_values.find(input);
    return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

std::optional<FilterImage> Filter::outputImage() const
{
    const FilterInputs inputs(m_values);
    const auto image = inputs.image("inputImage");
    return image ? std::optional(m_row->make(*image, inputs)) : std::nullopt;
}

} // namespace brenvaldo::platform::filters
