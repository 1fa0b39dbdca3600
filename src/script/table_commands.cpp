// SPDX-License-Identifier: GPL-3.0-or-later
#include "arguments.h"
#include "command_table.h"

#include <controls/user_input.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::script {

namespace {

QString unknownTable(const QString& name) { return u"unknown table \"%1\""_s.arg(name); }

class RowCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        controls::TableView* table = tableNamed(arguments.at(0));
        if (!table)
            return unknownTable(arguments.at(0));
        const auto count = static_cast<int>(table->content().arrangedObjects().size());
        const auto row
            = arguments.at(1) == u"-1" ? std::optional(-1) : indexBelow(count, arguments.at(1));
        if (!row)
            return u"%1 has no row %2"_s.arg(arguments.at(0), arguments.at(1));
        controls::UserInput(workspace().actions()).select(*table, *row);
        return std::nullopt;
    }

private:
    /// The table of that name, or the one that shows the rows of that name.
    [[nodiscard]] controls::TableView* tableNamed(const QString& name) const
    {
        const panels::Panels& panels = workspace().panels();
        controls::Control* named = panels.control(name);
        if (!named)
            return nullptr;
        if (auto* table = dynamic_cast<controls::TableView*>(named))
            return table;
        for (controls::Control* control : panels.controls()) {
            auto* table = dynamic_cast<controls::TableView*>(control);
            if (table && &table->content() == named)
                return table;
        }
        return nullptr;
    }
};

class RowsCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        const controls::ArrayController* rows = workspace().rowsOf(arguments.first());
        if (!rows)
            return unknownTable(arguments.first());
        int index = 0;
        for (const QStringList& row : rows->arrangedObjects())
            print(u"row"_s, QStringList{QString::number(index++)} + row);
        return std::nullopt;
    }
};

} // namespace

void addTableCommands(CommandTable& table, const ScriptContext& context)
{
    table.add(
        u"row"_s,
        {.usage = u"TABLE INDEX"_s, .least = 2, .most = 2},
        std::make_unique<RowCommand>(context)
    );
    table.add(
        u"rows"_s,
        {.usage = u"TABLE"_s, .least = 1, .most = 1},
        std::make_unique<RowsCommand>(context)
    );
}

} // namespace brenvaldo::script
