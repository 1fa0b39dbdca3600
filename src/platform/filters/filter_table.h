// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter.h"

namespace brenvaldo::platform::filters {

/// What a filter was given: every input of its row that has a value.
class FilterInputs
{
public:
    explicit FilterInputs(const std::map<QString, InputValue>& values)
        : m_values(values)
    {
    }

    /// 0 where the input has no value.
    [[nodiscard]] double number(const char* name) const { return valueOf<double>(name); }
    [[nodiscard]] Point point(const char* name) const { return valueOf<Point>(name); }
    [[nodiscard]] graphics::Color color(const char* name) const
    {
        return valueOf<graphics::Color>(name);
    }
    [[nodiscard]] std::optional<FilterImage> image(const char* name) const;

private:
    template <class Value>
    [[nodiscard]] Value valueOf(const char* name) const
    {
        const auto found = m_values.find(QString::fromLatin1(name));
        return found == m_values.end() ? Value{} : std::get<Value>(found->second);
    }

    const std::map<QString, InputValue>& m_values;
};

/// One filter: its inputs beside its image, and what it makes of them.
struct FilterRow
{
    struct Input
    {
        const char* name;
        InputValue defaultValue;
    };

    const char* name;
    std::vector<Input> inputs = {};
    std::vector<const char*> moreImages = {}; ///< names of images beside `inputImage`
    FilterImage (*make)(const FilterImage& image, const FilterInputs& inputs);
};

/// Null for a name that no filter has.
[[nodiscard]] const FilterRow* filterRow(const QString& name);

} // namespace brenvaldo::platform::filters
