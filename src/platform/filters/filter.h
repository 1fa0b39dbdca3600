// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

#include <platform/graphics/color.h>

#include <QLatin1String>
#include <QString>

#include <map>
#include <optional>
#include <variant>
#include <vector>

namespace brenvaldo::platform::filters {

/// A place in pixels from the bottom left corner.
struct Point
{
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

using InputValue = std::variant<double, Point, graphics::Color, FilterImage>;

struct FilterRow;

/// An image filter with named inputs.
class Filter
{
public:
    /// Nothing for a name that no filter has.
    [[nodiscard]] static std::optional<Filter> filterWithName(const QString& name);

    /// Gives an input a value. A name or a kind of value that the filter doesn't know is of no
    /// effect.
    Filter& setValue(const QString& input, const InputValue& value);

    /// Gives every input that has a default its default, whatever value it was given before; images
    /// stay.
    Filter& setDefaults();

    /// The value of an input; nothing when it has none.
    [[nodiscard]] std::optional<InputValue> value(const QString& input) const;

    /// Nothing without an input image; `std::exception` when the engine refuses the pictures.
    [[nodiscard]] std::optional<FilterImage> outputImage() const;

private:
    explicit Filter(const FilterRow& row);

    const FilterRow* m_row;
    std::map<QString, InputValue> m_values;
};

} // namespace brenvaldo::platform::filters
