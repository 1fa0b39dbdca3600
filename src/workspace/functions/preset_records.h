// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "functions.h"

#include <presets/preset_record.h>

#include <QHash>

namespace brenvaldo::workspace {

/// The preset records of all functions, made once for the controls of a program.
class PresetRecords
{
public:
    PresetRecords(const Functions& functions, const Subsystems& subsystems);

    /// The record of a function as its panel is shown; null when it has none.
    [[nodiscard]] const presets::PresetRecord* recordOf(const QString& function) const;

private:
    struct Entry
    {
        PresetTable::Applies applies;
        presets::PresetRecord record;
    };

    const panels::Panels& m_panels;
    QHash<QString, std::vector<Entry>> m_records; ///< by function id
};

} // namespace brenvaldo::workspace
