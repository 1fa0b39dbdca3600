// SPDX-License-Identifier: GPL-3.0-or-later
#include "range_controls.h"

#include <algorithm>

namespace brenvaldo::controls {

Slider::Slider(const QString& name, double minimum, double maximum, double value, Look look)
    : Control(name)
    , m_minimum(minimum)
    , m_maximum(maximum)
    , m_value(value)
    , m_look(look)
{
}

void Slider::setDoubleValue(double value)
{
    m_value = std::clamp(value, m_minimum, m_maximum);
    changed();
}

ProgressIndicator::ProgressIndicator(const QString& name)
    : Control(name)
{
    setHidden(true);
}

void ProgressIndicator::setMaximum(double maximum)
{
    m_maximum = maximum;
    changed();
}

void ProgressIndicator::setIndeterminate(bool indeterminate)
{
    m_indeterminate = indeterminate;
    changed();
}

void ProgressIndicator::setDoubleValue(double value)
{
    m_value = std::clamp(value, minimum(), m_maximum);
    changed();
}

void ProgressIndicator::incrementBy(double step) { setDoubleValue(m_value + step); }

void ProgressIndicator::startAnimation()
{
    m_animating = true;
    changed();
}

void ProgressIndicator::stopAnimation()
{
    m_animating = false;
    changed();
}

} // namespace brenvaldo::controls
