// SPDX-License-Identifier: GPL-3.0-or-later
#include "preset_record.h"

#include "preset_statements.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::presets {

namespace {

bool holds(const RecordField::When& when, const QString& text)
{
    const bool isOne = when.values.contains(platform::intValue(text));
    return isOne == (when.is == RecordField::When::Is::OneOf);
}

std::optional<QString>& valueAt(PresetRow& row, int position)
{
    return row[static_cast<std::size_t>(position)];
}

} // namespace

PresetRow rowOf(const PresetRecord& record, const QString& name)
{
    PresetRow row;
    row.fill(u""_s);
    row[0] = name;
    row[1] = record.process;
    row[2] = record.action;
    for (const RecordField& field : record.fields) {
        if (!field.when && field.use != RecordField::Use::OnlyRead)
            valueAt(row, field.position) = storedValue(field.form);
    }
    for (const RecordField& field : record.fields) {
        if (field.when && field.use != RecordField::Use::OnlyRead
            && holds(*field.when, valueAt(row, field.when->position).value_or(QString())))
            valueAt(row, field.position) = storedValue(field.form);
    }
    return row;
}

void restore(const PresetRecord& record, const PresetValues& values)
{
    for (const RecordField& field : record.fields) {
        if (field.use == RecordField::Use::OnlyWritten)
            continue;
        if (field.when && !holds(*field.when, values.value(fieldName(field.when->position))))
            continue;
        const QString text = values.value(fieldName(field.position));
        restoreValue(field.form, text);
        if (field.afterLoad)
            field.afterLoad(text);
    }
}

} // namespace brenvaldo::presets
