// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "function.h"

namespace brenvaldo::workspace {

/// The functions of a program, in the order of the catalogue, and the ways to one of them.
class Functions
{
public:
    explicit Functions(std::vector<Function> rows);

    [[nodiscard]] auto begin() const { return m_rows.begin(); }
    [[nodiscard]] auto end() const { return m_rows.end(); }
    [[nodiscard]] auto begin() { return m_rows.begin(); }
    [[nodiscard]] auto end() { return m_rows.end(); }

    // Null where there is none.

    [[nodiscard]] const Function* withId(const QString& id) const;

    /// The first function at an index of the section's pop-up.
    [[nodiscard]] const Function* at(Section section, int index) const;

    /// The function whose panel is shown at that index: the one whose tab is selected.
    [[nodiscard]] const Function*
    shownAt(Section section, int index, const panels::Panels& panels) const;

    /// The function that the pop-up chooses at that index.
    [[nodiscard]] const Function*
    chosenAt(Section section, int index, const panels::Panels& panels) const;

    /// The function that an edited field of that tag selects.
    [[nodiscard]] const Function* ofFieldTag(int tag) const;

private:
    std::vector<Function> m_rows;
};

/// The functions of this program.
[[nodiscard]] std::vector<Function> functions();

} // namespace brenvaldo::workspace
