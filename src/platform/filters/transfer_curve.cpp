// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer_curve.h"

#include "level_table.h"

#include <cmath>
#include <cstddef>

namespace brenvaldo::platform::filters {

namespace {

/// A curve; looked up between 0 and 1, calculated outside.
class Curve
{
public:
    using Function = double (*)(double);

    Curve(Function function, int steps)
        : m_function(function)
        , m_table(function, steps)
    {
    }

    void apply(const PixelBlock::Plane& in, PixelBlock::Plane& out) const
    {
        if (allInside(in))
            return m_table.lookUp(in, out);
        for (std::size_t i = 0; i < PixelBlock::capacity; ++i)
            out[i] = at(in[i]);
    }

private:
    [[nodiscard]] float at(float value) const
    {
        if (value >= 0 && value <= 1)
            return m_table(value);
        return static_cast<float>(m_function(static_cast<double>(value)));
    }

    BRENVALDO_VECTOR_LOOP static bool allInside(const PixelBlock::Plane& levels)
    {
        int inside = 0;
        for (const float level : levels)
            inside += level >= 0 && level <= 1 ? 1 : 0;
        return inside == PixelBlock::capacity;
    }

    Function m_function;
    LevelTable m_table;
};

void apply(const Curve& curve, const PixelBlock& in, PixelBlock& out)
{
    curve.apply(in.red, out.red);
    curve.apply(in.green, out.green);
    curve.apply(in.blue, out.blue);
    out.alpha = in.alpha;
}

} // namespace

double linearOf(double encoded)
{
    const double value = std::abs(encoded);
    const double linear = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    return std::copysign(linear, encoded);
}

double encodedOf(double linear)
{
    const double value = std::abs(linear);
    const double encoded
        = value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
    return std::copysign(encoded, linear);
}

const std::array<float, 256>& linearOfBytes()
{
    static const auto table = [] {
        std::array<float, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = static_cast<float>(linearOf(static_cast<double>(i) / 255));
        return values;
    }();
    return table;
}

void makeLinear(const PixelBlock& encoded, PixelBlock& linear)
{
    static const Curve curve(linearOf, 2048);
    apply(curve, encoded, linear);
}

void makeEncoded(const PixelBlock& linear, PixelBlock& encoded)
{
    static const Curve curve(encodedOf, 8192); // steep near black
    apply(curve, linear, encoded);
}

} // namespace brenvaldo::platform::filters
