// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presets_bench.h"

#include <gtest/gtest.h>

#include <vector>

namespace brenvaldo::test {

/// Two presets of one function are saved and loaded, each with values of its own.
enum class Round { First, Second };

/// One position of a record: the control that it keeps, and its values in the two presets.
///
/// Values are written as texts: texts as they stand, boxes "0" or "1", lists by index, fonts by
/// name, tabs by label, colours as "RED GREEN BLUE", folders and files by path.
struct Position
{
    int place;
    QString control;
    QString first;
    QString second;

    [[nodiscard]] const QString& in(Round round) const
    {
        return round == Round::First ? first : second;
    }
};
using Positions = std::vector<Position>;

/// A control that a load enables, shows, disables or hides.
struct Effect
{
    QString control;
    bool first;
    bool second;

    [[nodiscard]] bool in(Round round) const { return round == Round::First ? first : second; }
};
using Effects = std::vector<Effect>;

[[nodiscard]] Positions joined(Positions positions, const Positions& more);

/// A function whose record is written, compared and loaded by the names of its controls.
class RecordBench : public PresetsBench
{
public:
    RecordBench(const QString& id, const QString& process, const QString& action);

    void give(const QString& control, const QString& value);
    [[nodiscard]] QString read(const QString& control) const;

    void give(const Positions& positions, Round round);
    /// Gives every control another value than it has in `round`.
    void giveOther(const Positions& positions, Round round);

    /// Saves the preset of `round`.
    void saveRound(Round round) { save(nameOf(round)); }
    /// Loads the preset of `round`, the controls of `effects` standing the other way before.
    void load(Round round, const Effects& effects = {});

    /// The whole row holds `positions` and nothing else.
    void expectRow(Round round, const Positions& positions) const;
    void expectValues(Round round, const Positions& positions) const;
    /// The values are still those of `giveOther`.
    void expectOther(Round round, const Positions& positions) const;

    /// Saves both presets, and loads both over other values.
    void expectKept(const Positions& positions, const Effects& effects = {});

    /// The three output choices and the destination, as seven of the image functions keep them.
    [[nodiscard]] Positions commonPositions() const;
    [[nodiscard]] Position destination() const;

private:
    [[nodiscard]] static QString nameOf(Round round);
    [[nodiscard]] controls::Control& control(const QString& name) const;
    [[nodiscard]] QString storedFormOf(const QString& control, const QString& value) const;
    [[nodiscard]] QString otherValue(const Position& position, Round round) const;

    QString m_process;
    QString m_action;
};

} // namespace brenvaldo::test
