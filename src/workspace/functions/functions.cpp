// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions.h"

#include "rows.h"

#include <algorithm>

namespace brenvaldo::workspace {

namespace {

template <class Rows, class Condition>
const Function* firstOf(const Rows& rows, const Condition& condition)
{
    const auto found = std::find_if(rows.begin(), rows.end(), condition);
    return found == rows.end() ? nullptr : &*found;
}

bool standsAt(const Choice& choice, Section section, int index)
{
    return choice.section == section && choice.index == index;
}

bool isShown(const Choice& choice, const panels::Panels& panels)
{
    return !choice.isTabSelected || choice.isTabSelected(panels);
}

} // namespace

Functions::Functions(std::vector<Function> rows)
    : m_rows(std::move(rows))
{
}

const Function* Functions::withId(const QString& id) const
{
    return firstOf(m_rows, [&](const Function& row) { return id == row.id; });
}

const Function* Functions::at(Section section, int index) const
{
    return firstOf(m_rows, [&](const Function& row) {
        return standsAt(row.choice, section, index);
    });
}

const Function* Functions::shownAt(Section section, int index, const panels::Panels& panels) const
{
    return firstOf(m_rows, [&](const Function& row) {
        return standsAt(row.choice, section, index) && isShown(row.choice, panels);
    });
}

const Function* Functions::chosenAt(Section section, int index, const panels::Panels& panels) const
{
    const Function* shown = shownAt(section, index, panels);
    return shown && !shown->choice.onlyByItsTab ? shown : at(section, index);
}

const Function* Functions::ofFieldTag(int tag) const
{
    return firstOf(m_rows, [&](const Function& row) { return row.fieldTags.contain(tag); });
}

std::vector<Function> functions()
{
    std::vector<Function> made;
    for (const auto& row : catalogue)
        made.push_back(row());
    return made;
}

bool hasOperation(const KindOfRun& run)
{
    struct IsThere
    {
        bool operator()(const OwnButton&) const { return false; }
        bool operator()(const PhotoRun& run) const { return static_cast<bool>(run.start); }
        bool operator()(const InPlaceRun& run) const { return static_cast<bool>(run.read); }
        bool operator()(const ListRun& run) const { return static_cast<bool>(run.work); }
        bool operator()(const RenamingRun& run) const { return static_cast<bool>(run.rename); }
    };
    return std::visit(IsThere{}, run);
}

} // namespace brenvaldo::workspace
