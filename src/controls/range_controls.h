// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control.h"

namespace brenvaldo::controls {

/// A number between two ends, chosen by dragging.
class Slider : public Control
{
public:
    enum class Look {
        Plain,
        FadeStrip ///< its groove shows what a fade over that part of a picture leaves
    };

    Slider(
        const QString& name, double minimum, double maximum, double value, Look look = Look::Plain
    );

    [[nodiscard]] Look look() const { return m_look; }

    [[nodiscard]] double minimum() const { return m_minimum; }
    [[nodiscard]] double maximum() const { return m_maximum; }
    [[nodiscard]] double doubleValue() const { return m_value; }
    /// Values beyond an end become that end.
    void setDoubleValue(double value);

private:
    double m_minimum;
    double m_maximum;
    double m_value;
    Look m_look;
};

/// The bar of a run: hidden while nothing runs.
class ProgressIndicator : public Control
{
public:
    explicit ProgressIndicator(const QString& name);

    [[nodiscard]] double minimum() const { return 0; }
    [[nodiscard]] double maximum() const { return m_maximum; }
    [[nodiscard]] double doubleValue() const { return m_value; }
    [[nodiscard]] bool isAnimating() const { return m_animating; }
    /// Shows that something goes on, not how much of it is done.
    [[nodiscard]] bool isIndeterminate() const { return m_indeterminate; }

    void setMaximum(double maximum);
    void setIndeterminate(bool indeterminate);
    void setDoubleValue(double value);
    /// The value stops at the maximum.
    void incrementBy(double step);
    void startAnimation();
    void stopAnimation();

    /// Nobody waits for the run any more: it is to end after the photo in hand.
    void askToEnd() { m_askedToEnd = true; }
    [[nodiscard]] bool isAskedToEnd() const { return m_askedToEnd; }

private:
    double m_maximum = 100;
    double m_value = 0;
    bool m_animating = false;
    bool m_indeterminate = false;
    bool m_askedToEnd = false;
};

} // namespace brenvaldo::controls
