// SPDX-License-Identifier: GPL-3.0-or-later
#include "command_table.h"
#include "control_values.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

namespace {

QString unknownControl(const QString& name) { return u"unknown control \"%1\""_s.arg(name); }

class SetCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        controls::Control* control = workspace().panels().control(arguments.at(0));
        if (!control)
            return unknownControl(arguments.at(0));
        return giveValue(*control, arguments.at(1), controls::UserInput(workspace().actions()));
    }
};

class ShowCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        for (const QString& name : arguments) {
            const controls::Control* control = workspace().panels().control(name);
            if (!control)
                return unknownControl(name);
            print(u"value"_s, QStringList{name} + valueFields(*control));
        }
        return std::nullopt;
    }
};

class StateCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        for (const QString& name : arguments) {
            const auto state = stateOf(name);
            if (!state)
                return unknownControl(name);
            print(
                u"state"_s,
                {name,
                 state->isEnabled ? u"enabled"_s : u"disabled"_s,
                 state->isShown ? u"shown"_s : u"hidden"_s}
            );
        }
        return std::nullopt;
    }

private:
    struct State
    {
        bool isEnabled = true;
        bool isShown = true;
    };

    [[nodiscard]] std::optional<State> stateOf(const QString& name) const
    {
        const panels::Panels& panels = workspace().panels();
        if (const auto* sheet = dynamic_cast<const controls::Sheet*>(panels.control(name)))
            return State{.isEnabled = sheet->isEnabled(), .isShown = sheet->isOpen()};
        if (const controls::Control* control = panels.control(name))
            return State{.isEnabled = control->isEnabled(), .isShown = !control->isHidden()};
        if (const panels::PanelView* view = panels.view(name))
            return State{.isShown = panels.isShown(*view)};
        return std::nullopt;
    }
};

} // namespace

void addControlCommands(CommandTable& table, const ScriptContext& context)
{
    table.add(
        u"set"_s,
        {.usage = u"NAME VALUE"_s, .least = 2, .most = 2},
        std::make_unique<SetCommand>(context)
    );
    table.add(
        u"show"_s,
        {.usage = u"NAME..."_s, .least = 1, .most = CommandTable::Words::unlimited},
        std::make_unique<ShowCommand>(context)
    );
    table.add(
        u"state"_s,
        {.usage = u"NAME..."_s, .least = 1, .most = CommandTable::Words::unlimited},
        std::make_unique<StateCommand>(context)
    );
}

} // namespace brenvaldo::script
