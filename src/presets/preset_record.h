// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "db_view_controller.h"
#include "value_forms.h"

#include <QList>

#include <functional>
#include <vector>

/// \file
/// Which position of a preset holds which setting of a function, as a table.

namespace brenvaldo::presets {

/// One position of a record.
struct RecordField
{
    enum class Use { WrittenAndRead, OnlyWritten, OnlyRead };

    /// The field counts only while the number at `position` is one of `values`, or none of them.
    struct When
    {
        enum class Is { OneOf, NoneOf };

        int position;
        Is is;
        QList<int> values;
    };

    int position;
    ValueForm form;
    /// What else a load does, with the stored text, after the control has its value.
    std::function<void(const QString& text)> afterLoad = {};
    std::optional<When> when = {};
    Use use = Use::WrittenAndRead;
};

/// The settings of one function, in the order in which a load restores them.
struct PresetRecord
{
    /// What a load switches off before it restores.
    enum class Before { ClearSecondViewAndSimulation, ClearSimulation, Nothing };

    QString process;
    QString action;
    Before before;
    std::vector<RecordField> fields;
    std::function<void()> afterLoad = {}; ///< what a load ends with
};

/// The row that keeps the present settings under `name`; positions without a setting are "".
[[nodiscard]] PresetRow rowOf(const PresetRecord& record, const QString& name);

/// Gives the controls the values of a preset; what is missing in it reads as the empty text.
void restore(const PresetRecord& record, const PresetValues& values);

} // namespace brenvaldo::presets
