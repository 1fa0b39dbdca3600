// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/choice_controls.h>

namespace brenvaldo::workspace {

/// Keeps the preview off for as long as it lives, then puts the box back to its state.
class PreviewSwitchedOff
{
public:
    explicit PreviewSwitchedOff(controls::CheckBox& box)
        : m_box(box)
        , m_keptState(box.state())
    {
        m_box.setState(0);
    }
    PreviewSwitchedOff(const PreviewSwitchedOff&) = delete;
    PreviewSwitchedOff& operator=(const PreviewSwitchedOff&) = delete;
    PreviewSwitchedOff(PreviewSwitchedOff&&) = delete;
    PreviewSwitchedOff& operator=(PreviewSwitchedOff&&) = delete;
    ~PreviewSwitchedOff() { m_box.setState(m_keptState); }

    [[nodiscard]] int keptState() const { return m_keptState; }

private:
    controls::CheckBox& m_box;
    int m_keptState;
};

} // namespace brenvaldo::workspace
